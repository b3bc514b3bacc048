#include "refhost/TextConversion.h"

#include <gtest/gtest.h>

#include "refhost/NarrowText.h"
#include "tests/support/ThreadLocale.h"

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

TEST(TextConversion, EveryLocaleGivesTheThreadItsCodePage)
{
    for (UINT codePage : {932u, 936u, 950u, 1251u, 1252u})
    {
        ASSERT_TRUE(LocaleOfCodePage(codePage));
        const ThreadLocale locale(*LocaleOfCodePage(codePage));
        EXPECT_EQ(ThreadCodePage(), codePage);
    }
    EXPECT_FALSE(LocaleOfCodePage(65001));
}

TEST(TextConversion, NamesConvertByTheThreadsCodePage)
{
    const ThreadLocale chinese(*LocaleOfCodePage(936));
    wchar_t wide[8] = {};
    EXPECT_EQ(MultiByteToWideChar(CP_THREAD_ACP, 0, "\xB4\xF2\xD3\xA1", -1, wide, 8), 3);
    EXPECT_EQ(WideFromUtf8(kPrint), wide);
}
