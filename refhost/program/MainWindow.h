#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "refhost/program/EditorLibrary.h"
#include "refhost/program/Editors.h"
#include "refhost/program/MachineDocument.h"

namespace refhost
{

// What the program was started with, checked.
struct Start
{
    std::unique_ptr<CMachineDocument> document; // may be null
    std::wstring languageDir;
    std::vector<std::wstring> languages;
    std::wstring language;
    const Editor* open = nullptr;
    IQuorvane* editors = nullptr; // null when the library cannot be used
};

class CMainWindow
{
public:
    explicit CMainWindow(Start start);

    // Shows the window and runs until it is closed. False when no window can be shown.
    bool Run();

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR OnMessage(UINT message, WPARAM wParam);
    void OnInit();
    void OnCommand(int id);
    void OnOpenMachine();
    void OnClose();

    void FillLanguages();
    void ShowDocument();
    void ShowStatus();
    void UpdateButtons();
    bool CanEdit() const;
    void Load(const std::wstring& path);
    void Edit(const Editor& editor);
    bool MayDropDocument();
    std::wstring SelectedLanguageDir() const;
    int Ask(const std::wstring& text, UINT type) const;

    Start m_start;
    HWND m_hWindow = nullptr;
    bool m_bEditing = false;
};

} // namespace refhost
