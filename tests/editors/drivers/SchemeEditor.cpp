#include "tests/editors/drivers/SchemeEditor.h"

#include "tests/machines/CustomEclosionType.h"

#include <algorithm>

namespace
{
int TypicalControl(SchemePage page)
{
    switch (page)
    {
    case SchemePage::Common:
        return IDC_EDIT_NAME;
    case SchemePage::InkCut:
        return IDC_SLIDER_INK_CUT_FIRST;
    case SchemePage::SmallFormat:
        return IDC_EDIT_SMALL_OFFSET;
    default:
        return static_cast<int>(page);
    }
}
} // namespace

Window SchemeEditor::Open(SchemePage page) const
{
    const Window window = Page(page);
    if (!window.IsVisible())
        Tab().ClickTab(static_cast<int>(std::find(m_pages.begin(), m_pages.end(), page) - m_pages.begin()));
    if (!window.IsVisible())
        throw OperatorFailure("the page with control " + std::to_string(static_cast<int>(page)) +
                              " is not under its tab");
    return window;
}

std::vector<SchemePage> EditablePages(const SchemeEditor& editor)
{
    std::vector<SchemePage> pages;
    for (SchemePage page : editor.Pages())
        if (editor.Page(page).Control(TypicalControl(page)).IsEnabled())
            pages.push_back(page);
    return pages;
}

Window SchemeEditor::OpenCustomEclosion() const
{
    const ComboBox types = Combo(SchemePage::Eclosion, IDC_CMB_ELC_TYPE);
    types.Pick(types.RowWithData(kCustomEclosionType));
    return Op().ExpectDialogWith("the dialog for custom eclosions",
                                 [](const Window& dialog) { return dialog.Has(IDC_SLIDER_ECLO_RANGE); });
}

Window ExpectSchemeEditor(Operator& op, const std::string& name)
{
    return op.ExpectDialogWith(name, [](const Window& dialog) { return dialog.Has(IDC_LIST_SCHEME); });
}
