#pragma once

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

// The host's part in a measurement: the window that owns the dialog. A modal loop tells the owner whenever the dialog
// is idle, with nothing left to handle or paint. Use one object at a time.
class Stage
{
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    using Step = std::function<void(HWND dialog)>;

    // Runs a modal dialog. Each time the dialog is idle, the next step is called. After the last step the dialog is
    // cancelled.
    void Run(const std::function<void()>& modal, const std::vector<Step>& steps);

    HWND Owner() const { return m_owner; }

private:
    static LRESULT CALLBACK OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void AtRest(HWND dialog);

    HWND m_owner;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
};
