#pragma once

#include "tests/editors/EditorWindow.h"

// A list box that refuses rows, as a system out of memory makes it.
class RefusingList
{
public:
    RefusingList(const EditorWindow& editor, const ListBox& list) : m_op(editor.Op()), m_list(list.Handle())
    {
        m_op.OnUi([this] { s_procedure = Exchange(Refuse); });
    }
    ~RefusingList()
    {
        m_op.OnUi([this] { Exchange(s_procedure); });
    }
    RefusingList(const RefusingList&) = delete;
    RefusingList& operator=(const RefusingList&) = delete;

private:
    WNDPROC Exchange(WNDPROC procedure) const
    {
        return reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(m_list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    }
    static LRESULT CALLBACK Refuse(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == LB_ADDSTRING || message == LB_INSERTSTRING)
            return LB_ERRSPACE;
        return CallWindowProcW(s_procedure, window, message, wParam, lParam);
    }

    static inline WNDPROC s_procedure = nullptr;
    Operator& m_op;
    HWND m_list;
};
