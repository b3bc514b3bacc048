#pragma once

#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdint>

// While it lives, a list box or combo box is not redrawn for every row.
class CRedrawOff
{
public:
    explicit CRedrawOff(CWnd& wnd) : m_wnd(wnd) { m_wnd.SetRedraw(FALSE); }
    ~CRedrawOff() { m_wnd.SetRedraw(TRUE); }
    CRedrawOff(const CRedrawOff&) = delete;
    CRedrawOff& operator=(const CRedrawOff&) = delete;

private:
    CWnd& m_wnd;
};

template <class List, class Fill>
void Refill(List& list, Fill fill)
{
    const CRedrawOff redrawOff(list);
    list.ResetContent();
    fill();
}

// For rows that follow from their number alone: a list that has them already is not drawn anew.
template <class List, class Fill>
void RefillUnlessFull(List& list, int nRows, Fill fill)
{
    if (list.GetCount() != nRows)
        Refill(list, fill);
}

// The row to select when one was deleted: the one that moved into its place, else the new last one; -1 for none.
constexpr int RowAfterDelete(int nDeleted, int nCount)
{
    return std::min(nDeleted, nCount - 1);
}

// One row for each item of a host's list, null items too: a row's number is the host's index.
template <class HostList>
void FillNames(CComboBox& combo, HostList* pList)
{
    Refill(combo, [&] {
        const std::uint32_t nCount = HostCount(pList);
        for (std::uint32_t i = 0; i < nCount; ++i)
        {
            auto* pItem = pList->GetAt(i);
            combo.AddString(pItem ? HostText(pItem->GetName()).GetString() : L"");
        }
    });
}
