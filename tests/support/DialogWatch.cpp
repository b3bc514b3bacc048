#include "tests/support/DialogWatch.h"

#include <algorithm>

namespace
{
constexpr wchar_t kDialogClass[] = L"#32770";

DialogWatch* g_watch = nullptr;

bool IsTopDialog(HWND window)
{
    return !(GetWindowLongW(window, GWL_STYLE) & WS_CHILD) && WindowClass(window) == kDialogClass;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}
} // namespace

DialogWatch::DialogWatch()
{
    g_watch = this;
    m_hook = SetWindowsHookExW(WH_CBT, &HookProc, nullptr, GetCurrentThreadId());
}

DialogWatch::~DialogWatch()
{
    UnhookWindowsHookEx(m_hook);
    g_watch = nullptr;
}

LRESULT CALLBACK DialogWatch::HookProc(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND)
        g_watch->Created(window, *reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs);
    else if (code == HCBT_DESTROYWND)
        g_watch->Destroyed(window);
    else if (code == HCBT_ACTIVATE)
        g_watch->Changed();
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void DialogWatch::Created(HWND window, const CREATESTRUCTW& details)
{
    if ((details.style & WS_CHILD) || WindowClass(window) != kDialogClass)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_entries.push_back({window, details.lpszName ? details.lpszName : L"", m_claimsAll, true});
    }
    Changed();
}

void DialogWatch::Destroyed(HWND window)
{
    if (!IsTopDialog(window))
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (Entry& entry : m_entries)
            if (entry.handle == window)
                entry.open = false;
    }
    Changed();
}

void DialogWatch::Changed()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_changes;
    m_change.notify_all();
}

void DialogWatch::AwaitChange()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const unsigned before = m_changes;
    // A dialog that becomes visible without being activated tells nobody, so the caller looks again before long.
    m_change.wait_for(lock, std::chrono::milliseconds(5), [&] { return m_changes != before; });
}

std::vector<HWND> DialogWatch::Open() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<HWND> dialogs;
    for (const Entry& entry : m_entries)
        if (entry.open && IsWindowVisible(entry.handle))
            dialogs.push_back(entry.handle);
    return dialogs;
}

std::optional<HWND> DialogWatch::FirstUnclaimed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const Entry& entry : m_entries)
        if (entry.open && !entry.claimed && IsWindowVisible(entry.handle))
            return entry.handle;
    return std::nullopt;
}

void DialogWatch::Claim(HWND dialog)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Entry& entry : m_entries)
        if (entry.open && entry.handle == dialog)
            entry.claimed = true;
}

void DialogWatch::ClaimAll()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_claimsAll = true;
    for (Entry& entry : m_entries)
        entry.claimed = true;
}

bool DialogWatch::IsOpen(HWND dialog) const
{
    const std::vector<HWND> open = Open();
    return std::find(open.begin(), open.end(), dialog) != open.end();
}

std::vector<std::string> DialogWatch::DescribeUnclaimed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::string> result;
    for (const Entry& entry : m_entries)
        if (!entry.claimed)
            result.push_back(entry.open ? DescribeDialog(entry.handle) : "\"" + Utf8(entry.caption) + "\" (closed)");
    return result;
}

std::string DialogWatch::DescribeOpen() const
{
    std::string result;
    for (HWND dialog : Open())
        result += (result.empty() ? "" : ", ") + DescribeDialog(dialog);
    return "open dialogs: " + (result.empty() ? "none" : result);
}

// Asks the window itself, not its thread: a hanging thread must not hang the one that reports it.
std::wstring WindowText(HWND window)
{
    wchar_t text[1024]{};
    InternalGetWindowText(window, text, 1024);
    return text;
}

std::wstring WindowClass(HWND window)
{
    wchar_t name[256]{};
    GetClassNameW(window, name, 256);
    return name;
}

std::string Utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string result(3 * text.size(), '\0');
    const int size = static_cast<int>(result.size());
    result.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr)));
    return result;
}

bool IsMessageBox(HWND dialog)
{
    const std::vector<HWND> children = Children(dialog);
    return WindowClass(dialog) == kDialogClass && !children.empty() &&
           std::all_of(children.begin(), children.end(), [](HWND child) {
               const std::wstring name = WindowClass(child);
               return name == L"Button" || name == L"Static";
           });
}

std::string DescribeDialog(HWND dialog)
{
    std::string result = "\"" + Utf8(WindowText(dialog)) + "\"";
    if (IsMessageBox(dialog))
        for (HWND child : Children(dialog))
            if (WindowClass(child) == L"Static" && !WindowText(child).empty()) // the icon has none
                result += " " + Utf8(WindowText(child));
    return result;
}
