#pragma once

#include <windows.h>

// While it lives, the thread's ANSI code page is that of the locale.
class ThreadLocale
{
public:
    explicit ThreadLocale(LCID locale) { SetThreadLocale(locale); }
    ~ThreadLocale() { SetThreadLocale(m_before); }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;

private:
    LCID m_before = GetThreadLocale();
};
