#include "tests/support/Watchdog.h"

#include <cstdio>
#include <windows.h>

Watchdog::Watchdog(std::chrono::seconds limit, std::function<std::string()> describe)
    : m_describe(std::move(describe)), m_thread([this, limit] { Watch(limit); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_over.notify_all();
    m_thread.join();
}

void Watchdog::Watch(std::chrono::seconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_over.wait_for(lock, limit, [this] { return m_isOver; }))
        return;
    std::printf("Watchdog: the test hangs; %s\n", m_describe().c_str());
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 1);
}
