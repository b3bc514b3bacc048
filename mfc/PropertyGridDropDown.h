// The list that a property grid opens in place over its rows: a system list box, child of the grid.
// A click on a line, Enter, F4 and Alt+Up or Alt+Down accept; Esc, Tab and the loss of the focus give up.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

class CPropertyGridDropDown : public CListBox
{
public:
    // The function given is called with the text of the line that was accepted, after the list has closed.
    BOOL Create(CWnd* grid, UINT id, std::function<void(const CString&)> accepted);
    // Opens below the cell, or above it when there is more room.
    void Open(const RECT& cell, const RECT& bounds, const std::vector<CString>& options, const CString& current);
    void Close();
    bool IsOpen() const { return m_hWnd && (GetStyle() & WS_VISIBLE); }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    LRESULT OnGetDlgCode(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnSysKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnTyped(WPARAM wParam, LPARAM lParam);
    LRESULT OnKillFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void Fill(const std::vector<CString>& options, const CString& current);
    RECT Place(const RECT& cell, const RECT& bounds) const;
    int WidestLine() const;
    void Accept();

    std::function<void(const CString&)> m_accepted;
    bool m_bByKey = false; // a change of selection by a key is not yet a choice
};
