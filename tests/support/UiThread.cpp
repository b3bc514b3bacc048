#include "tests/support/UiThread.h"

#include "tests/support/Limits.h"

#include <optional>
#include <stdexcept>

namespace
{
constexpr UINT kRun = WM_APP + 1;
constexpr UINT kMark = WM_APP + 2;
constexpr wchar_t kClassName[] = L"TestMarks";

// A key becomes a character, a closing window becomes a command: two steps are the longest way a message goes.
constexpr int kMarksToSettle = 3;

UiThread* OwnerOf(HWND window)
{
    return reinterpret_cast<UiThread*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}
} // namespace

UiThread::UiThread() : m_id(GetCurrentThreadId())
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &WindowProc;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    RegisterClassW(&windowClass);
    m_window =
        CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance, nullptr);
    if (!m_window)
        throw std::runtime_error("no window for the marks");
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

UiThread::~UiThread()
{
    DestroyWindow(m_window);
}

LRESULT CALLBACK UiThread::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kRun)
        (*reinterpret_cast<const std::function<void()>*>(lParam))();
    else if (message == kMark)
        OwnerOf(window)->Arrived(static_cast<unsigned>(wParam));
    else
        return DefWindowProcW(window, message, wParam, lParam);
    return 0;
}

void UiThread::Run(const std::function<void()>& action) const
{
    SendMessageW(m_window, kRun, 0, reinterpret_cast<LPARAM>(&action));
}

bool UiThread::Settle()
{
    for (int i = 0; i < kMarksToSettle; ++i)
        if (!PassMark())
            return false;
    return true;
}

bool UiThread::PassMark()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const unsigned mark = ++m_sent;
    PostMessageW(m_window, kMark, mark, 0);
    return m_arrival.wait_for(lock, kWaitLimit, [&] { return m_arrived >= mark; });
}

void UiThread::Arrived(unsigned mark)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_arrived = mark;
    m_arrival.notify_all();
}

// A host's own message to quit stays for the host.
void UiThread::PumpUntil(const std::function<bool()>& condition) const
{
    std::optional<int> quitCode;
    while (!condition())
    {
        MSG message;
        if (GetMessageW(&message, nullptr, 0, 0) > 0)
            DispatchMessageW(&message);
        else
            quitCode = static_cast<int>(message.wParam);
    }
    if (quitCode)
        PostQuitMessage(*quitCode);
}

void UiThread::Wake() const
{
    PostMessageW(m_window, WM_NULL, 0, 0);
}
