#include "dialogs/base/CodePage.h"

#include "dialogs/data/HostText.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

namespace
{
constexpr LCID kEnglish = 0x0409; // code page 1252
constexpr LCID kChinese = 0x0804; // code page 936

std::vector<int> rooms;
decltype(&WideCharToMultiByte) convert;

int WINAPI NarrowAndNoteTheRoom(UINT codePage, DWORD flags, const wchar_t* text, int size, char* target, int room,
                                const char* standIn, BOOL* usedStandIn)
{
    rooms.push_back(room);
    return convert(codePage, flags, text, size, target, room, standIn, usedStandIn);
}

class CodePage : public testing::Test
{
protected:
    ~CodePage() override { SetThreadLocale(m_before); }

    void Use(LCID locale) { ASSERT_TRUE(SetThreadLocale(locale)); }

private:
    LCID m_before = GetThreadLocale();
};

TEST_F(CodePage, OfAnEnglishThreadIs1252)
{
    Use(kEnglish);
    EXPECT_EQ(WideText("caf\xE9 \x80"), L"caf\x00E9 \x20AC");
    EXPECT_EQ(NarrowText(L"caf\x00E9 \x20AC"), "caf\xE9 \x80");
}

TEST_F(CodePage, OfAChineseThreadIs936)
{
    Use(kChinese);
    EXPECT_EQ(WideText("\xB4\xF2\xD3\xA1 A"), L"\x6253\x5370 A");
    EXPECT_EQ(NarrowText(L"\x6253\x5370 A"), "\xB4\xF2\xD3\xA1 A");
}

// What a host does that keeps its names in the code page of the process.
TEST_F(CodePage, OfAThreadWithTheSystemsLocaleIsTheOneOfTheProcess)
{
    std::string bytes;
    for (int byte = 0xFF; byte >= 0x20; --byte)
        bytes += static_cast<char>(byte);
    Use(kChinese);
    EXPECT_NE(WideText(bytes.c_str()), WideTextOf(bytes.c_str(), CP_ACP));
    Use(GetSystemDefaultLCID());
    EXPECT_EQ(WideText(bytes.c_str()), WideTextOf(bytes.c_str(), CP_ACP));
}

TEST_F(CodePage, ReplacesWhatItLacks)
{
    Use(kEnglish);
    EXPECT_EQ(NarrowText(L"a\x6253z"), "a?z");
}

TEST_F(CodePage, TakesBytesThatAreNoText)
{
    Use(kChinese);
    const auto text = WideText("A\xB4");
    ASSERT_TRUE(text);
    EXPECT_EQ(text->front(), L'A');
}

TEST_F(CodePage, TakesEmptyAndLongTexts)
{
    Use(kChinese);
    EXPECT_EQ(WideText(""), L"");
    EXPECT_EQ(NarrowText(L""), "");
    EXPECT_EQ(WideText(std::string(10000, 'x').c_str()), std::wstring(10000, L'x'));
    EXPECT_EQ(NarrowText(std::wstring(10000, L'\x6253').c_str())->size(), 20000u);
}

TEST_F(CodePage, GivesNothingForNull)
{
    wchar_t wide[4] = L"old";
    char narrow[4] = "old";
    EXPECT_EQ(ToWide(nullptr, wide, 4), nullptr);
    EXPECT_EQ(ToWide("a", nullptr, 4), nullptr);
    EXPECT_EQ(ToNarrow(nullptr, narrow, 4), nullptr);
    EXPECT_EQ(ToNarrow(L"a", nullptr, 4), nullptr);
    EXPECT_FALSE(WideText(nullptr));
    EXPECT_FALSE(NarrowText(nullptr));
}

TEST_F(CodePage, FillsATargetOfJustTheSize)
{
    Use(kChinese);
    wchar_t wide[3] = L"zz";
    char narrow[5] = "zzzz";
    EXPECT_EQ(ToWide("ab", wide, 3), wide);
    EXPECT_STREQ(wide, L"ab");
    EXPECT_EQ(ToNarrow(L"\x6253\x5370", narrow, 5), narrow);
    EXPECT_STREQ(narrow, "\xB4\xF2\xD3\xA1");
}

TEST_F(CodePage, EmptiesATargetThatIsTooSmall)
{
    Use(kChinese);
    wchar_t wide[3] = L"zz";
    char narrow[5] = "zzzz";
    EXPECT_EQ(ToWide("abc", wide, 3), nullptr);
    EXPECT_STREQ(wide, L"");
    EXPECT_EQ(ToNarrow(L"\x6253\x5370 ", narrow, 5), nullptr);
    EXPECT_STREQ(narrow, "");
    EXPECT_EQ(ToWide("", wide, 0), nullptr);
    EXPECT_EQ(ToNarrow(L"", narrow, 0), nullptr);
}

TEST_F(CodePage, RefusesTextsThatNoTargetHolds)
{
    EXPECT_TRUE(IsConvertibleLength(0x3FFFFFFF));
    EXPECT_FALSE(IsConvertibleLength(0x40000000));
}
// What the thread has where the process has declared UTF-8 as its code page.
TEST_F(CodePage, MayBeUtf8)
{
    EXPECT_EQ(WideTextOf("\xE6\x89\x93\xE5\x8D\xB0 A", CP_UTF8), L"\x6253\x5370 A");
    EXPECT_EQ(NarrowTextOf(L"\x6253\x5370 A", CP_UTF8), "\xE6\x89\x93\xE5\x8D\xB0 A");
    EXPECT_EQ(NarrowTextOf(L"\xD83D\xDE00", CP_UTF8), "\xF0\x9F\x98\x80");
    EXPECT_EQ(NarrowTextOf(L"", CP_UTF8), "");
    EXPECT_FALSE(NarrowTextOf(nullptr, CP_UTF8));
    EXPECT_FALSE(WideTextOf(nullptr, CP_UTF8));
}

TEST_F(CodePage, TakesTextsOfAnyLengthInUtf8)
{
    for (size_t length : {1u, 2u, 3u, 60u, 10000u})
    {
        const std::wstring wide(length, L'\x6253');
        const auto narrow = NarrowTextOf(wide.c_str(), CP_UTF8);
        ASSERT_TRUE(narrow) << length;
        EXPECT_EQ(narrow->size(), 3 * length);
        EXPECT_EQ(WideTextOf(narrow->c_str(), CP_UTF8), wide);
    }
}

TEST_F(CodePage, GivesTwoBytesACharacterBeforeItAsksForMore)
{
    const ImportHook hook(GetModuleHandleW(nullptr), "WideCharToMultiByte",
                          reinterpret_cast<const void*>(&NarrowAndNoteTheRoom));
    convert = hook.Original<decltype(convert)>();
    rooms.clear();
    EXPECT_TRUE(NarrowTextOf(L"\x6253", 936));
    EXPECT_EQ(rooms, std::vector<int>{4});
    rooms.clear();
    EXPECT_TRUE(NarrowTextOf(L"\x6253\x5370", CP_UTF8));
    EXPECT_EQ(rooms, (std::vector<int>{6, 0, 7}));
}

TEST_F(CodePage, ThatDoesNotExistConvertsNothing)
{
    EXPECT_FALSE(WideTextOf("A", 12345));
    EXPECT_FALSE(NarrowTextOf(L"A", 12345));
}

TEST_F(CodePage, DoesNotChangeTheSizeOfAGivenTarget)
{
    char narrow[5] = "zzzz";
    EXPECT_EQ(ToNarrow(L"\x6253\x5370", narrow, 5, CP_UTF8), nullptr);
    EXPECT_STREQ(narrow, "");
    EXPECT_EQ(ToNarrow(L"\x6253", narrow, 5, CP_UTF8), narrow);
    EXPECT_STREQ(narrow, "\xE6\x89\x93");
}
} // namespace
