#include "dialogs/data/MisreadText.h"

#include <cstring>
#include <cwchar>
#include <gtest/gtest.h>
#include <windows.h>

namespace
{
// A page of memory with a forbidden one behind it: whoever reads past the end stops the test program.
class TextAtTheEndOfMemory : public testing::Test
{
protected:
    TextAtTheEndOfMemory()
    {
        SYSTEM_INFO info{};
        GetSystemInfo(&info);
        const size_t page = info.dwPageSize;
        m_memory = static_cast<char*>(VirtualAlloc(nullptr, 2 * page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        DWORD old = 0;
        m_end = m_memory && VirtualProtect(m_memory + page, page, PAGE_NOACCESS, &old) ? m_memory + page : nullptr;
    }

    ~TextAtTheEndOfMemory() override { VirtualFree(m_memory, 0, MEM_RELEASE); }

    const char* Narrow(const char* text) const
    {
        const size_t bytes = std::strlen(text) + 1;
        return static_cast<const char*>(std::memcpy(m_end - bytes, text, bytes));
    }

    const wchar_t* Wide(const wchar_t* text) const
    {
        const size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
        return static_cast<const wchar_t*>(std::memcpy(m_end - bytes, text, bytes));
    }

    char* m_memory = nullptr;
    char* m_end = nullptr;
};

TEST_F(TextAtTheEndOfMemory, IsNotReadPastItsTerminator)
{
    ASSERT_NE(m_end, nullptr);
    EXPECT_EQ(NarrowReadAsWide(Narrow("")), L"");
    EXPECT_EQ(NarrowReadAsWide(Narrow("ABC")), L"\x4241\x0043");
    EXPECT_EQ(NarrowReadAsWide(Narrow("ABCD")), L"\x4241\x4443");
    EXPECT_EQ(WideReadAsNarrow(Wide(L"")), "");
    EXPECT_EQ(WideReadAsNarrow(Wide(L"\x6253\x5370")), "\x53\x62\x70\x53");
}
} // namespace
