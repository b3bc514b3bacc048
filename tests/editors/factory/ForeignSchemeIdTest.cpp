#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
// No row of the factory editor names a user scheme, so the test gives the second row such an id.
class ForeignSchemeId : public FactorySchemeFixture, public testing::WithParamInterface<int>
{
protected:
    struct ModePage
    {
        Texts modes;
        int mode;
        int passCount;
        int resident;

        friend bool operator==(const ModePage& left, const ModePage& right)
        {
            return left.modes == right.modes && left.mode == right.mode && left.passCount == right.passCount &&
                   left.resident == right.resident;
        }
    };

    static ModePage Shown(const FactoryEditor& editor)
    {
        const Window page = editor.Page(SchemePage::Mode);
        const ComboBox modes = page.Control<ComboBox>(IDC_CMB_PRINT_MODE);
        return {modes.Rows(), modes.Selected(), page.Control<ComboBox>(IDC_CMB_PASS).Selected(),
                page.Control<ComboBox>(IDC_CMB_RESIDENT).Selected()};
    }

    static void GiveId(const FactoryEditor& editor, int row, int schemeId)
    {
        SendMessageW(editor.Schemes().Handle(), LB_SETITEMDATA, static_cast<WPARAM>(row), schemeId);
    }
};

TEST_P(ForeignSchemeId, LeavesTheModePageAsItWasAndStoresNoMode)
{
    m_machine.factorySchemes.resize(1002, Banner()); // more than have an id
    m_machine.configurations[0].modes[1].passCount = 8;
    m_machine.configurations[0].modes[1].resident = 1;
    Run([this](FactoryEditor& editor) {
        const ModePage before = Shown(editor);
        GiveId(editor, 1, GetParam());
        editor.Schemes().ClickRow(1);
        EXPECT_TRUE(Shown(editor) == before);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetModeIndex"), Calls());
}

INSTANTIATE_TEST_SUITE_P(Ids, ForeignSchemeId, testing::Values(1000, 1001, 1002, 0x7FFFFFFF),
                         [](const auto& id) { return std::to_string(id.param); });
} // namespace
