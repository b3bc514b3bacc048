#pragma once

#include "tests/editors/drivers/EditorWindow.h"

// The template's, which no language file replaces.
constexpr wchar_t kEditorCaption[] = L"打印模式";

// The print-mode editor as an operator sees it.
class PrintModeEditor : public EditorWindow
{
public:
    PrintModeEditor(Operator& op, const Window& dialog) : EditorWindow(op, dialog) {}

    ListBox Modes() const { return Dialog().Control<ListBox>(IDC_LIST_MODE); }

    Window CommonPage() const { return PageWith(IDC_CMB_PASS); }
    Window DataPage() const { return PageWith(IDC_GRID_DATA_MODE); }

    EditField Edit(int controlId) const { return CommonPage().Control<EditField>(controlId); }
    ComboBox Combo(int controlId) const { return CommonPage().Control<ComboBox>(controlId); }
    // The grid, once its tab is clicked.
    PropertyGrid Grid() const;

    ConfigDialog OpenAddConfig() const;
    ConfigDialog OpenRename(int row) const { return OpenConfig(row); }
};

PrintModeEditor ExpectPrintModeEditor(Operator& op);
