#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <windows.h>

// The thread on which a host calls the library, seen from other threads. It must be made on that thread, which must
// go on handling messages.
class UiThread
{
public:
    UiThread();
    ~UiThread();
    UiThread(const UiThread&) = delete;
    UiThread& operator=(const UiThread&) = delete;

    DWORD Id() const { return m_id; }

    // Runs the action on the thread between two messages, and returns when it is done.
    void Run(const std::function<void()>& action) const;

    // Returns when every message posted so far has been handled, and those that came of them too, or a modal loop has
    // begun inside one of them. False when the thread does not answer.
    bool Settle();

    // Handles messages until the condition holds; to be called on the thread itself. Somebody must post a message
    // after the condition has changed: Wake does.
    void PumpUntil(const std::function<bool()>& condition) const;
    void Wake() const;

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool PassMark();
    void Arrived(unsigned mark);

    DWORD m_id;
    HWND m_window;
    std::mutex m_mutex;
    std::condition_variable m_arrival;
    unsigned m_sent = 0;
    unsigned m_arrived = 0;
};
