// Message maps: tables that lead a message to a handler of its window's class, derived class first.
// Supported: the ON_ macros below. Handlers are named as pointers to members (&CMyDialog::OnAdd).
// Differs: an entry holds a function made for its handler's signature instead of a signature code.
#pragma once

#include <windows.h>

class CWnd;
class CScrollBar;

struct AFX_MSGMAP_ENTRY
{
    UINT message; // 0 ends the table
    UINT code;    // notification code of WM_COMMAND
    UINT id;      // control of WM_COMMAND
    const UINT*
        registered; // set for a registered message: its number is known only at run time, and 0 until it is registered
    LRESULT (*invoke)(CWnd& wnd, WPARAM wParam, LPARAM lParam);
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*baseMap)(); // null in CWnd
    const AFX_MSGMAP_ENTRY* entries;
};

namespace afx
{
template <typename T>
struct HandlerClass;
template <typename Class, typename Result, typename... Args>
struct HandlerClass<Result (Class::*)(Args...)>
{
    using Type = Class;
};

template <auto Handler>
auto& Target(CWnd& wnd)
{
    return static_cast<typename HandlerClass<decltype(Handler)>::Type&>(wnd);
}

template <auto Handler>
LRESULT InvokeVoid(CWnd& wnd, WPARAM, LPARAM)
{
    (Target<Handler>(wnd).*Handler)();
    return 0;
}

template <auto Handler>
LRESULT InvokeMessage(CWnd& wnd, WPARAM wParam, LPARAM lParam)
{
    return (Target<Handler>(wnd).*Handler)(wParam, lParam);
}

CScrollBar* ScrollBarFromHandle(LPARAM lParam);

template <auto Handler>
LRESULT InvokeScroll(CWnd& wnd, WPARAM wParam, LPARAM lParam)
{
    (Target<Handler>(wnd).*Handler)(LOWORD(wParam), HIWORD(wParam), ScrollBarFromHandle(lParam));
    return 0;
}

template <auto Handler>
LRESULT InvokeSize(CWnd& wnd, WPARAM wParam, LPARAM lParam)
{
    (Target<Handler>(wnd).*Handler)(static_cast<UINT>(wParam), static_cast<short>(LOWORD(lParam)),
                                    static_cast<short>(HIWORD(lParam)));
    return 0;
}
} // namespace afx

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                    \
    {                                                                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, nullptr, nullptr                                                                                      \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                         \
    return &map;                                                                                                       \
    }

#define ON_CONTROL(code, id, handler) {WM_COMMAND, code, static_cast<UINT>(id), nullptr, &afx::InvokeVoid<handler>},
#define ON_COMMAND(id, handler) ON_CONTROL(0, id, handler)
#define ON_BN_CLICKED(id, handler) ON_CONTROL(BN_CLICKED, id, handler)
#define ON_LBN_SELCHANGE(id, handler) ON_CONTROL(LBN_SELCHANGE, id, handler)
#define ON_LBN_DBLCLK(id, handler) ON_CONTROL(LBN_DBLCLK, id, handler)
#define ON_CBN_SELCHANGE(id, handler) ON_CONTROL(CBN_SELCHANGE, id, handler)
#define ON_EN_KILLFOCUS(id, handler) ON_CONTROL(EN_KILLFOCUS, id, handler)

#define ON_MESSAGE(message, handler) {message, 0, 0, nullptr, &afx::InvokeMessage<handler>},
#define ON_REGISTERED_MESSAGE(variable, handler) {0xC000, 0, 0, &variable, &afx::InvokeMessage<handler>},
#define ON_WM_HSCROLL() {WM_HSCROLL, 0, 0, nullptr, &afx::InvokeScroll<&ThisClass::OnHScroll>},
#define ON_WM_SIZE() {WM_SIZE, 0, 0, nullptr, &afx::InvokeSize<&ThisClass::OnSize>},
#define ON_WM_PAINT() {WM_PAINT, 0, 0, nullptr, &afx::InvokeVoid<&ThisClass::OnPaint>},
