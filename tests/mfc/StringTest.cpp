#include <afxstr.h>

#include <gtest/gtest.h>

namespace
{
CString Trimmed(const wchar_t* text)
{
    CString string(text);
    return string.Trim();
}

TEST(String, NullTextIsTheEmptyOne)
{
    const wchar_t* const null = nullptr;
    CString string(null);
    EXPECT_TRUE(string.IsEmpty());
    string += null;
    EXPECT_EQ(0, string.GetLength());
    EXPECT_TRUE(string == null);
    EXPECT_EQ(0, string.Compare(null));
    EXPECT_EQ(0, string.CompareNoCase(null));
}

TEST(String, JoinsTexts)
{
    CString string(L"720");
    string += L"X";
    string += CString(L"600");
    EXPECT_STREQ(L"720X600", string);
    string.Empty();
    EXPECT_TRUE(string.IsEmpty());
}

TEST(String, ComparesTexts)
{
    EXPECT_TRUE(CString(L"pass") == CString(L"pass"));
    EXPECT_TRUE(CString(L"pass") != L"Pass");
    EXPECT_LT(CString(L"a").Compare(L"b"), 0);
    EXPECT_GT(CString(L"b").Compare(L"a"), 0);
}

TEST(String, ComparesWithoutCase)
{
    EXPECT_EQ(0, CString(L"nO").CompareNoCase(L"No"));
    EXPECT_NE(0, CString(L"No").CompareNoCase(L"None"));
    EXPECT_LT(CString(L"A").CompareNoCase(L"b"), 0);
}

TEST(String, FormatReadsWideTextForPlainS)
{
    CString string;
    string.Format(L"%s-%d", L"AB\u6253", 12);
    EXPECT_STREQ(L"AB\u6253-12", string);
}

TEST(String, FormatReadsNarrowTextForHs)
{
    CString string;
    string.Format(L"%hs|%ls", "narrow", L"wide");
    EXPECT_STREQ(L"narrow|wide", string);
}

TEST(String, FormatShowsANullArgument)
{
    CString string;
    string.Format(L"%s", static_cast<const wchar_t*>(nullptr));
    EXPECT_STREQ(L"(null)", string);
}

TEST(String, FormatWritesThreeExponentDigits)
{
    CString string;
    string.Format(L"%.*g", 6, 1e6);
    EXPECT_STREQ(L"1e+006", string);
}

// The lengths around the formatter's first buffer.
class StringLength : public testing::TestWithParam<size_t>
{
};

TEST_P(StringLength, FormatKeepsTheWholeResult)
{
    const std::wstring text(GetParam(), L'x');
    CString string;
    string.Format(L"%s", text.c_str());
    EXPECT_EQ(text, string.GetString());
}

INSTANTIATE_TEST_SUITE_P(Format, StringLength, testing::Values(0, 1, 254, 255, 256, 257, 511, 512, 10'000));

TEST(String, FormatMayReadTheStringItWritesTo)
{
    CString string(L"scheme");
    string.Format(L"%s(%d)", string.GetString(), 2);
    EXPECT_STREQ(L"scheme(2)", string);
}

TEST(String, AppendFormatKeepsWhatWasThere)
{
    CString string(L"1");
    string.AppendFormat(L",%d", 2);
    string.AppendFormat(L",%s", string.GetString());
    EXPECT_STREQ(L"1,2,1,2", string);
}

TEST(String, TrimRemovesWhiteSpaceAtBothEnds)
{
    EXPECT_STREQ(L"a b", Trimmed(L" \t\r\na b\n "));
    EXPECT_STREQ(L"name", Trimmed(L"\u00A0\u3000name\u3000\u00A0"));
}

TEST(String, TrimOfBlanksIsEmpty)
{
    EXPECT_TRUE(Trimmed(L" \t\u00A0\u3000").IsEmpty());
    EXPECT_TRUE(Trimmed(L"").IsEmpty());
}

TEST(String, TrimLeavesOtherTextsAlone)
{
    EXPECT_STREQ(L"name", Trimmed(L"name"));
}
} // namespace
