#pragma once

#include <string>

// A text whose terminator is the last byte before a page that nobody may touch. Once it is forbidden, none of its own
// bytes may be touched either.
class GuardedText
{
public:
    GuardedText();
    ~GuardedText();
    GuardedText(const GuardedText&) = delete;
    GuardedText& operator=(const GuardedText&) = delete;

    // Up to kLongest bytes; the rest is cut.
    static constexpr std::size_t kLongest = 8000;
    const char* Hold(const std::string& text);
    void Forbid();

private:
    char* m_pages;
    bool m_isReadable = false;
};
