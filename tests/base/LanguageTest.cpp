#include "dialogs/base/Language.h"

#include "tests/support/BesideProgram.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace
{
constexpr const wchar_t* kFileName = L"Quorvane.ini";

std::wstring SettingsFile()
{
    return BesideProgram(L"Project.ini");
}

class LanguageTest : public testing::Test
{
protected:
    LanguageTest() { RemoveSettings(); }

    ~LanguageTest() override { RemoveSettings(); }

    void WriteSettings(const char* bytes) const
    {
        WriteBytes(SettingsFile(), bytes);
        ForgetSettings();
    }

    void RemoveSettings() const
    {
        DeleteFileW(SettingsFile().c_str());
        ForgetSettings();
    }

    std::wstring PathFor(const wchar_t* folder) const
    {
        SetLanguageFile(folder, kFileName);
        return LanguageFilePath();
    }

    std::int32_t UnitFor(const char* settings) const
    {
        WriteSettings(settings);
        SetLanguageFile(L"", kFileName);
        return MeasurementUnit();
    }

    TempFolder m_folder;

private:
    // The system may hold a settings file in memory for a while.
    void ForgetSettings() const { WritePrivateProfileStringW(nullptr, nullptr, nullptr, SettingsFile().c_str()); }
};

TEST_F(LanguageTest, StartsWithoutFileAndUnit)
{
    EXPECT_EQ(LanguageFilePath(), L"");
    EXPECT_EQ(MeasurementUnit(), 0);
    EXPECT_EQ(LookUpText(L"S", L"k", L"Cancel"), L"Cancel");
}

TEST_F(LanguageTest, TakesALanguageFolderWithAndWithoutTrailingBackslash)
{
    EXPECT_EQ(PathFor(L"C:\\Lang"), L"C:\\Lang\\Quorvane.ini");
    EXPECT_EQ(PathFor(L"C:\\Lang\\"), L"C:\\Lang\\Quorvane.ini");
    EXPECT_EQ(PathFor(L"C:/Lang/"), L"C:/Lang/\\Quorvane.ini");
}

TEST_F(LanguageTest, TakesAnEmptyAndANullLanguageFolder)
{
    EXPECT_EQ(PathFor(L""), L"\\Quorvane.ini");
    EXPECT_EQ(PathFor(nullptr), L"\\Quorvane.ini");
    EXPECT_EQ(LookUpText(L"S", L"k", L"Cancel"), L"Cancel");
}

TEST_F(LanguageTest, TakesALanguageFolderLongerThanAPathMayBe)
{
    const std::wstring folder = L"C:\\" + std::wstring(40000, L'a');
    EXPECT_EQ(PathFor(folder.c_str()), folder + L"\\Quorvane.ini");
    EXPECT_EQ(LookUpText(L"S", L"k", L"Cancel"), L"Cancel");
}

TEST_F(LanguageTest, ReadsTextsFromTheLanguageFolder)
{
    m_folder.Write(kFileName, "[DLG]\r\nOK=Fine\r\nTWO=one\\ntwo\r\n");
    for (const std::wstring& folder : {m_folder.Path(), m_folder.Path() + L"\\"})
    {
        SetLanguageFile(folder.c_str(), kFileName);
        EXPECT_EQ(LookUpText(L"DLG", L"OK", L""), L"Fine");
        EXPECT_EQ(LookUpText(L"DLG", L"TWO", L""), L"one\r\ntwo");
        EXPECT_EQ(LookUpText(L"DLG", L"NONE", L""), L"");
        EXPECT_EQ(LookUpText(L"DLG", L"NONE", L"a\\nb"), L"a\r\nb");
    }
}

TEST_F(LanguageTest, ReadsTheLanguageFileAfreshForEveryRun)
{
    m_folder.Write(kFileName, "[DLG]\r\nOK=Fine\r\n");
    SetLanguageFile(m_folder.Path().c_str(), kFileName);
    m_folder.Write(kFileName, "[DLG]\r\nOK=Good\r\n");
    EXPECT_EQ(LookUpText(L"DLG", L"OK", L""), L"Fine");
    SetLanguageFile(m_folder.Path().c_str(), kFileName);
    EXPECT_EQ(LookUpText(L"DLG", L"OK", L""), L"Good");
}

TEST_F(LanguageTest, CutsAValueBeforeItsLineBreaksAreMade)
{
    m_folder.Write(kFileName, "[DLG]\r\nLONG=" + std::string(1022, 'x') + "\\nrest\r\n");
    SetLanguageFile(m_folder.Path().c_str(), kFileName);
    EXPECT_EQ(LookUpText(L"DLG", L"LONG", L""), std::wstring(1022, L'x') + L"\\");
}

TEST_F(LanguageTest, ReadsTheUnitOfTheProjectSettings)
{
    EXPECT_EQ(UnitFor("[UNIT]\r\nMEASUREMENT_UNIT=1\r\n"), 1);
    EXPECT_EQ(UnitFor("[UNIT]\r\nMEASUREMENT_UNIT=-2\r\n"), -2);
    EXPECT_EQ(UnitFor("[UNIT]\r\nMEASUREMENT_UNIT=0\r\n"), 0);
    EXPECT_EQ(UnitFor("[UNIT]\r\nMEASUREMENT_UNIT=words\r\n"), 0);
    EXPECT_EQ(UnitFor("[OTHER]\r\nMEASUREMENT_UNIT=1\r\n"), 0);
}

TEST_F(LanguageTest, ForgetsTheUnitWhenTheSettingsAreGone)
{
    ASSERT_EQ(UnitFor("[UNIT]\r\nMEASUREMENT_UNIT=1\r\n"), 1);
    RemoveSettings();
    SetLanguageFile(L"", kFileName);
    EXPECT_EQ(MeasurementUnit(), 0);
}

TEST_F(LanguageTest, TakesUnitWordsFromTheirOwnSectionWhenAUnitIsSet)
{
    m_folder.Write(kFileName,
                   "[DLG]\r\nIDC_STATIC=dialog\r\nOK=Fine\r\n[MeasureWords]\r\nIDC_STATIC=inch\r\nOK=no\r\n");
    WriteSettings("[UNIT]\r\nMEASUREMENT_UNIT=1\r\n");
    SetLanguageFile(m_folder.Path().c_str(), kFileName);
    EXPECT_EQ(LookUpText(L"DLG", L"IDC_STATIC", L""), L"inch");
    EXPECT_EQ(LookUpText(L"DLG", L"idc_static", L""), L"dialog");
    EXPECT_EQ(LookUpText(L"DLG", L"OK", L""), L"Fine");
}

TEST_F(LanguageTest, TakesUnitWordsFromTheDialogsSectionWithoutAUnit)
{
    m_folder.Write(kFileName, "[DLG]\r\nIDC_STATIC=dialog\r\n[MeasureWords]\r\nIDC_STATIC=inch\r\n");
    SetLanguageFile(m_folder.Path().c_str(), kFileName);
    EXPECT_EQ(LookUpText(L"DLG", L"IDC_STATIC", L""), L"dialog");
}
} // namespace
