#include "MessageBoxes.h"

#include "tests/support/DialogWatch.h"

namespace
{
// Dialogs of the framework have the same window class, but an object.
BOOL CALLBACK FindMessageBox(HWND window, LPARAM result)
{
    if (WindowClass(window) != L"#32770" || !::IsWindowVisible(window) || CWnd::FromHandlePermanent(window))
        return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

std::wstring LabelOf(HWND box)
{
    HWND label = nullptr;
    while ((label = ::FindWindowEx(box, label, L"STATIC", nullptr)) != nullptr)
        if (!WindowText(label).empty())
            return WindowText(label);
    return L"";
}
} // namespace

HWND test::OpenMessageBox()
{
    HWND box = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &FindMessageBox, reinterpret_cast<LPARAM>(&box));
    return box;
}

test::MessageBoxes::MessageBoxes(std::function<void()> whileOpen) : m_whileOpen(std::move(whileOpen)) {}

void test::MessageBoxes::AnswerOpenBox()
{
    HWND box = OpenMessageBox();
    if (!box)
        return;
    m_shown.push_back({LabelOf(box), WindowText(box)});
    if (m_whileOpen)
        m_whileOpen();
    ::PostMessage(box, WM_COMMAND, IDOK, 0);
}
