#include "tests/editors/drivers/PrintModeEditor.h"

PropertyGrid PrintModeEditor::Grid() const
{
    if (Tab().Selected() != 1)
        Tab().ClickTab(1);
    return DataPage().Control<PropertyGrid>(IDC_GRID_DATA_MODE);
}

ConfigDialog PrintModeEditor::OpenAddConfig() const
{
    Press(IDC_BTN_ADD_CFG);
    return ConfigDialog(Op().ExpectDialog(kAddConfigCaption));
}

PrintModeEditor ExpectPrintModeEditor(Operator& op)
{
    return {op, op.ExpectDialog(kEditorCaption)};
}
