#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

// Ends the whole program when it lives longer than the limit: a thread that hangs in a window cannot be ended alone.
class Watchdog
{
public:
    // The description says on the console what was going on.
    Watchdog(std::chrono::seconds limit, std::function<std::string()> describe);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    void Watch(std::chrono::seconds limit);

    std::function<std::string()> m_describe;
    std::mutex m_mutex;
    std::condition_variable m_over;
    bool m_isOver = false;
    std::thread m_thread;
};
