#include "bench/Stage.h"

#include <stdexcept>

namespace
{
constexpr wchar_t kClassName[] = L"BenchOwner";

Stage* g_stage = nullptr;
} // namespace

Stage::Stage()
{
    g_stage = this;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &OwnerProc;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = kClassName;
    RegisterClassW(&windowClass);
    m_owner = CreateWindowExW(0, kClassName, L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400, 300, nullptr,
                              nullptr, windowClass.hInstance, nullptr);
    if (!m_owner)
        throw std::runtime_error("no window for the host");
    SetForegroundWindow(m_owner);
}

Stage::~Stage()
{
    DestroyWindow(m_owner);
    g_stage = nullptr;
}

void Stage::Run(const std::function<void()>& modal, const std::vector<Step>& steps)
{
    m_steps = steps;
    m_next = 0;
    SetActiveWindow(m_owner);
    modal();
    if (m_next <= m_steps.size())
        throw std::runtime_error("a dialog closed before its last step");
    // Messages left over from closing the dialog belong to this run, not to the next one.
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

LRESULT CALLBACK Stage::OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_ENTERIDLE || wParam != MSGF_DIALOGBOX)
        return DefWindowProcW(window, message, wParam, lParam);
    g_stage->AtRest(reinterpret_cast<HWND>(lParam));
    return 0;
}

void Stage::AtRest(HWND dialog)
{
    if (m_next < m_steps.size())
    {
        m_steps[m_next++](dialog);
        // The loop reports that it is idle only after it has found a message waiting, and it takes the first one
        // without a report. These messages make sure that even a step without effect leads to the next one.
        PostMessageW(dialog, WM_NULL, 0, 0);
        PostMessageW(dialog, WM_NULL, 0, 0);
    }
    else if (m_next == m_steps.size())
    {
        ++m_next;
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
}
