#pragma once

#include <windows.h>

// The main window of a host that is built on another framework: a plain one, with a child that has the focus.
class HostWindow
{
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    HWND Handle() const { return m_handle; }
    HWND Child() const { return m_child; }
    bool IsEnabled() const { return IsWindowEnabled(m_handle) != FALSE; }

private:
    HWND m_handle;
    HWND m_child;
};
