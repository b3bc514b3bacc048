#pragma once

#include "bench/WindowState.h"
#include "host/IQuorvane.h"

#include <string>
#include <vector>
#include <windows.h>

// One of the three editors: its operation and the templates of its windows.
struct EditorKind
{
    const char* name;
    decltype(&IQuorvane::EditPrintModes) operation;
    UINT dialogTemplate;
    std::vector<UINT> pageTemplates; // in tab order
};

extern const EditorKind kPrintModeEditor;
extern const EditorKind kFactoryEditor;
extern const EditorKind kUserEditor;

// What an open editor shows.
struct EditorState
{
    std::wstring caption;
    WindowState dialog; // without the tab control
    std::vector<std::wstring> tabs;
    std::vector<WindowState> pages; // in tab order, without a grid and its parts
};

EditorState ReadEditor(const EditorKind& kind, HWND dialog);

// The tab control of an open editor, or null.
HWND TabOf(HWND dialog);
