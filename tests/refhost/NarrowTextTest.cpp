#include "refhost/NarrowText.h"

#include <gtest/gtest.h>
#include <windows.h>

using namespace refhost;

namespace
{

constexpr const char* kPrint = "\xE6\x89\x93\xE5\x8D\xB0"; // "print" in Chinese, UTF-8

UINT ThreadCodePage()
{
    wchar_t codePage[8] = {};
    GetLocaleInfoW(GetThreadLocale(), LOCALE_IDEFAULTANSICODEPAGE, codePage, 8);
    return static_cast<UINT>(wcstoul(codePage, nullptr, 10));
}

} // namespace

TEST(NarrowText, ConvertsToTheCodePageAndBack)
{
    EXPECT_EQ(NarrowFromUtf8(kPrint, 936), "\xB4\xF2\xD3\xA1");
    EXPECT_EQ(Utf8FromNarrow("\xB4\xF2\xD3\xA1", 936), kPrint);
    EXPECT_EQ(NarrowFromUtf8("\xC3\xA9", 1252), "\xE9");
    EXPECT_EQ(Utf8FromNarrow("\xE9", 1252), "\xC3\xA9");
    EXPECT_EQ(NarrowFromUtf8("", 936), "");
    EXPECT_EQ(Utf8FromNarrow("", 936), "");
}

TEST(NarrowText, RefusesWhatTheCodePageHasNot)
{
    EXPECT_FALSE(NarrowFromUtf8(kPrint, 1252));
    EXPECT_FALSE(NarrowFromUtf8("\xF0\x9F\x96\xA8", 936));
}

TEST(NarrowText, RefusesBytesThatAreNoText)
{
    EXPECT_FALSE(Utf8FromNarrow("\xB4", 936));
    EXPECT_FALSE(Utf8FromNarrow("\x80\xFF", 936));
}

TEST(NarrowText, EveryLocaleGivesTheThreadItsCodePage)
{
    const LCID before = GetThreadLocale();
    for (UINT codePage : {932u, 936u, 950u, 1251u, 1252u})
    {
        ASSERT_TRUE(LocaleOfCodePage(codePage));
        SetThreadLocale(*LocaleOfCodePage(codePage));
        EXPECT_EQ(ThreadCodePage(), codePage);
    }
    SetThreadLocale(before);
    EXPECT_FALSE(LocaleOfCodePage(65001));
}

TEST(NarrowText, NamesConvertByTheThreadsCodePage)
{
    const LCID before = GetThreadLocale();
    SetThreadLocale(*LocaleOfCodePage(936));
    wchar_t wide[8] = {};
    EXPECT_EQ(MultiByteToWideChar(CP_THREAD_ACP, 0, "\xB4\xF2\xD3\xA1", -1, wide, 8), 3);
    EXPECT_EQ(WideFromUtf8(kPrint), wide);
    SetThreadLocale(before);
}
