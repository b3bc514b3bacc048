#include "tests/base/LanguageCases.h"

#include "tests/support/Utf16.h"

#include <ostream>

namespace
{
std::string Line(const std::string& line)
{
    return "[S]\r\n" + line + "\r\n";
}

const std::wstring kLong(1500, L'x');

const std::vector<LanguageCase> kCases{
    {"Plain", ValueLine("v"), L"v"},
    {"CaseOfSection", ValueLine("v"), L"v", L"s"},
    {"CaseOfKey", Line("iDc_Static_Cfg=v"), L"v", L"S", L"IDC_STATIC_CFG"},
    {"BlanksInFile", "  [ S ]  \r\n \t k \t = \t a b \t \r\n", L"a b"},
    {"BlanksInQuery", ValueLine("v"), L"v", L" S ", L"\tk "},
    {"NoBreakSpaceIsNoBlank", Utf16(L"[S]\r\nk=\xA0v\xA0\r\n"), L"\xA0v\xA0"},
    {"EndOfFileMarkIsABlank", ValueLine("\x1Av\x1A"), L"v"},
    {"DoubleQuotes", ValueLine("\"  v  \""), L"  v  "},
    {"SingleQuotes", ValueLine("' v '"), L" v "},
    {"DifferentQuotesStay", ValueLine("\"v'"), L"\"v'"},
    {"OnePairOfQuotesGoes", ValueLine("\"\"v\"\""), L"\"v\""},
    {"OneQuoteStays", ValueLine("\""), L"\""},
    {"NothingInQuotes", ValueLine("\"\""), L""},
    {"CommentedKey", Line(";k=v"), L"DEF"},
    {"CommentAfterValueIsValue", ValueLine("v ;c"), L"v ;c"},
    {"CommentBeforeSection", "; words\r\n" + ValueLine("v"), L"v"},
    {"FirstOfTwoKeys", Line("k=1\r\nk=2"), L"1"},
    {"KeyWithoutEqualsHidesTheNext", Line("k\r\nk=2"), L"DEF"},
    {"FirstOfTwoSections", "[S]\r\nk=1\r\n[T]\r\n[S]\r\nk=2\r\n", L"1"},
    {"SecondSectionIsNeverSearched", "[S]\r\na=1\r\n[T]\r\n[s]\r\nk=2\r\n", L"DEF"},
    {"MissingKey", ValueLine("v"), L"DEF", L"S", L"other"},
    {"MissingSection", ValueLine("v"), L"DEF", L"other"},
    {"KeyOfAnotherSection", "[T]\r\nk=v\r\n[S]\r\n", L"DEF"},
    {"EmptyValue", ValueLine(""), L""},
    {"EmptyKey", Line("=v"), L"v", L"S", L""},
    {"BeforeAnySection", "k=v\r\n[S]\r\n", L"v", L""},
    {"EqualsInValue", ValueLine("a=b"), L"a=b"},
    {"UnclosedSectionIsAKey", Line("[T\r\nk=v"), L"v"},
    {"TextAfterSection", "[S] words\r\nk=v\r\n", L"v"},
    {"LastBracketClosesSection", "[S]x]\r\nk=v\r\n", L"v", L"S]x"},
    {"BackslashNStaysTwoCharacters", ValueLine("a\\nb"), L"a\\nb"},
    {"UnixLineEnds", "[S]\nk=v\n", L"v"},
    {"OldMacLineEnds", "[S]\rk=v\r", L"v"},
    {"NoLastLineEnd", "[S]\r\nk=v", L"v"},
    {"NulEndsValue", Line(std::string("k=a\0b", 5)), L"a"},
    {"BlankBeforeNulBelongsToKey", Line(std::string("k \0=v", 5)), L"DEF"},
    {"NulInEarlierLine", Line(std::string("j=a\0b\r\nk=v", 10)), L"v"},
    {"Length1022", ValueLine(std::string(1022, 'x')), kLong.substr(0, 1022)},
    {"Length1023", ValueLine(std::string(1023, 'x')), kLong.substr(0, 1023)},
    {"Length1024", ValueLine(std::string(1024, 'x')), kLong.substr(0, 1023)},
    {"Length1500", ValueLine(std::string(1500, 'x')), kLong.substr(0, 1023)},
    {"LengthQuoted1022", ValueLine("\"" + std::string(1022, 'x') + "\""), kLong.substr(0, 1022)},
    {"LengthQuoted1024", ValueLine("\"" + std::string(1024, 'x') + "\""), kLong.substr(0, 1023)},
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
} // namespace

void PrintTo(const LanguageCase& testCase, std::ostream* out)
{
    *out << testCase.name;
}

const std::vector<LanguageCase>& LanguageCases()
{
    return kCases;
}

std::string ValueLine(const std::string& value)
{
    return "[S]\r\nk=" + value + "\r\n";
}
