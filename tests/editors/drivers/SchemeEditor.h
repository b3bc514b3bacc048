#pragma once

#include "tests/editors/drivers/EditorWindow.h"

// A page of the scheme editors, named by a control that no other page has.
enum class SchemePage : int
{
    Common = IDC_CMB_SPEED,
    Mode = IDC_CMB_PRINT_MODE,
    Eclosion = IDC_CMB_ELC_TYPE,
    InkMultiple = IDC_CMB_INK_MUL_FIRST,
    InkCut = IDC_STATIC_PERCENT_FIRST,
    UvLamps = IDC_CHECK_LPRINT_LLIGHT,
    SmallFormat = IDC_CMB_SMALL_MODE
};

// What the factory and the user editor have in common, as an operator sees it.
class SchemeEditor : public EditorWindow
{
public:
    ListBox Schemes() const { return Dialog().Control<ListBox>(IDC_LIST_SCHEME); }

    // Opened by its tab, where it is not to be seen yet: an operator acts on what is to be seen.
    Window Open(SchemePage page) const;
    const std::vector<SchemePage>& Pages() const { return m_pages; }
    // As it is, behind another one or not.
    Window Page(SchemePage page) const { return PageWith(static_cast<int>(page)); }

    template <class Kind>
    Kind Control(SchemePage page, int controlId) const
    {
        return Open(page).Control<Kind>(controlId);
    }
    ComboBox Combo(SchemePage page, int controlId) const { return Control<ComboBox>(page, controlId); }
    EditField Edit(SchemePage page, int controlId) const { return Control<EditField>(page, controlId); }
    CheckBox Check(SchemePage page, int controlId) const { return Control<CheckBox>(page, controlId); }
    Trackbar Slider(SchemePage page, int controlId) const { return Control<Trackbar>(page, controlId); }

    // Chooses the type that opens the dialog for custom eclosions.
    Window OpenCustomEclosion() const;

protected:
    SchemeEditor(Operator& op, const Window& dialog, const std::vector<SchemePage>& pages)
        : EditorWindow(op, dialog), m_pages(pages)
    {
    }

private:
    std::vector<SchemePage> m_pages; // in tab order
};

// The pages whose controls an operator can change: one of each page stands for all.
std::vector<SchemePage> EditablePages(const SchemeEditor& editor);

// Its caption is the language file's, so it is known by its list of schemes. Both scheme editors have one.
Window ExpectSchemeEditor(Operator& op, const std::string& name);
