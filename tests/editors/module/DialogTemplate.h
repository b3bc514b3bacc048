#pragma once

#include <string>
#include <vector>
#include <windows.h>

// One control of a dialog template, in dialog units.
struct TemplateControl
{
    int id;
    DWORD style;
    std::wstring className; // "Button" for the system's class of that name
    std::wstring text;
    RECT area;
};

// An extended dialog template, read from a module's resources without a window.
struct DialogTemplate
{
    int id;
    DWORD style;
    std::wstring caption;
    std::wstring fontName;
    int fontSize;
    SIZE size;
    std::vector<TemplateControl> controls;

    const TemplateControl* Find(int controlId) const;
};

// Of the DLL beside the program.
std::vector<DialogTemplate> AllDialogTemplates();
DialogTemplate FindDialogTemplate(int id);
