#pragma once

#include <afxwin.h>

#include <functional>

namespace test
{
// Calls a function whenever the thread has nothing else to do, whatever loop takes its messages: a dialog's, a message
// box's or a menu's. The system gives out timer messages last, after all that was posted, typed or is to be painted.
class IdleTimer
{
public:
    explicit IdleTimer(std::function<void()> onIdle) : m_onIdle(std::move(onIdle))
    {
        ::SetTimer(m_window, Id(), USER_TIMER_MINIMUM, &Procedure);
    }
    ~IdleTimer() { ::DestroyWindow(m_window); }
    IdleTimer(const IdleTimer&) = delete;
    IdleTimer& operator=(const IdleTimer&) = delete;

private:
    UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }
    static void CALLBACK Procedure(HWND, UINT, UINT_PTR id, DWORD) { reinterpret_cast<IdleTimer*>(id)->m_onIdle(); }

    std::function<void()> m_onIdle;
    HWND m_window =
        ::CreateWindowEx(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, AfxGetInstanceHandle(), nullptr);
};
} // namespace test
