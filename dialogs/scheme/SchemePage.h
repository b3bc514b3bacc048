#pragma once

#include "dialogs/base/DlgBase.h"
#include "dialogs/scheme/SchemeRecords.h"

#include <afxdialogex.h>

// A page of the scheme editors. An editor sets m_bUserEditor once, before it creates the page; from then on it only
// names another scheme and calls the three operations. A page keeps no record: it looks its scheme up each time.
class CSchemePage : public CDialogEx, public CDlgBase
{
public:
    using CDialogEx::CDialogEx;

    // Names the scheme; with a window, sets the controls' state and loads too.
    void ShowScheme(int nSchemeId);

    // Enables the controls from the scheme id and the editor; nothing while they are not created.
    virtual void UpdateCtrlState() = 0;
    // Nothing for a negative id or, but where a page says so, a missing record.
    virtual void LoadFromScheme() = 0;
    // Writes the controls' values into the scheme. A page that is not editable writes nothing.
    virtual void SaveToScheme() = 0;

    int m_nSchemeId = NO_SCHEME;
    BOOL m_bUserEditor = FALSE; // there a factory scheme is a preset, shown read-only

protected:
    bool IsUserScheme() const { return m_nSchemeId >= FIRST_USER_SCHEME; }
    bool IsEditable() const { return m_nSchemeId >= 0 && (!m_bUserEditor || IsUserScheme()); }

    IUserScheme* UserScheme() const { return UserSchemeAt(m_nSchemeId - FIRST_USER_SCHEME); }
    // The factory scheme itself, or the one that the user scheme was made from.
    IPrintScheme* FactoryScheme() const;

    // Calls the visitor with the factory or the user record: two interfaces with operations of equal names. False
    // when the record is missing.
    template <class Visitor>
    bool WithScheme(Visitor visit) const
    {
        if (IsUserScheme())
            return VisitRecord(UserScheme(), visit);
        return VisitRecord(FactorySchemeAt(m_nSchemeId), visit);
    }

    // A value of the record, or the fallback when the record is missing.
    template <class Getter>
    int ValueOf(Getter get, int nFallback) const
    {
        int nValue = nFallback;
        WithScheme([&](auto& scheme) { nValue = get(scheme); });
        return nValue;
    }

    // A host's name in the language that is set; the name itself where the page's section does not have it.
    CString TranslatedName(const char* pszNarrow) const;

    // Adds a row with its item data and gives its position; a row that the control refuses has no data.
    static int AddRow(CComboBox& combo, LPCTSTR pszText, int nData);
    // The selected row's data; -1 without a selection.
    static int SelectedData(const CComboBox& combo);
    // The rows "off" and "on".
    void FillSwitch(CComboBox& combo, LPCTSTR pszOffDefault, LPCTSTR pszOnDefault);

    // Enables controls by their ids.
    template <class Ids>
    void EnableControls(const Ids& ids, bool bEnable)
    {
        for (int nId : ids)
            EnableControl(*GetDlgItem(nId), bEnable);
    }

    template <class Ids>
    void ShowControls(const Ids& ids, bool bShow)
    {
        for (int nId : ids)
            ShowControl(*GetDlgItem(nId), bShow);
    }

private:
    template <class Record, class Visitor>
    static bool VisitRecord(Record* pRecord, Visitor& visit)
    {
        if (pRecord)
            visit(*pRecord);
        return pRecord != nullptr;
    }
};
