#pragma once

#include <string>
#include <vector>
#include <windows.h>

class Operator;

// A window of an editor: what a person sees of it, and what a person does with it through the operator.
class Window
{
public:
    Window() = default;
    Window(Operator& op, HWND handle) : m_operator(&op), m_handle(handle) {}

    HWND Handle() const { return m_handle; }
    bool Exists() const { return IsWindow(m_handle) != FALSE; }
    int Id() const { return GetDlgCtrlID(m_handle); }
    std::wstring ClassName() const;
    std::wstring Text() const;
    bool IsEnabled() const { return IsWindowEnabled(m_handle) != FALSE; }
    bool IsVisible() const { return IsWindowVisible(m_handle) != FALSE; }
    bool HasStyle(DWORD style) const { return (static_cast<DWORD>(GetWindowLongW(m_handle, GWL_STYLE)) & style) != 0; }
    bool HasFocus() const;
    Window Parent() const { return {*m_operator, GetAncestor(m_handle, GA_PARENT)}; }
    Window Owner() const { return {*m_operator, GetWindow(m_handle, GW_OWNER)}; }
    RECT ClientArea() const;

    bool Has(int controlId) const { return GetDlgItem(m_handle, controlId) != nullptr; }
    // The script fails when the dialog has no such control.
    template <class Kind = Window>
    Kind Control(int controlId) const
    {
        return Kind(*m_operator, RequiredControl(controlId));
    }
    std::vector<Window> Children() const;

    void Click() const;

    friend bool operator==(const Window& left, const Window& right) { return left.m_handle == right.m_handle; }
    friend bool operator!=(const Window& left, const Window& right) { return !(left == right); }

protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendIndex(UINT message, int index) const { return Send(message, static_cast<WPARAM>(index)); }
    Operator& Op() const { return *m_operator; }

private:
    HWND RequiredControl(int controlId) const;

    Operator* m_operator = nullptr;
    HWND m_handle = nullptr;
};
