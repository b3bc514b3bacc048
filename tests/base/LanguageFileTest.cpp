#include "dialogs/base/LanguageFile.h"

#include "tests/base/IniGenerator.h"
#include "tests/base/TempFolder.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>
#include <windows.h>

namespace
{
std::wstring SystemText(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                        const std::wstring& defaultText)
{
    std::vector<wchar_t> buffer(1024, L'#');
    GetPrivateProfileStringW(section.c_str(), key.c_str(), defaultText.c_str(), buffer.data(), 1024, path.c_str());
    return buffer.data();
}

struct Case
{
    const char* name;
    std::string file;
    std::wstring expected;
    std::wstring section = L"S";
    std::wstring key = L"k";
    std::wstring defaultText = L"DEF";
};

void PrintTo(const Case& testCase, std::ostream* out)
{
    *out << testCase.name;
}

std::string Value(const std::string& value)
{
    return "[S]\r\nk=" + value + "\r\n";
}

std::string Line(const std::string& line)
{
    return "[S]\r\n" + line + "\r\n";
}

const std::wstring kLong(1500, L'x');

const std::vector<Case> kCases{
    {"Plain", Value("v"), L"v"},
    {"CaseOfSection", Value("v"), L"v", L"s"},
    {"CaseOfKey", Line("iDc_Static_Cfg=v"), L"v", L"S", L"IDC_STATIC_CFG"},
    {"BlanksInFile", "  [ S ]  \r\n \t k \t = \t a b \t \r\n", L"a b"},
    {"BlanksInQuery", Value("v"), L"v", L" S ", L"\tk "},
    {"NoBreakSpaceIsNoBlank", Utf16(L"[S]\r\nk=\xA0v\xA0\r\n"), L"\xA0v\xA0"},
    {"EndOfFileMarkIsABlank", Value("\x1Av\x1A"), L"v"},
    {"DoubleQuotes", Value("\"  v  \""), L"  v  "},
    {"SingleQuotes", Value("' v '"), L" v "},
    {"DifferentQuotesStay", Value("\"v'"), L"\"v'"},
    {"OnePairOfQuotesGoes", Value("\"\"v\"\""), L"\"v\""},
    {"OneQuoteStays", Value("\""), L"\""},
    {"NothingInQuotes", Value("\"\""), L""},
    {"CommentedKey", Line(";k=v"), L"DEF"},
    {"CommentAfterValueIsValue", Value("v ;c"), L"v ;c"},
    {"CommentBeforeSection", "; words\r\n" + Value("v"), L"v"},
    {"FirstOfTwoKeys", Line("k=1\r\nk=2"), L"1"},
    {"KeyWithoutEqualsHidesTheNext", Line("k\r\nk=2"), L"DEF"},
    {"FirstOfTwoSections", "[S]\r\nk=1\r\n[T]\r\n[S]\r\nk=2\r\n", L"1"},
    {"SecondSectionIsNeverSearched", "[S]\r\na=1\r\n[T]\r\n[s]\r\nk=2\r\n", L"DEF"},
    {"MissingKey", Value("v"), L"DEF", L"S", L"other"},
    {"MissingSection", Value("v"), L"DEF", L"other"},
    {"KeyOfAnotherSection", "[T]\r\nk=v\r\n[S]\r\n", L"DEF"},
    {"EmptyValue", Value(""), L""},
    {"EmptyKey", Line("=v"), L"v", L"S", L""},
    {"BeforeAnySection", "k=v\r\n[S]\r\n", L"v", L""},
    {"EqualsInValue", Value("a=b"), L"a=b"},
    {"UnclosedSectionIsAKey", Line("[T\r\nk=v"), L"v"},
    {"TextAfterSection", "[S] words\r\nk=v\r\n", L"v"},
    {"LastBracketClosesSection", "[S]x]\r\nk=v\r\n", L"v", L"S]x"},
    {"BackslashNStaysTwoCharacters", Value("a\\nb"), L"a\\nb"},
    {"UnixLineEnds", "[S]\nk=v\n", L"v"},
    {"OldMacLineEnds", "[S]\rk=v\r", L"v"},
    {"NoLastLineEnd", "[S]\r\nk=v", L"v"},
    {"NulEndsValue", Line(std::string("k=a\0b", 5)), L"a"},
    {"BlankBeforeNulBelongsToKey", Line(std::string("k \0=v", 5)), L"DEF"},
    {"NulInEarlierLine", Line(std::string("j=a\0b\r\nk=v", 10)), L"v"},
    {"Length1022", Value(std::string(1022, 'x')), kLong.substr(0, 1022)},
    {"Length1023", Value(std::string(1023, 'x')), kLong.substr(0, 1023)},
    {"Length1024", Value(std::string(1024, 'x')), kLong.substr(0, 1023)},
    {"Length1500", Value(std::string(1500, 'x')), kLong.substr(0, 1023)},
    {"LengthQuoted1022", Value("\"" + std::string(1022, 'x') + "\""), kLong.substr(0, 1022)},
    {"LengthQuoted1024", Value("\"" + std::string(1024, 'x') + "\""), kLong.substr(0, 1023)},
    {"LongLineBefore", Line("j=" + std::string(100000, 'x') + "\r\nk=v"), L"v"},
    {"LongKey", Line(std::string(3000, 'x') + "=v"), L"v", L"S", std::wstring(3000, L'x')},
    {"DefaultLosesTrailingBlanks", "", L" d", L"S", L"k", L" d  "},
    {"DefaultKeepsTrailingTab", "", L"d \t", L"S", L"k", L"d \t"},
    {"DefaultLosesQuotes", "", L" d ", L"S", L"k", L"\" d \""},
    {"DefaultOfBlanksKeepsOne", "", L" ", L"S", L"k", L"    "},
    {"DefaultIsCutToo", "", kLong.substr(0, 1023), L"S", L"k", kLong},
    {"EmptyFile", "", L"DEF"},
    {"MarkAlone", "\xFF\xFE", L"DEF"},
    {"HalfAMark", "\xFF", L"DEF"},
    {"Utf16WithMark", Utf16(L"[S]\r\nk=\x4E2D\x6587\r\n"), L"\x4E2D\x6587"},
    {"Utf16HighByteFirst", Utf16(L"[S]\r\nk=\x4E2D\x6587\r\n", true, true), L"\x4E2D\x6587"},
    {"Utf16WithoutMarkIsNotRead", Utf16(L"[S]\r\nk=v\r\n", false), L"DEF"},
    {"Utf8WithMark", "\xEF\xBB\xBF[S]\r\nk=\xE4\xB8\xAD\r\n", L"\x4E2D"},
    {"BrokenUtf8", "\xEF\xBB\xBF[S]\r\nk=\xE4\xB8z\xFF\r\n", L"\xFFFDz\xFFFD"},
};

class LanguageFileCase : public testing::TestWithParam<Case>
{
protected:
    TempFolder m_folder;
};

TEST_P(LanguageFileCase, ReadsAsTheSystemDoes)
{
    const Case& c = GetParam();
    const std::wstring path = m_folder.Write(L"case.ini", c.file);
    const std::wstring text = CLanguageFile(path).GetText(c.section, c.key, c.defaultText);
    EXPECT_EQ(text, c.expected);
    EXPECT_EQ(text, SystemText(path, c.section, c.key, c.defaultText));
}

INSTANTIATE_TEST_SUITE_P(Named, LanguageFileCase, testing::ValuesIn(kCases),
                         [](const auto& test) { return std::string(test.param.name); });

class GeneratedLanguageFile : public testing::TestWithParam<IniEncoding>
{
protected:
    void Compare(unsigned seed)
    {
        IniGenerator generator(seed);
        const std::wstring path = m_folder.Write(std::to_wstring(seed) + L".ini", generator.File(GetParam()));
        const CLanguageFile file(path);
        for (int i = 0; i < 12; ++i)
        {
            const std::wstring section = generator.QueryName();
            const std::wstring key = generator.QueryName();
            const std::wstring defaultText = generator.Default();
            ASSERT_EQ(file.GetText(section, key, defaultText), SystemText(path, section, key, defaultText))
                << "seed " << seed;
        }
        DeleteFileW(path.c_str());
    }

    TempFolder m_folder;
};

TEST_P(GeneratedLanguageFile, ReadsAsTheSystemDoes)
{
    const unsigned files = 500;
    const unsigned first = static_cast<unsigned>(GetParam()) * files;
    for (unsigned seed = first; seed < first + files && !HasFatalFailure(); ++seed)
        Compare(seed);
}

INSTANTIATE_TEST_SUITE_P(Encodings, GeneratedLanguageFile,
                         testing::Values(IniEncoding::Ansi, IniEncoding::Utf8, IniEncoding::Utf8WithMark,
                                         IniEncoding::Utf16WithMark, IniEncoding::Utf16HighByteFirst,
                                         IniEncoding::Utf16WithoutMark, IniEncoding::Junk));

class LanguageFileOnDisk : public testing::Test
{
protected:
    void ExpectBoth(const std::wstring& path, const std::wstring& expected) const
    {
        EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), expected);
        EXPECT_EQ(SystemText(path, L"S", L"k", L"DEF"), expected);
    }

    TempFolder m_folder;
};

TEST_F(LanguageFileOnDisk, ThatIsMissingGivesDefaults)
{
    ExpectBoth(m_folder.Path() + L"\\none.ini", L"DEF");
    ExpectBoth(m_folder.Path() + L"\\none\\none.ini", L"DEF");
    ExpectBoth(L"", L"DEF");
    EXPECT_EQ(CLanguageFile().GetText(L"S", L"k", L"DEF"), L"DEF");
}

TEST_F(LanguageFileOnDisk, ThatIsAFolderGivesDefaults)
{
    ExpectBoth(m_folder.Path(), L"DEF");
    ExpectBoth(m_folder.Path() + L"\\", L"DEF");
}

TEST_F(LanguageFileOnDisk, ThatIsLockedGivesDefaultsForTheRun)
{
    const std::wstring path = m_folder.Write(L"locked.ini", Value("v"));
    HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectBoth(path, L"DEF");
    CloseHandle(lock);
    ExpectBoth(path, L"v");
}

TEST_F(LanguageFileOnDisk, ThatATranslatorHasOpenIsRead)
{
    const std::wstring path = m_folder.Write(L"open.ini", Value("v"));
    HANDLE editor =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(editor, INVALID_HANDLE_VALUE);
    ExpectBoth(path, L"v");
    CloseHandle(editor);
}

TEST_F(LanguageFileOnDisk, ThatIsReadOnlyIsRead)
{
    const std::wstring path = m_folder.Write(L"readonly.ini", Value("v"));
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    ExpectBoth(path, L"v");
}

TEST_F(LanguageFileOnDisk, IsReadByARelativePath)
{
    const std::wstring path = m_folder.Write(L"relative.ini", Value("v"));
    wchar_t before[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, before);
    ASSERT_TRUE(SetCurrentDirectoryW(m_folder.Path().c_str()));
    ExpectBoth(L".\\relative.ini", L"v");
    SetCurrentDirectoryW(before);
}

TEST_F(LanguageFileOnDisk, WithAPathLongerThanAnyMayBeGivesDefaults)
{
    for (size_t length : {300u, 32767u, 40000u})
        ExpectBoth(m_folder.Path() + L"\\" + std::wstring(length, L'a') + L"\\Quorvane.ini", L"DEF");
}

TEST_F(LanguageFileOnDisk, IsReadByPathsOf259CharactersAtMost)
{
    const std::wstring folder = m_folder.Path() + L"\\" + std::wstring(240 - m_folder.Path().size(), L'a');
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + folder).c_str(), nullptr));
    for (size_t length : {258u, 259u, 260u, 300u})
    {
        const std::wstring path = folder + L"\\" + std::wstring(length - folder.size() - 1, L'b');
        WriteBytes(L"\\\\?\\" + path, Value("v"));
        ExpectBoth(path, length < MAX_PATH ? L"v" : L"DEF");
        EXPECT_TRUE(DeleteFileW((L"\\\\?\\" + path).c_str()));
    }
    RemoveDirectoryW((L"\\\\?\\" + folder).c_str());
}

TEST_F(LanguageFileOnDisk, IsReadOnce)
{
    const std::wstring path = m_folder.Write(L"once.ini", Value("v"));
    const CLanguageFile file(path);
    WriteBytes(path, Value("changed"));
    EXPECT_EQ(file.GetText(L"S", L"k", L""), L"v");
    DeleteFileW(path.c_str());
    EXPECT_EQ(file.GetText(L"S", L"k", L""), L"v");
}

TEST_F(LanguageFileOnDisk, WithHalfACharacterAtItsEndLosesIt)
{
    const std::wstring path = m_folder.Write(L"odd.ini", Utf16(L"[S]\r\nk=v") + "x");
    EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), L"v");
}

TEST(LineBreaks, StandForBackslashN)
{
    EXPECT_EQ(ExpandLineBreaks(L"one\\ntwo"), L"one\r\ntwo");
    EXPECT_EQ(ExpandLineBreaks(L"\\n\\n"), L"\r\n\r\n");
    EXPECT_EQ(ExpandLineBreaks(L"a\\\\nb"), L"a\\\r\nb");
}

TEST(LineBreaks, LeaveOtherTextAlone)
{
    EXPECT_EQ(ExpandLineBreaks(L""), L"");
    EXPECT_EQ(ExpandLineBreaks(L"n\\N\\t\\"), L"n\\N\\t\\");
    EXPECT_EQ(ExpandLineBreaks(L"a\nb"), L"a\nb");
}
} // namespace
