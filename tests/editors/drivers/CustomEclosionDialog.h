#pragma once

#include "tests/editors/drivers/FactoryEditor.h"

// The dialog for custom eclosions as an operator sees it.
class CustomEclosionDialog
{
public:
    CustomEclosionDialog(const FactoryEditor& editor, const Window& dialog) : m_editor(editor), m_dialog(dialog) {}

    const Window& Dialog() const { return m_dialog; }
    Operator& Op() const { return m_editor.Op(); }
    Window Control(int id) const { return m_dialog.Control(id); }
    void Press(int id) const { Control(id).Click(); }
    bool IsEnabled(int id) const { return Control(id).IsEnabled(); }
    Trackbar Slider(int id) const { return m_dialog.Control<Trackbar>(id); }
    std::wstring Range() const { return Control(IDC_EDIT_ECLO_RANGE).Text(); }

    void Save() const { m_editor.Confirm(m_dialog); }
    void Cancel() const { m_editor.Confirm(m_dialog, IDCANCEL); }

    template <std::size_t N>
    bool AllShown(const int (&ids)[N], bool shown) const
    {
        for (int id : ids)
            if (Control(id).IsVisible() != shown)
                return false;
        return true;
    }

    int ShownRadios() const;
    // The number of the checked radio, kNone for none.
    int CheckedRadio() const;

    // Width and height, as the trackbars stand.
    std::vector<int> Element1() const { return Sizes(IDC_SLIDER_ELEMENT1_W, IDC_SLIDER_ELEMENT1_H); }
    std::vector<int> Element2() const { return Sizes(IDC_SLIDER_ELEMENT2_W, IDC_SLIDER_ELEMENT2_H); }

    // The frame of a preview in the dialog's client coordinates.
    RECT Frame(int id) const;
    COLORREF Pixel(LONG x, LONG y) const;
    // What has to be painted anew when the trackbar was moved.
    RECT InvalidAfterMoving(int sliderId, int position) const;

private:
    std::vector<int> Sizes(int widthId, int heightId) const;

    const FactoryEditor& m_editor;
    Window m_dialog;
};
