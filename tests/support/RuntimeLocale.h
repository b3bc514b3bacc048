#pragma once

#include <clocale>
#include <stdexcept>
#include <string>

// While it lives, the C library has that locale, for the whole process: Quorvane.dll shares the library with the tests.
class RuntimeLocale
{
public:
    explicit RuntimeLocale(const char* name)
    {
        if (!std::setlocale(LC_ALL, name))
            throw std::runtime_error(std::string("no locale ") + name);
    }
    ~RuntimeLocale() { std::setlocale(LC_ALL, m_before.c_str()); }
    RuntimeLocale(const RuntimeLocale&) = delete;
    RuntimeLocale& operator=(const RuntimeLocale&) = delete;

    std::string DecimalPoint() const { return std::localeconv()->decimal_point; }

private:
    std::string m_before = std::setlocale(LC_ALL, nullptr);
};
