#include "tests/robustness/GuardedText.h"

#include <cstring>
#include <new>
#include <windows.h>

namespace
{
constexpr std::size_t kPage = 4096;
constexpr std::size_t kTextPages = 2 * kPage;
static_assert(GuardedText::kLongest < kTextPages);
} // namespace

GuardedText::GuardedText()
    : m_pages(static_cast<char*>(VirtualAlloc(nullptr, kTextPages + kPage, MEM_RESERVE, PAGE_NOACCESS)))
{
    if (!m_pages || !VirtualAlloc(m_pages, kTextPages, MEM_COMMIT, PAGE_NOACCESS))
        throw std::bad_alloc();
}

GuardedText::~GuardedText()
{
    VirtualFree(m_pages, 0, MEM_RELEASE);
}

const char* GuardedText::Hold(const std::string& text)
{
    DWORD before = 0;
    VirtualProtect(m_pages, kTextPages, PAGE_READWRITE, &before);
    m_isReadable = true;
    const std::string held = text.substr(0, kLongest);
    char* const start = m_pages + kTextPages - held.size() - 1;
    std::memcpy(start, held.c_str(), held.size() + 1);
    return start;
}

void GuardedText::Forbid()
{
    DWORD before = 0;
    if (m_isReadable)
        VirtualProtect(m_pages, kTextPages, PAGE_NOACCESS, &before);
    m_isReadable = false;
}
