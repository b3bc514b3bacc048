// CMFCTabCtrl: pages behind tabs, built on the system's tab control.
// Supported: tabs at the top or the bottom; pages follow the control's size and font; switching by mouse, by Left and
// Right on the strip, and by Ctrl+Tab, Ctrl+Shift+Tab, Ctrl+Page Up and Ctrl+Page Down. Tab walks through the strip and
// the active page. Forward PreTranslateMessage to it to have these keys in the whole dialog. An empty label keeps a
// width that can be clicked. Not supported: images, detaching, close buttons, flat styles, and messages about a change
// of the active tab. Differs: a page is left only when the focus can leave it. When a kill-focus handler puts the focus
// back, the page stays and SetActiveTab returns FALSE.
#pragma once

#include <afxwin.h>

#include <vector>

class CMFCTabCtrl : public CWnd
{
public:
    enum Style
    {
        STYLE_3D
    };
    enum Location
    {
        LOCATION_BOTTOM,
        LOCATION_TOP
    };

    BOOL Create(Style style, const RECT& rect, CWnd* parent, UINT id, Location location = LOCATION_BOTTOM,
                BOOL closeButton = FALSE);

    // The page becomes a child of the tab control but stays its owner's object. The first one is shown.
    void AddTab(CWnd* page, const wchar_t* label, UINT imageId = static_cast<UINT>(-1), BOOL detachable = TRUE);
    BOOL SetActiveTab(int tab);
    int GetTabsNum() const { return static_cast<int>(m_vecPages.size()); }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void PostNcDestroy() override;

    void OnSize(UINT type, int cx, int cy);
    LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetCurFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    CWnd* ActivePage() const { return m_vecPages[static_cast<size_t>(m_nActive)]; }
    int TabAt(LPARAM point) const;
    RECT PageRect() const;
    void PlacePages();
    bool LeaveActivePage();
    HWND FirstStopOfPage() const;
    HWND TabTarget(HWND focus, bool back) const;
    bool MoveByTabKey(const MSG& msg);

    std::vector<CWnd*> m_vecPages;
    int m_nActive = -1; // no tabs
};
