#pragma once

#include "dialogs/base/HostText.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdint>

// Refills a list box or combo box without its being redrawn for every row.
template <class List, class Fill>
void Refill(List& list, Fill fill)
{
    list.SetRedraw(FALSE);
    list.ResetContent();
    fill();
    list.SetRedraw(TRUE);
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
    Refill(combo,
           [&]
           {
               const std::uint32_t nCount = pList ? pList->GetCount() : 0;
               for (std::uint32_t i = 0; i < nCount; ++i)
               {
                   auto* pItem = pList->GetAt(i);
                   combo.AddString(pItem ? HostText(pItem->GetName()).GetString() : L"");
               }
           });
}
