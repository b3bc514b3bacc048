#pragma once

#include "dialogs/data/HostList.h"
#include "dialogs/data/HostText.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdint>

// What the dialogs do with their controls. What a control shows already is not set again: that would draw it again,
// and the page would flicker at each change of scheme.

// Enables or disables a control. A control that has the focus hands it on first: a disabled one would leave the
// keyboard dead.
void EnableControl(CWnd& control, bool enable);
void ShowControl(CWnd& control, bool show);
void ShowText(CWnd& control, const wchar_t* text);

// While it lives, a list box or combo box is not redrawn for every row.
class CRedrawOff
{
public:
    explicit CRedrawOff(CWnd& list);

private:
    CUndo m_redrawOn;
};

template <class List, class Fill>
void Refill(List& list, Fill fill)
{
    const CRedrawOff redrawOff(list);
    list.ResetContent();
    fill();
}

// For rows that follow from their number alone: a list that has them already is not drawn again.
template <class List, class Fill>
void RefillUnlessFull(List& list, int rows, Fill fill)
{
    if (list.GetCount() != rows)
        Refill(list, fill);
}

template <class List>
void SetRowData(List& list, int row, int data)
{
    list.SetItemData(row, static_cast<DWORD_PTR>(static_cast<INT_PTR>(data)));
}

template <class List, class Object>
void SetRowData(List& list, int row, Object* data)
{
    list.SetItemData(row, reinterpret_cast<DWORD_PTR>(data));
}

// Adds a row with its data, a number or a pointer, and gives its position. A row that the control refuses has no data,
// and its position is negative.
template <class List, class Data>
int AddRow(List& list, const wchar_t* text, Data data)
{
    const int row = list.AddString(text);
    if (row >= 0)
        SetRowData(list, row, data);
    return row;
}

// The selected row's number; -1 without a selection.
template <class List>
int SelectedNumber(const List& list)
{
    const int row = list.GetCurSel();
    return row >= 0 ? static_cast<int>(list.GetItemData(row)) : -1;
}

// The row's object; null for a row that does not exist.
template <class Object, class List>
Object* RowObject(const List& list, int row)
{
    return row >= 0 && row < list.GetCount() ? reinterpret_cast<Object*>(list.GetItemData(row)) : nullptr;
}

// The row to select when one was deleted: the one that moved into its place, else the new last one; -1 for none.
constexpr int RowAfterDelete(int deleted, int count)
{
    return std::min(deleted, count - 1);
}

// One row for each item of a host's list, null items too: a row's number is the host's index.
template <class HostList>
void FillNames(CComboBox& combo, HostList* list)
{
    Refill(combo, [&] {
        ForEachRow(list, [&](auto* item, int) { combo.AddString(item ? HostText(item->GetName()).c_str() : L""); });
    });
}

// One row for every configuration, its object as item data. A null configuration keeps its row.
void FillConfigNames(CListBox& list);
