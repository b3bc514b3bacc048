// Windows for the framework's tests: dialogs built from templates in memory, and an operator's input by messages.
#pragma once

#include <afxwin.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace test
{
struct Control
{
    std::wstring className;
    std::wstring text;
    DWORD style;
    short x, y, cx, cy; // dialog units
    WORD id;
};

// A dialog template in memory, in the extended form with a font.
class DialogTemplate
{
public:
    DialogTemplate(DWORD style, short cx, short cy, std::initializer_list<Control> controls, WORD fontPoints = 8)
    {
        PutWords({1, 0xFFFF});
        PutLong(0); // help id
        PutLong(0); // extended style
        PutLong(style | DS_SETFONT);
        PutWords({static_cast<WORD>(controls.size()), 0, 0, static_cast<WORD>(cx), static_cast<WORD>(cy), 0, 0, 0});
        PutWords({fontPoints, FW_NORMAL, DEFAULT_CHARSET << 8});
        PutText(L"MS Shell Dlg");
        for (const Control& control : controls)
            Put(control);
    }

    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void Put(const Control& control)
    {
        if (m_words.size() % 2)
            m_words.push_back(0);
        PutLong(0);
        PutLong(0);
        PutLong(control.style | WS_CHILD);
        PutWords({static_cast<WORD>(control.x), static_cast<WORD>(control.y), static_cast<WORD>(control.cx),
                  static_cast<WORD>(control.cy)});
        PutLong(control.id);
        PutText(control.className);
        PutText(control.text);
        m_words.push_back(0); // no creation data
    }

    void PutWords(std::initializer_list<WORD> words) { m_words.insert(m_words.end(), words); }
    void PutLong(DWORD value) { PutWords({LOWORD(value), HIWORD(value)}); }
    void PutText(const std::wstring& text)
    {
        m_words.insert(m_words.end(), text.begin(), text.end());
        m_words.push_back(0);
    }

    std::vector<WORD> m_words;
};

// A modeless dialog. With a parent it is a child page.
class TestDialog : public CWnd
{
public:
    ~TestDialog() override { DestroyWindow(); }

    void Create(const DialogTemplate& dialogTemplate, CWnd* parent = nullptr)
    {
        SubclassWindow(::CreateDialogIndirectParam(AfxGetInstanceHandle(), dialogTemplate.Get(),
                                                   parent ? parent->m_hWnd : nullptr, &Procedure, 0));
    }

    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }

private:
    static INT_PTR CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }
};

inline bool PreTranslate(MSG& message)
{
    for (HWND window = message.hwnd; window; window = ::GetAncestor(window, GA_PARENT))
    {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&message))
            return true;
    }
    return ::IsDialogMessage(::GetAncestor(message.hwnd, GA_ROOT), &message);
}

// Handles what is in the queue as a modal dialog's loop does.
inline void PumpMessages()
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
        if (PreTranslate(message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

// Holds Ctrl, Shift or Alt down for this thread while it lives.
class HeldKeys
{
public:
    explicit HeldKeys(std::initializer_list<int> keys)
    {
        ::GetKeyboardState(m_before);
        BYTE state[256] = {};
        for (const int key : keys)
            state[key] = 0x80;
        ::SetKeyboardState(state);
    }
    ~HeldKeys() { ::SetKeyboardState(m_before); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE m_before[256];
};

inline void PressKey(HWND window, int key, std::initializer_list<int> held = {})
{
    const HeldKeys heldKeys(held);
    ::PostMessage(window, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    ::PostMessage(window, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
    PumpMessages();
}

inline void PressKey(int key, std::initializer_list<int> held = {})
{
    PressKey(::GetFocus(), key, held);
}

inline void PressAltAnd(HWND window, int key)
{
    const HeldKeys heldKeys({VK_MENU});
    ::PostMessage(window, WM_SYSKEYDOWN, static_cast<WPARAM>(key), 0x20000001);
    PumpMessages();
}

inline void Click(HWND window, POINT point)
{
    const LPARAM where = MAKELPARAM(point.x, point.y);
    ::PostMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, where);
    ::PostMessage(window, WM_LBUTTONUP, 0, where);
    PumpMessages();
}

inline void DoubleClick(HWND window, POINT point)
{
    Click(window, point);
    const LPARAM where = MAKELPARAM(point.x, point.y);
    ::PostMessage(window, WM_LBUTTONDBLCLK, MK_LBUTTON, where);
    ::PostMessage(window, WM_LBUTTONUP, 0, where);
    PumpMessages();
}

inline POINT Centre(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}
} // namespace test
