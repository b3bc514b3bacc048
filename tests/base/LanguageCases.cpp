#include "tests/base/LanguageCases.h"

#include "tests/support/Utf16.h"

#include <cstring>
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
    {"NoLastLineEnd", "[S]\r\nk=v", L"v"},
    {"UnixLineEnds", "[S]\nk=v\n", L"v"},
    {"OldMacLineEnds", "[S]\rk=v\r", L"v"},
    {"MissingSection", ValueLine("v"), L"DEF", L"other"},
    {"MissingKey", ValueLine("v"), L"DEF", L"S", L"other"},
    {"EmptyFile", "", L"DEF"},

    {"CaseOfSection", ValueLine("v"), L"v", L"s"},
    {"FirstBracketClosesSection", "[S]x]\r\nk=v\r\n", L"v"},
    {"LastBracketClosesNoSection", "[S]x]\r\nk=v\r\n", L"DEF", L"S]x"},
    {"UnclosedSection", "[T\r\nk=v\r\n", L"v", L"T"},
    {"UnclosedSectionLosesBlanks", "[ T \t\r\nk=v\r\n", L"v", L"T"},
    {"UnclosedSectionEndsTheOneBefore", Line("[T\r\nk=v"), L"DEF"},
    {"UnopenedSection", "S]\r\nk=v\r\n", L"DEF"},
    {"UnopenedSectionIsAKey", Line("T]\r\nk=v"), L"v"},
    {"TextBehindSection", "[S] words\r\nk=v\r\n", L"v"},
    {"KeyBehindSection", "[S]k=v\r\n", L"DEF"},
    {"OpeningBracketInSection", "[[S]\r\nk=v\r\n", L"v", L"[S"},
    {"QuotesInSection", "[\"S\"]\r\nk=v\r\n", L"v", L"\"S\""},
    {"SemicolonInSection", "[;S]\r\nk=v\r\n", L"v", L";S"},
    {"EmptySection", "[]\r\nk=v\r\n", L"v", L""},
    {"SectionOfBlanks", "[ \t]\r\nk=v\r\n", L"v", L""},
    {"UnclosedEmptySection", "[\r\nk=v\r\n", L"v", L""},
    {"BlanksAroundSection", " \t\v[ \t\vS \t\v]\r\nk=v\r\n", L"v"},
    {"BeforeAnySection", "k=v\r\n[S]\r\n", L"DEF", L""},
    {"FirstOfTwoSections", "[S]\r\nk=1\r\n[T]\r\n[S]\r\nk=2\r\n", L"1"},
    {"SecondSectionIsNeverSearched", "[S]\r\na=1\r\n[T]\r\n[s]\r\nk=2\r\n", L"DEF"},
    {"KeyOfAnotherSection", "[T]\r\nk=v\r\n[S]\r\n", L"DEF"},

    {"CaseOfKey", Line("iDc_Static_Cfg=v"), L"v", L"S", L"IDC_STATIC_CFG"},
    {"BlanksAroundKey", Line(" \t\vk \t\v=v"), L"v"},
    {"QuotesBelongToKey", Line("\"k\"=v"), L"v", L"S", L"\"k\""},
    {"QuotedKeyHasNoOtherName", Line("\"k\"=v"), L"DEF"},
    {"FirstOfTwoKeys", Line("k=1\r\nk=2"), L"1"},
    {"KeyWithoutEqualsHidesTheNext", Line("k\r\nk=2"), L"DEF"},
    {"EmptyKey", Line("=v"), L"v", L"S", L""},
    {"LongKey", Line(std::string(3000, 'x') + "=v"), L"v", L"S", std::wstring(3000, L'x')},

    {"CommentedKey", Line(";k=v"), L"DEF"},
    {"CommentedKeyByItsLine", Line(";k=v"), L"DEF", L"S", L";k"},
    {"CommentBehindBlanks", Line(" \t\v;k=v"), L"DEF", L"S", L";k"},
    {"CommentHidesNoKey", Line(";k=1\r\nk=2"), L"2"},
    {"CommentedSection", Line(";[T]\r\nk=v"), L"v"},
    {"CommentBeforeSection", "; words\r\n" + ValueLine("v"), L"v"},
    {"NumberSignStartsNoComment", Line("#k=v"), L"v", L"S", L"#k"},
    {"SemicolonInKey", Line("k ;c=v"), L"v", L"S", L"k ;c"},
    {"SemicolonInValue", ValueLine("v ;c"), L"v ;c"},
    {"SemicolonBeforeValue", ValueLine(";v"), L";v"},

    {"SpacesAroundWhatIsAsked", ValueLine("v"), L"v", L" S  ", L"  k "},
    {"TabBeforeAskedSection", ValueLine("v"), L"DEF", L"\tS"},
    {"TabBehindAskedSection", ValueLine("v"), L"DEF", L"S\t"},
    {"VerticalTabBeforeAskedSection", ValueLine("v"), L"DEF", L"\vS"},
    {"LineEndBehindAskedSection", ValueLine("v"), L"DEF", L"S\r\n"},
    {"TabBeforeAskedKey", ValueLine("v"), L"DEF", L"S", L"\tk"},
    {"TabBehindAskedKey", ValueLine("v"), L"DEF", L"S", L"k\t"},
    {"VerticalTabBehindAskedKey", ValueLine("v"), L"DEF", L"S", L"k\v"},
    {"LineEndBeforeAskedKey", ValueLine("v"), L"DEF", L"S", L"\nk"},

    {"EmptyValue", ValueLine(""), L""},
    {"EqualsInValue", ValueLine("a=b"), L"a=b"},
    {"BackslashNStaysTwoCharacters", ValueLine("a\\nb"), L"a\\nb"},
    {"BlanksAroundValue", ValueLine(" \t\va b \t\v"), L"a b"},
    {"FormFeedAroundValue", ValueLine("\fv\f"), L"\fv\f"},
    {"EndOfFileMarkAroundValue", ValueLine("\x1Av\x1A"), L"\x1Av\x1A"},
    {"NoBreakSpaceAroundValue", Utf16(L"[S]\r\nk=\xA0v\xA0\r\n"), L"\xA0v\xA0"},
    {"DoubleQuotes", ValueLine(" \"  v  \" "), L"  v  "},
    {"SingleQuotes", ValueLine("' v '"), L" v "},
    {"DifferentQuotesStay", ValueLine("\"v'"), L"\"v'"},
    {"QuotesInTheWrongOrderStay", ValueLine("'\" v '\""), L"'\" v '\""},
    {"OnePairOfQuotesGoes", ValueLine("\"\"v\"\""), L"\"v\""},
    {"OneQuoteStays", ValueLine("\""), L"\""},
    {"NothingInQuotes", ValueLine("\"\""), L""},
    {"Length1022", ValueLine(std::string(1022, 'x')), kLong.substr(0, 1022)},
    {"Length1023", ValueLine(std::string(1023, 'x')), kLong.substr(0, 1023)},
    {"Length1024", ValueLine(std::string(1024, 'x')), kLong.substr(0, 1023)},
    {"Length1500", ValueLine(std::string(1500, 'x')), kLong.substr(0, 1023)},
    {"LengthQuoted1022", ValueLine("\"" + std::string(1022, 'x') + "\""), kLong.substr(0, 1022)},
    {"LengthQuoted1023", ValueLine("\"" + std::string(1023, 'x') + "\""), kLong.substr(0, 1023)},
    {"LengthQuoted1024", ValueLine("\"" + std::string(1024, 'x') + "\""), kLong.substr(0, 1023)},
    {"LongLineBefore", Line("j=" + std::string(100000, 'x') + "\r\nk=v"), L"v"},
    {"NulEndsValue", Line(std::string("k=a\0b", 5)), L"a"},
    {"BlankBeforeNulBelongsToKey", Line(std::string("k \0=v", 5)), L"DEF"},
    {"NulInEarlierLine", Line(std::string("j=a\0b\r\nk=v", 10)), L"v"},

    {"DefaultLosesTrailingSpaces", "", L" d", L"S", L"k", L" d  "},
    {"DefaultKeepsTrailingTab", "", L"d \t", L"S", L"k", L"d \t"},
    {"DefaultKeepsTrailingLineEnd", "", L"d\v\r\n", L"S", L"k", L"d\v\r\n"},
    {"DefaultKeepsQuotes", "", L"\" d \"", L"S", L"k", L"\" d \""},
    {"DefaultOfSpaces", "", L"", L"S", L"k", L"    "},
    {"DefaultIsCutToo", "", kLong.substr(0, 1023), L"S", L"k", kLong},

    {"MarkAlone", "\xFF\xFE", L"DEF"},
    {"HalfAMark", "\xFF", L"DEF"},
    {"Utf16WithMark", Utf16(L"[S]\r\nk=\x4E2D\x6587\r\n"), L"\x4E2D\x6587"},
    {"Utf16HighByteFirst", Utf16(L"[S]\r\nk=v\r\n", true, true), L"DEF"},
    {"Utf16HighByteFirstBehindAnEmptyLine", Utf16(L"\r\n[S]\r\nk=v\r\n", true, true), L"DEF"},
    {"Utf16WithoutMarkIsNotRead", Utf16(L"[S]\r\nk=v\r\n", false), L"DEF"},
    {"Utf8WithMark", "\xEF\xBB\xBF[S]\r\nk=\xE4\xB8\xAD\r\n", L"\x4E2D"},
    {"Utf8WithMarkBeforeAnEmptyLine", "\xEF\xBB\xBF\r\n" + ValueLine("v"), L"v"},
    {"BrokenUtf8", "\xEF\xBB\xBF[S]\r\nk=\xE4\xB8z\xFF\r\n", L"\xFFFDz\xFFFD"},
};

const std::vector<KnownDifference> kKnownDifferences{
    {"FirstBracketClosesSection", L"DEF", kAnyWine},
    {"LastBracketClosesNoSection", L"v", kAnyWine},
    {"UnclosedSection", L"DEF", kAnyWine},
    {"UnclosedSectionLosesBlanks", L"DEF", kAnyWine},
    {"UnclosedSectionEndsTheOneBefore", L"v", kAnyWine},
    {"EmptySection", L"DEF", kAnyWine},
    {"SectionOfBlanks", L"DEF", kAnyWine},
    {"BeforeAnySection", L"v", kAnyWine},
    {"CommentedKeyByItsLine", L"v", kAnyWine},
    {"CommentBehindBlanks", L"v", kAnyWine},
    {"TabBeforeAskedSection", L"v", kAnyWine},
    {"TabBehindAskedSection", L"v", kAnyWine},
    {"VerticalTabBeforeAskedSection", L"v", kAnyWine},
    {"LineEndBehindAskedSection", L"v", kAnyWine},
    {"TabBeforeAskedKey", L"v", kAnyWine},
    {"TabBehindAskedKey", L"v", kAnyWine},
    {"VerticalTabBehindAskedKey", L"v", kAnyWine},
    {"LineEndBeforeAskedKey", L"v", kAnyWine},
    {"FormFeedAroundValue", L"v", kAnyWine},
    {"EndOfFileMarkAroundValue", L"v", kAnyWine},
    {"LengthQuoted1023", kLong.substr(0, 1022), kAnyWine},
    {"DefaultKeepsQuotes", L" d ", kAnyWine},
    {"DefaultOfSpaces", L" ", kAnyWine},
    {"Utf16HighByteFirst", L"v", kAnyWine},
    {"Utf16HighByteFirstBehindAnEmptyLine", L"v", kAnyWine},
    {"Utf8WithMark", L"DEF", kWindows},
    {"BrokenUtf8", L"DEF", kWindows},
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

const std::vector<KnownDifference>& KnownDifferences()
{
    return kKnownDifferences;
}

std::wstring AnswerOf(unsigned wineVersion, const LanguageCase& testCase)
{
    for (const KnownDifference& difference : kKnownDifferences)
        if (std::strcmp(difference.testCase, testCase.name) == 0 && difference.systems.Have(wineVersion))
            return difference.answer;
    return testCase.expected;
}

std::string ValueLine(const std::string& value)
{
    return "[S]\r\nk=" + value + "\r\n";
}
