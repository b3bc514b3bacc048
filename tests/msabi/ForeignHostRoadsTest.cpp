#include "tests/msabi/ForeignHostRoads.h"

#include <algorithm>

namespace
{
// The library has no use for it: a scheme that is copied takes the whole parameter block.
const Lines kPositionsWithoutUse = {"IUserScheme 37 GetCustomEclosionId"};
} // namespace

void ForeignHostRoads::StoreWhatIsShown(const SchemeEditor& editor, std::initializer_list<int> rows)
{
    const Lines before = m_host.Values();
    for (int row : rows)
        editor.Schemes().ClickRow(row);
    EXPECT_EQ(m_host.Values(), before);
    m_host.TakeChanges();
}

void ForeignHostRoads::ChangeSharedPages(const SchemeEditor& editor)
{
    editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Changed");
    editor.Combo(SchemePage::Common, IDC_CMB_SPEED).Pick(3);
    editor.Combo(SchemePage::Common, IDC_CMB_DIRECTION).Pick(2);
    editor.Combo(SchemePage::Common, IDC_CMB_MATERIAL).Pick(0);
    editor.Combo(SchemePage::Common, IDC_CMB_CHANNEL).Pick(1);
    editor.Combo(SchemePage::Eclosion, IDC_CMB_ELC_TYPE).Pick(0);
    editor.Combo(SchemePage::Eclosion, IDC_CMB_ELC_LEVEL).Pick(5);
    editor.Slider(SchemePage::Eclosion, IDC_SLIDER_CUSTOM_RANGE).Track(199);
    editor.Combo(SchemePage::Eclosion, IDC_CMB_DOT_MODE).Pick(3);
    editor.Combo(SchemePage::Eclosion, IDC_CMB_HEAD_ELC_TYPE).Pick(0);
    editor.Combo(SchemePage::InkMultiple, IDC_CMB_INK_MUL_FIRST + 2).Pick(7);
    editor.Slider(SchemePage::InkCut, IDC_SLIDER_INK_CUT_FIRST + 8).Track(12);
    for (int lamp : {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_RLIGHT})
        editor.Check(SchemePage::UvLamps, lamp).Click();
    editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET).Type(L"65535");
}

void ForeignHostRoads::ExpectValue(const std::string& line)
{
    const Lines values = m_host.Values();
    EXPECT_NE(std::find(values.begin(), values.end(), line), values.end()) << line << "\nis not among\n"
                                                                           << Text(values);
}

std::string ForeignHostRoads::Cuts(int first)
{
    std::string text = " cuts";
    for (int i = 0; i < 31; ++i)
        text += " " + std::to_string(first + i);
    return text + " 12";
}

TEST_F(ForeignHostRoads, CallEveryOperationByItsPosition)
{
    FactorySchemes();
    UserSchemes();
    PrintModes();
    EXPECT_EQ(Text(m_host.UncalledPositions()), Text(kPositionsWithoutUse));
    m_host.Release();
    EXPECT_EQ(m_host.Faults(), Lines());
}
