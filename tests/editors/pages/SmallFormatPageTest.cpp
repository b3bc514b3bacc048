#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
ComboBox Switch(const SchemeEditor& editor)
{
    return editor.Combo(SchemePage::SmallFormat, IDC_CMB_SMALL_MODE);
}

EditField Offset(const SchemeEditor& editor)
{
    return editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET);
}

class SmallFormatPage : public FactorySchemeFixture
{
};

TEST_F(SmallFormatPage, ShowsSwitchAndOffset)
{
    Poster().smallFormatMode = 0;
    Poster().smallFormatOffset = 65535;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Switch(editor).Rows(), (Texts{L"Off", L"On"}));
        EXPECT_EQ(Switch(editor).Selected(), 0);
        EXPECT_EQ(Offset(editor).Text(), L"65535");
        EXPECT_TRUE(Switch(editor).IsEnabled());
        EXPECT_TRUE(Offset(editor).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(SmallFormatPage, StoresSwitchAndOffset)
{
    Run([](FactoryEditor& editor) {
        Switch(editor).Pick(1);
        Offset(editor).Type(L"123");
        editor.SaveAndQuit();
    });
    Poster().smallFormatMode = 1;
    Poster().smallFormatOffset = 123;
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(SmallFormatPage, WithoutTextsHasTwoEmptyRowsAndTheSwitchOnUntilASchemeIsShown)
{
    RemoveTexts();
    m_machine.factorySchemes.clear();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Switch(editor).Rows(), Texts(2));
        EXPECT_EQ(Switch(editor).Selected(), 1);
        EXPECT_EQ(Offset(editor).Text(), L"0");
        EXPECT_FALSE(Switch(editor).IsEnabled());
        EXPECT_FALSE(Offset(editor).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(SmallFormatPage, OffsetIsStoredInSixteenBits)
{
    const std::pair<std::wstring, std::wstring> offsets[] = {
        {L"65537", L"1"}, {L"-1", L"65535"}, {L"-65536", L"0"}, {L" 7 ", L"7"}, {L"99999999999", L"65535"}};
    Run([&](FactoryEditor& editor) {
        for (const auto& [typed, shown] : offsets)
        {
            Offset(editor).Type(typed);
            editor.Schemes().ClickRow(0);
            EXPECT_EQ(Offset(editor).Text(), shown);
        }
        editor.Cancel();
    });
}

TEST_F(SmallFormatPage, TextThatIsNoNumberKeepsTheOffsetAfterOnePrompt)
{
    for (const wchar_t* text : {L"abc", L"", L"1.5", L"12x"})
    {
        Run([&](FactoryEditor& editor) {
            Switch(editor).Pick(1);
            Offset(editor).Type(text);
            editor.Schemes().ClickRow(1);
            editor.Op().AnswerMessageBox();
            Poster().smallFormatMode = 1;
            EXPECT_EQ(Changes(), Stored(0));
            editor.Cancel();
        });
    }
}

TEST_F(SmallFormatPage, SwitchWithoutARowIsStoredAsTheByteOfNone)
{
    Poster().smallFormatMode = 2;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Switch(editor).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetSmallFormatMode"), Calls{"IPrintScheme[0].SetSmallFormatMode(255)"});
}
} // namespace
