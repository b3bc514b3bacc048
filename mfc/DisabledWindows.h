#pragma once

#include <windows.h>

#include <vector>

// Keeps windows of this thread from the operator while a modal window is open.
class CDisabledWindows
{
public:
    // All that the operator could use, but for one.
    explicit CDisabledWindows(HWND exempt = nullptr);
    ~CDisabledWindows() { Enable(); }
    CDisabledWindows(const CDisabledWindows&) = delete;
    CDisabledWindows& operator=(const CDisabledWindows&) = delete;

    // One more, whether it can be seen or not.
    void Disable(HWND window);
    // Gives back what was taken. To be called before the modal window dies, because the system looks for the next
    // window to activate while that one is being destroyed.
    void Enable();

private:
    std::vector<HWND> m_vecWindows; // those that were enabled
};

// The thread's topmost window that the operator could use, an enabled one if there is any; null without one.
HWND AfxFindVisibleWindow();
