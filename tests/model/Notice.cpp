#include "tests/model/Notice.h"

#include "tests/support/DialogWatch.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

namespace
{
NoticeTap* g_tap = nullptr;

int StateOf(HWND control)
{
    const std::wstring name = WindowClass(control);
    const UINT question = name == L"ListBox"             ? LB_GETCURSEL
                          : name == L"ComboBox"          ? CB_GETCURSEL
                          : name == L"Button"            ? BM_GETCHECK
                          : name == L"msctls_trackbar32" ? TBM_GETPOS
                                                         : WM_NULL;
    return static_cast<int>(SendMessageW(control, question, 0, 0));
}

std::wstring TextOf(HWND control)
{
    if (WindowClass(control) != L"Edit")
        return {};
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return text;
}
} // namespace

NoticeTap::NoticeTap()
{
    g_tap = this;
}

NoticeTap::~NoticeTap()
{
    g_tap = nullptr;
}

void NoticeTap::Attach(HWND dialog, int resourceId)
{
    const auto procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NoticeTap::TapProc)));
    m_tapped.push_back({dialog, GetAncestor(dialog, GA_ROOT), resourceId, procedure});
}

std::vector<Notice> NoticeTap::Take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_notices, {});
}

LRESULT CALLBACK NoticeTap::TapProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Tapped tapped = *g_tap->Find(window);
    if (message != WM_COMMAND && message != WM_HSCROLL)
    {
        if (message == WM_NCDESTROY)
            g_tap->Release(window);
        return CallWindowProcW(tapped.procedure, window, message, wParam, lParam);
    }
    return g_tap->Handle(tapped, message, wParam, lParam);
}

LRESULT NoticeTap::Handle(const Tapped& tapped, UINT message, WPARAM wParam, LPARAM lParam)
{
    Note(tapped, message, wParam, lParam);
    m_busy.push_back(tapped.root);
    const LRESULT result = CallWindowProcW(tapped.procedure, tapped.dialog, message, wParam, lParam);
    m_busy.pop_back();
    return result;
}

void NoticeTap::Note(const Tapped& tapped, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto control = reinterpret_cast<HWND>(lParam);
    const bool isCommand = message == WM_COMMAND;
    const int id = isCommand ? LOWORD(wParam) : GetDlgCtrlID(control);
    const int code = isCommand ? HIWORD(wParam) : LOWORD(wParam);
    const bool isNested = std::find(m_busy.begin(), m_busy.end(), tapped.root) != m_busy.end();
    const Notice notice{tapped.resourceId, id, message, code, StateOf(control), TextOf(control), isNested};
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_notices.push_back(notice);
}

const NoticeTap::Tapped* NoticeTap::Find(HWND dialog) const
{
    return &*std::find_if(m_tapped.begin(), m_tapped.end(),
                          [=](const Tapped& entry) { return entry.dialog == dialog; });
}

// The window's own procedure must be back in its place when the framework takes its leave of the window.
void NoticeTap::Release(HWND dialog)
{
    const auto entry =
        std::find_if(m_tapped.begin(), m_tapped.end(), [=](const Tapped& each) { return each.dialog == dialog; });
    SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(entry->procedure));
    m_tapped.erase(entry);
}
