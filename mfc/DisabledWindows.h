#pragma once

#include "Undo.h"

#include <windows.h>

#include <vector>

// Keeps windows of this thread from the operator while a modal window is open.
class CDisabledWindows
{
public:
    // Enabled ones.
    explicit CDisabledWindows(const std::vector<HWND>& windows);

    // Gives back what was taken. To be called before the modal window dies, because the system looks for the next
    // window to activate while that one is being destroyed.
    void Enable() { m_enable.Run(); }

private:
    CUndo m_enable;
};

// The thread's windows that the operator can use, but for one.
std::vector<HWND> AfxEnabledWindows(HWND exempt);

// The thread's topmost window that the operator could use, an enabled one if there is any; null without one.
HWND AfxFindVisibleWindow();
