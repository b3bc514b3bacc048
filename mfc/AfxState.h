// What the framework keeps between calls. One user-interface thread uses it, so it is plain data.
#pragma once

#include <afxwin.h>

#include <memory>
#include <unordered_map>
#include <vector>

struct AttachedObject
{
    CWnd* object;
    WNDPROC super; // the procedure that the window had before
};

struct PendingUndo
{
    const CUndo* scope;
    void (*function)(UndoData&);
    UndoData data;
};

struct AfxState
{
    std::unordered_map<HWND, AttachedObject> permanent;
    std::unordered_map<HWND, std::unique_ptr<CWnd>> temporary;
    std::vector<HWND> modalDialogs;    // running modal dialogs, innermost last
    HWND heldWindow = nullptr;         // window whose control notifications are held back by UpdateData
    MSG current = {};                  // message being handled, for CWnd::Default
    MSG filtered = {};                 // message that the host's filters have been asked about
    HHOOK filterHook = nullptr;        // keeps it from them while they would be asked again
    std::vector<PendingUndo> undos;    // of the scopes that are entered, innermost last
    std::vector<HWND> disabledWindows; // by the modal windows that are open, those of the innermost last
    const void* undoneBelow = nullptr; // the end of the scopes that are being undone
    int waitCursors = 0;
    HCURSOR cursorBeforeWait = nullptr;
    CWinApp* app = nullptr;
    HINSTANCE resources = nullptr;
};

AfxState& AfxGetState();

// The window that a modal window of the framework belongs to: the given parent's, else the innermost running modal
// dialog, else the active window's, else that of any window that the thread shows. Where it has pop-ups, the last one.
HWND AfxGetModalOwner(CWnd* parent);

// Whether the message comes from the keyboard or the mouse.
inline bool AfxIsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
