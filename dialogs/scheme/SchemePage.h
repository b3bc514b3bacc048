#pragma once

#include "dialogs/base/Controls.h"
#include "dialogs/base/DlgBase.h"
#include "dialogs/data/Schemes.h"

#include <afxdialogex.h>

#include <optional>
#include <vector>

// How the rows of a list stand for a value.
struct RowView
{
    // Null where the page selects the row itself while it fills the list.
    void (*show)(CComboBox& list, int value);
    // Nothing where the list holds no value to store.
    std::optional<int> (*read)(const CComboBox& list);
};

// A row's position is the value.
inline constexpr RowView BY_POSITION = {
    [](CComboBox& list, int value) { list.SetCurSel(value); },
    [](const CComboBox& list) -> std::optional<int> { return list.GetCurSel(); },
};

// A row's data is the value; the page selects the row.
inline constexpr RowView BY_DATA = {
    nullptr,
    [](const CComboBox& list) -> std::optional<int> { return SelectedNumber(list); },
};

// A page of the scheme editors. An editor sets m_bUserEditor once, before it creates the page; from then on it only
// names another scheme and calls the three operations. A page keeps no record: it looks its scheme up each time.
class CSchemePage : public CDialogEx, public CDlgBase
{
public:
    explicit CSchemePage(UINT templateId) : CDialogEx(templateId) {}

    // Names the scheme; with a window, sets the controls' state and loads too.
    void ShowScheme(int schemeId);

    // Enables the controls from the scheme id and the editor; nothing while they are not created.
    virtual void UpdateCtrlState() = 0;
    // Nothing for a negative id or, but where a page says so, a missing record.
    virtual void LoadFromScheme() = 0;
    // Writes the controls' values into the scheme. A page that is not editable writes nothing.
    virtual void SaveToScheme() = 0;

    int m_nSchemeId = NO_SCHEME;
    BOOL m_bUserEditor = FALSE; // there a factory scheme is a preset, shown read-only

protected:
    BOOL OnInitDialog() override;
    // What the page needs before it loads for the first time.
    virtual void InitControls() {}

    bool IsUserScheme() const { return IsUserSchemeId(m_nSchemeId); }
    bool IsEditable() const { return m_nSchemeId >= 0 && (!m_bUserEditor || IsUserScheme()); }

    // Calls the visitor with the factory or the user record; false when the record is missing.
    template <class Visitor>
    bool WithScheme(Visitor visit) const
    {
        return VisitScheme(m_nSchemeId, visit);
    }

    // A value of the record, or the fallback when the record is missing.
    int ValueOf(SchemeField field, int fallback) const;

    // Bind the flat fields of the page, each with the member or list that holds its value, in the order in which they
    // are stored. Load and save go through what is bound. A number is exchanged with its control by the page.
    void BindNumber(SchemeField field, int& number);
    void BindList(SchemeField field, CComboBox& list, const RowView& view);

    // A user scheme shows the fields that only factory schemes have from its base scheme, and does not store them.
    void LoadFields(IPrintScheme& scheme);
    void LoadFields(IUserScheme& scheme);
    void SaveFields(IPrintScheme& scheme) const;
    void SaveFields(IUserScheme& scheme) const;

    // A host's name in the language that is set; the name itself where the page's section does not have it.
    CString TranslatedName(const char* narrow) const;

    // The rows "off" and "on".
    void FillSwitch(CComboBox& list, const wchar_t* offDefault, const wchar_t* onDefault);

    // Enables controls by their ids.
    template <class Ids>
    void EnableControls(const Ids& ids, bool enable)
    {
        for (int id : ids)
            EnableControl(*GetDlgItem(id), enable);
    }

    template <class Ids>
    void ShowControls(const Ids& ids, bool show)
    {
        for (int id : ids)
            ShowControl(*GetDlgItem(id), show);
    }

private:
    struct BoundField
    {
        SchemeField field;
        int* number;
        CComboBox* list;
        const RowView* view;
    };

    template <class Scheme>
    void LoadBound(Scheme& scheme, IPrintScheme* factory);
    template <class Scheme>
    void SaveBound(Scheme& scheme) const;
    static void ShowValue(const BoundField& bound, int value);
    static std::optional<int> ValueOnScreen(const BoundField& bound);

    std::vector<BoundField> m_vecFields;
};
