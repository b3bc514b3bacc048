// CMFCPropertyGridCtrl: a grid of names and values, each value picked from a list of texts.
// Supported: one level of rows, two columns with a header whose divider can be dragged, option lists opened in place
// by mouse or keyboard, bold values for what the operator changed, custom colours, AFX_WM_PROPERTY_CHANGED.
// Not supported: groups, the description area, typing into a value, sorting. EnableDescriptionArea, SetAlphabeticMode
// and AllowEdit therefore take only FALSE; SetCustomColors uses the background, text, group background and line
// colours. Differs: a value is a text (CString) instead of a variant, and the value that counts as not modified is the
// one that the row has when it is added to the grid. Keys: the arrows, Page Up, Page Down, Home and End move between
// the rows; F4, Alt+Down, F2 and Space open the list. A double click takes the next option.
#pragma once

#include <afxwin.h>

#include "GdiObjects.h"
#include "PropertyGridDropDown.h"
#include "PropertyGridLayout.h"
#include "PropertyGridPainter.h"

#include <memory>
#include <vector>

// Sent to the grid's parent after the operator changed a value: wParam is the grid's id, lParam the property.
extern UINT AFX_WM_PROPERTY_CHANGED; // 0 until the first grid is created

class CMFCPropertyGridCtrl;

class CMFCPropertyGridProperty
{
public:
    CMFCPropertyGridProperty(const CString& name, const CString& value, const wchar_t* description = nullptr,
                             DWORD_PTR data = 0);
    CMFCPropertyGridProperty(const CMFCPropertyGridProperty&) = delete;
    CMFCPropertyGridProperty& operator=(const CMFCPropertyGridProperty&) = delete;
    ~CMFCPropertyGridProperty() = default;

    const CString& GetName() const { return m_strName; }
    DWORD_PTR GetData() const { return m_nData; }

    const CString& GetValue() const { return m_strValue; }
    void SetValue(const CString& value); // sends nothing
    void SetOriginalValue(const CString& value) { m_strOriginal = value; }
    BOOL IsModified() const { return m_strValue != m_strOriginal; }

    // FALSE when the text is there already and only new ones are wanted.
    BOOL AddOption(const wchar_t* option, BOOL insertUnique = TRUE);
    const std::vector<CString>& GetOptions() const { return m_vecOptions; }
    void AllowEdit(BOOL allow = TRUE);

private:
    friend class CMFCPropertyGridCtrl;

    CString m_strName;
    CString m_strValue;
    CString m_strOriginal;
    DWORD_PTR m_nData;
    std::vector<CString> m_vecOptions;
    CMFCPropertyGridCtrl* m_pGrid = nullptr;
};

class CMFCPropertyGridCtrl : public CWnd
{
public:
    CMFCPropertyGridCtrl() = default;
    CMFCPropertyGridCtrl(const CMFCPropertyGridCtrl&) = delete;
    CMFCPropertyGridCtrl& operator=(const CMFCPropertyGridCtrl&) = delete;
    ~CMFCPropertyGridCtrl() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    void EnableHeaderCtrl(BOOL enable = TRUE, const wchar_t* leftColumn = L"Property",
                          const wchar_t* rightColumn = L"Value");
    void EnableDescriptionArea(BOOL enable = TRUE);
    void SetAlphabeticMode(BOOL set = TRUE);
    void SetVSDotNetLook(BOOL set = TRUE); // flat, with a strip beside the names
    void MarkModifiedProperties(BOOL mark = TRUE, BOOL redraw = TRUE);
    // (COLORREF)-1 leaves a colour to the system.
    void SetCustomColors(COLORREF background, COLORREF text, COLORREF groupBackground, COLORREF groupText,
                         COLORREF descriptionBackground, COLORREF descriptionText, COLORREF line);

    // The grid owns the property from now on and deletes it in RemoveAll or with itself.
    int AddProperty(CMFCPropertyGridProperty* property, BOOL redraw = TRUE, BOOL adjustLayout = TRUE);
    void RemoveAll();
    int GetPropertyCount() const { return static_cast<int>(m_vecProperties.size()); }
    CMFCPropertyGridProperty* GetProperty(int index) const { return m_vecProperties[static_cast<size_t>(index)].get(); }
    CMFCPropertyGridProperty* GetCurSel() const { return m_nSelected < 0 ? nullptr : GetProperty(m_nSelected); }

protected:
    virtual void OnPropertyChanged(CMFCPropertyGridProperty* property) const;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    void OnPaint();
    void OnSize(UINT type, int cx, int cy);
    LRESULT OnEraseBkgnd(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnEnable(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnKillFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetDlgCode(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnSysKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDblClk(WPARAM wParam, LPARAM lParam);
    LRESULT OnMouseWheel(WPARAM wParam, LPARAM lParam);
    LRESULT OnVScroll(WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void CreateChildren();
    void DrawRows(HDC context);
    void UpdateLayout();
    void UpdateScrollBar(BOOL redraw = TRUE);
    void UpdateColumns();
    void ScrollTo(int topRow);
    int TopRowAfterScroll(WPARAM wParam) const;
    int ThumbRow(int rowInMessage) const;
    int RowAfterKey(WPARAM key) const;
    void SelectRow(int row);
    void OpenDropDown();
    void StepOption();
    void ChangeValue(const CString& value);
    bool HasFocus() const { return ::GetFocus() == m_hWnd || m_dropDown.IsOpen(); }

    std::vector<std::unique_ptr<CMFCPropertyGridProperty>> m_vecProperties;
    int m_nSelected = -1;
    CPropertyGridLayout m_layout;
    PropertyGridLook m_look;
    CGdiObjectOwner m_boldFont;
    CWnd m_header;
    CPropertyGridDropDown m_dropDown;
    int m_nWheelRest = 0; // turns of the wheel that did not make up a whole line yet
};
