#include "tests/support/Window.h"

#include "tests/support/Operator.h"

std::wstring Window::ClassName() const
{
    return WindowClass(m_handle);
}

std::wstring Window::Text() const
{
    std::wstring text(static_cast<std::size_t>(Send(WM_GETTEXTLENGTH)) + 1, L'\0');
    const LRESULT length = Send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool Window::HasFocus() const
{
    return m_operator->Focus() == *this;
}

RECT Window::ClientArea() const
{
    RECT area{};
    GetClientRect(m_handle, &area);
    return area;
}

std::vector<Window> Window::Children() const
{
    std::vector<Window> children;
    for (HWND child = GetWindow(m_handle, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.emplace_back(*m_operator, child);
    return children;
}

void Window::Click() const
{
    const RECT area = ClientArea();
    m_operator->Click(*this, {area.right / 2, area.bottom / 2});
}

LRESULT Window::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageW(m_handle, message, wParam, lParam);
}

HWND Window::RequiredControl(int controlId) const
{
    HWND control = GetDlgItem(m_handle, controlId);
    if (!control)
        throw OperatorFailure("no control " + std::to_string(controlId) + " in " + DescribeDialog(m_handle));
    return control;
}
