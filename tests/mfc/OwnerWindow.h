#pragma once

#include "TestWindow.h"

#include <functional>

namespace test
{
// Posted or sent to an owner.
constexpr UINT kDestroyYourself = WM_APP;

// A window that dialogs belong to. It keeps what they tell it of idle time.
class Owner : public TestDialog
{
public:
    Owner() { Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 150, {})); }

    int idles = 0;
    WPARAM idleReason = 0;
    HWND idleDialog = nullptr;
    std::function<void()> onIdle;

protected:
    DECLARE_MESSAGE_MAP()

private:
    LRESULT OnEnterIdle(WPARAM wParam, LPARAM lParam)
    {
        ++idles;
        idleReason = wParam;
        idleDialog = reinterpret_cast<HWND>(lParam);
        if (onIdle)
            onIdle();
        return 0;
    }
    LRESULT OnDestroyYourself(WPARAM, LPARAM) { return DestroyWindow(); }
};
} // namespace test
