#include "tests/speed/MessageLog.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

namespace
{
MessageLog* g_log = nullptr;
} // namespace

MessageLog::MessageLog()
{
    g_log = this;
    m_sentHook = SetWindowsHookExW(WH_CALLWNDPROC, &SentProc, nullptr, GetCurrentThreadId());
    m_postedHook = SetWindowsHookExW(WH_GETMESSAGE, &PostedProc, nullptr, GetCurrentThreadId());
}

MessageLog::~MessageLog()
{
    UnhookWindowsHookEx(m_sentHook);
    UnhookWindowsHookEx(m_postedHook);
    g_log = nullptr;
}

LRESULT CALLBACK MessageLog::SentProc(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION)
        g_log->Add(sent.hwnd, sent.message, sent.wParam);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK MessageLog::PostedProc(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& posted = *reinterpret_cast<const MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && posted.message == WM_PAINT)
        g_log->Add(posted.hwnd, posted.message, posted.wParam);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageLog::Add(HWND window, UINT message, WPARAM wParam)
{
    RECT update{};
    if (message == WM_PAINT)
        GetUpdateRect(window, &update, FALSE);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_messages.push_back({window, GetDlgCtrlID(window), message, wParam, IsWindowVisible(window) != FALSE, update});
}

std::vector<LoggedMessage> MessageLog::Take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_messages, {});
}

int Count(const std::vector<LoggedMessage>& messages, const MessageLog::Predicate& isCounted)
{
    return static_cast<int>(std::count_if(messages.begin(), messages.end(), isCounted));
}

int Count(const std::vector<LoggedMessage>& messages, int controlId, UINT message)
{
    return Count(messages,
                 [=](const LoggedMessage& one) { return one.controlId == controlId && one.message == message; });
}

bool AddsRow(const LoggedMessage& message)
{
    return message.message == LB_ADDSTRING || message.message == LB_INSERTSTRING || message.message == CB_ADDSTRING ||
           message.message == CB_INSERTSTRING;
}

bool ChangesContent(const LoggedMessage& message)
{
    switch (message.message)
    {
    case WM_SETTEXT:
    case WM_ENABLE:
    case LB_SETCURSEL:
    case LB_RESETCONTENT:
    case CB_SETCURSEL:
    case CB_RESETCONTENT:
    case BM_SETCHECK:
        return true;
    default:
        return AddsRow(message);
    }
}
