#include "refhost/program/MainWindow.h"

#include <commdlg.h>

#include "refhost/MachineFile.h"
#include "refhost/NarrowText.h"
#include "refhost/SystemText.h"
#include "refhost/program/Dialogs.h"

namespace refhost
{
namespace
{

constexpr UINT kOpenEditor = WM_APP;

std::wstring TimeText(const SYSTEMTIME& time)
{
    wchar_t text[64] = {};
    GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &time, L"HH':'mm':'ss", text, 64);
    return text;
}

std::wstring PickMachineFile(HWND owner)
{
    wchar_t path[MAX_PATH] = {};
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = L"Machine files (*.json)\0*.json\0All files\0*.*\0";
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return GetOpenFileNameW(&dialog) ? path : L"";
}

} // namespace

MainWindow::MainWindow(Start start) : m_start(std::move(start)) {}

bool MainWindow::Run()
{
    if (CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_MAIN), nullptr, DialogProc,
                           reinterpret_cast<LPARAM>(this)) == nullptr)
        return false;
    ShowWindow(m_window, SW_SHOWNORMAL);
    if (m_start.open != nullptr)
        PostMessageW(m_window, kOpenEditor, 0, 0);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        if (!IsDialogMessageW(m_window, &message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    return true;
}

INT_PTR CALLBACK MainWindow::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<MainWindow*>(lParam)->m_window = window;
    }
    auto* self = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self == nullptr ? FALSE : self->OnMessage(message, wParam);
}

INT_PTR MainWindow::OnMessage(UINT message, WPARAM wParam)
{
    switch (message)
    {
    case WM_INITDIALOG:
        OnInit();
        return FALSE; // the focus is set
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            OnCommand(LOWORD(wParam));
        return TRUE;
    case kOpenEditor:
        Edit(*m_start.open);
        return TRUE;
    case WM_CLOSE:
        OnClose();
        return TRUE;
    case WM_DESTROY:
        PostQuitMessage(0);
        return TRUE;
    default:
        return FALSE;
    }
}

void MainWindow::OnInit()
{
    FillLanguages();
    ShowDocument();
    CentreOnScreen(m_window);
    const HWND first = GetDlgItem(m_window, kEditors.front().button);
    SetFocus(IsWindowEnabled(first) ? first : GetDlgItem(m_window, IDC_OPEN_MACHINE));
}

void MainWindow::OnCommand(int id)
{
    if (id == IDCANCEL)
        OnClose();
    if (id == IDC_OPEN_MACHINE)
        OnOpenMachine();
    for (const Editor& editor : kEditors)
        if (editor.button == id)
            Edit(editor);
}

void MainWindow::OnOpenMachine()
{
    if (!MayDropDocument())
        return;
    const std::wstring path = PickMachineFile(m_window);
    if (!path.empty())
        Load(path);
}

void MainWindow::OnClose()
{
    if (!m_editing && MayDropDocument())
        DestroyWindow(m_window);
}

void MainWindow::FillLanguages()
{
    for (const std::wstring& tag : m_start.languages)
        SendDlgItemMessageW(m_window, IDC_LANGUAGE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(tag.c_str()));
    SendDlgItemMessageW(m_window, IDC_LANGUAGE, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(m_start.language.c_str()));
}

void MainWindow::ShowDocument()
{
    std::wstring path = L"(no machine file is open)";
    std::wstring name;
    if (const MachineDocument* document = m_start.document.get())
    {
        const Machine& machine = document->Accepted();
        path = document->Path();
        name = WideFromUtf8(Utf8FromNarrow(machine.name, machine.codePage).value_or(machine.name));
        // Names go out in the thread's code page, so it has to be the machine's.
        SetThreadLocale(*LocaleOfCodePage(machine.codePage));
    }
    SetDlgItemTextW(m_window, IDC_MACHINE_FILE, path.c_str());
    SetDlgItemTextW(m_window, IDC_MACHINE_NAME, name.c_str());
    ShowStatus();
    UpdateButtons();
}

void MainWindow::ShowStatus()
{
    std::wstring status = L"Nothing saved yet.";
    if (m_start.editors == nullptr)
        status = L"Quorvane.dll cannot be loaded from the program's folder.";
    else if (m_start.document && m_start.document->LastSave() == MachineDocument::SaveState::Saved)
        status = L"Saved at " + TimeText(m_start.document->SaveTime()) + L".";
    else if (m_start.document && m_start.document->LastSave() == MachineDocument::SaveState::Failed)
        status = L"Not saved: " + WideFromUtf8(m_start.document->SaveError());
    SetDlgItemTextW(m_window, IDC_STATUS, status.c_str());
}

void MainWindow::UpdateButtons()
{
    for (const Editor& editor : kEditors)
        EnableWindow(GetDlgItem(m_window, editor.button), CanEdit());
}

bool MainWindow::CanEdit() const
{
    return m_start.editors != nullptr && m_start.document != nullptr && !m_editing;
}

void MainWindow::Load(const std::wstring& path)
{
    try
    {
        m_start.document = std::make_unique<MachineDocument>(path);
        ShowDocument();
    }
    catch (const MachineFileError& error)
    {
        Ask(WideFromUtf8(error.what()), MB_OK | MB_ICONERROR);
    }
}

void MainWindow::Edit(const Editor& editor)
{
    if (!CanEdit())
        return;
    m_editing = true;
    const std::wstring languageDir = SelectedLanguageDir();
    m_start.document->Edit([&](IHostData* data, IHostControl* control) {
        (m_start.editors->*editor.run)(data, control, languageDir.c_str());
    });
    m_editing = false;
    ShowStatus();
    if (m_start.document->LastSave() == MachineDocument::SaveState::Failed)
        Ask(L"The changes could not be saved.\n\n" + WideFromUtf8(m_start.document->SaveError()), MB_OK | MB_ICONERROR);
}

bool MainWindow::MayDropDocument()
{
    if (!m_start.document || m_start.document->LastSave() != MachineDocument::SaveState::Failed)
        return true;
    return Ask(L"The last changes are not in the machine file. Drop them?", MB_YESNO | MB_ICONWARNING) == IDYES;
}

std::wstring MainWindow::SelectedLanguageDir() const
{
    wchar_t tag[MAX_PATH] = {};
    GetDlgItemTextW(m_window, IDC_LANGUAGE, tag, MAX_PATH);
    return m_start.languageDir + L"\\" + tag;
}

int MainWindow::Ask(const std::wstring& text, UINT type) const
{
    return MessageBoxW(m_window, text.c_str(), kProgramTitle, type);
}

} // namespace refhost
