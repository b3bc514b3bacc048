#pragma once

#include "TestWindow.h"

#include <functional>

namespace test
{
struct Notification
{
    int id;
    int code;
};

inline bool operator==(const Notification& a, const Notification& b)
{
    return a.id == b.id && a.code == b.code;
}

// A dialog whose exchange is given by the test. It keeps the control notifications that reach its message map.
class ExchangeDialog : public TestDialog
{
public:
    std::function<void(CDataExchange*)> exchange;
    std::function<void(Notification)> onNotification;
    std::vector<Notification> notifications;

    std::wstring Text(int id) const
    {
        CString text;
        GetDlgItem(id)->GetWindowText(text);
        return text.GetString();
    }
    void SetText(int id, const wchar_t* text) { ::SetWindowText(Item(id), text); }

protected:
    void DoDataExchange(CDataExchange* dx) override
    {
        if (exchange)
            exchange(dx);
    }

    BOOL OnCommand(WPARAM wParam, LPARAM) override
    {
        const Notification notification = {LOWORD(wParam), HIWORD(wParam)};
        notifications.push_back(notification);
        if (onNotification)
            onNotification(notification);
        return TRUE;
    }
};
} // namespace test
