#pragma once

#include "bench/EditorKind.h"
#include "bench/ReadyMessages.h"

#include <string>
#include <vector>

// Which lists are emptied and filled, even if their rows stay the same.
struct Rebuilds
{
    bool pageLists;   // those that the pages fill again
    int listOfDialog; // 0: none
};

// What the floor does to change the selection: it reads the controls of every page, and then shows the other state.
struct FloorChange
{
    FloorChange(const EditorKind& kind, const EditorState& from, const EditorState& to, Rebuilds rebuilds);

    std::vector<ReadyMessages> reading;
    ReadyMessages dialog;
    std::vector<ReadyMessages> showing;
};

// The least that an editor can cost: a bare dialog with the library's own templates, the same pages, tab control and
// grid, filled with ready-made rows and texts, and with no data behind it.
class FloorEditor
{
public:
    // state: what the real editor showed.
    FloorEditor(HMODULE library, const EditorKind& kind, const EditorState& state);

    // Runs modally until the dialog is cancelled.
    void Run(HWND owner);

    // Applies the change to the dialog that is running.
    void Apply(const FloorChange& change) const;

private:
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK PageProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND Create(UINT dialogTemplate, HWND parent, DLGPROC procedure, LPARAM param) const;
    void Init(HWND dialog);
    void CreateTab();
    void CreatePages();
    void CreateGrid(HWND page) const;
    WindowState BareWindow(UINT dialogTemplate, HWND parent) const;

    HMODULE m_library;
    const EditorKind& m_kind;
    std::wstring m_caption;
    std::vector<std::wstring> m_tabs;
    std::vector<ReadyMessages> m_dialogMessages; // one entry
    std::vector<ReadyMessages> m_pageMessages;

    HWND m_dialog = nullptr;
    HWND m_tab = nullptr;
    std::vector<HWND> m_pages;
    bool m_running = false;
};
