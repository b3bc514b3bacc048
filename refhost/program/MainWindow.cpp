#include "refhost/program/MainWindow.h"

#include <commdlg.h>

#include "refhost/MachineFile.h"
#include "refhost/NarrowText.h"
#include "refhost/TextConversion.h"
#include "refhost/program/Dialogs.h"

namespace refhost
{
namespace
{

constexpr UINT OPEN_EDITOR = WM_APP;

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

CMainWindow::CMainWindow(Start start) : m_start(std::move(start)) {}

bool CMainWindow::Run()
{
    if (CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_MAIN), nullptr, DialogProc,
                           reinterpret_cast<LPARAM>(this)) == nullptr)
        return false;
    ShowWindow(m_hWindow, SW_SHOWNORMAL);
    if (m_start.open != nullptr)
        PostMessageW(m_hWindow, OPEN_EDITOR, 0, 0);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        if (!IsDialogMessageW(m_hWindow, &message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    return true;
}

INT_PTR CALLBACK CMainWindow::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<CMainWindow*>(lParam)->m_hWindow = window;
    }
    auto* self = reinterpret_cast<CMainWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    return self == nullptr ? FALSE : self->OnMessage(message, wParam);
}

INT_PTR CMainWindow::OnMessage(UINT message, WPARAM wParam)
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
    case OPEN_EDITOR:
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

void CMainWindow::OnInit()
{
    FillLanguages();
    ShowDocument();
    CentreOnScreen(m_hWindow);
    const HWND first = GetDlgItem(m_hWindow, EDITORS.front().button);
    SetFocus(IsWindowEnabled(first) ? first : GetDlgItem(m_hWindow, IDC_OPEN_MACHINE));
}

void CMainWindow::OnCommand(int id)
{
    if (id == IDCANCEL)
        OnClose();
    if (id == IDC_OPEN_MACHINE)
        OnOpenMachine();
    for (const Editor& editor : EDITORS)
        if (editor.button == id)
            Edit(editor);
}

void CMainWindow::OnOpenMachine()
{
    if (!MayDropDocument())
        return;
    const std::wstring path = PickMachineFile(m_hWindow);
    if (!path.empty())
        Load(path);
}

void CMainWindow::OnClose()
{
    if (!m_bEditing && MayDropDocument())
        DestroyWindow(m_hWindow);
}

void CMainWindow::FillLanguages()
{
    for (const std::wstring& tag : m_start.languages)
        SendDlgItemMessageW(m_hWindow, IDC_LANGUAGE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(tag.c_str()));
    SendDlgItemMessageW(m_hWindow, IDC_LANGUAGE, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                        reinterpret_cast<LPARAM>(m_start.language.c_str()));
}

void CMainWindow::ShowDocument()
{
    std::wstring path = L"(no machine file is open)";
    std::wstring name;
    if (const CMachineDocument* document = m_start.document.get())
    {
        const Machine& machine = document->Accepted();
        path = document->Path();
        name = WideFromUtf8(Utf8FromNarrow(machine.name, machine.codePage).value_or(machine.name));
        // Names go out in the thread's code page, so it has to be the machine's.
        SetThreadLocale(*LocaleOfCodePage(machine.codePage));
    }
    SetDlgItemTextW(m_hWindow, IDC_MACHINE_FILE, path.c_str());
    SetDlgItemTextW(m_hWindow, IDC_MACHINE_NAME, name.c_str());
    ShowStatus();
    UpdateButtons();
}

void CMainWindow::ShowStatus()
{
    std::wstring status = L"Nothing saved yet.";
    if (m_start.editors == nullptr)
        status = L"Quorvane.dll cannot be loaded from the program's folder.";
    else if (m_start.document && m_start.document->LastSave() == CMachineDocument::SaveState::Saved)
        status = L"Saved at " + TimeText(m_start.document->SaveTime()) + L".";
    else if (m_start.document && m_start.document->LastSave() == CMachineDocument::SaveState::Failed)
        status = L"Not saved: " + WideFromUtf8(m_start.document->SaveError());
    SetDlgItemTextW(m_hWindow, IDC_STATUS, status.c_str());
}

void CMainWindow::UpdateButtons()
{
    for (const Editor& editor : EDITORS)
        EnableWindow(GetDlgItem(m_hWindow, editor.button), CanEdit());
}

bool CMainWindow::CanEdit() const
{
    return m_start.editors != nullptr && m_start.document != nullptr && !m_bEditing;
}

void CMainWindow::Load(const std::wstring& path)
{
    try
    {
        m_start.document = std::make_unique<CMachineDocument>(path);
        ShowDocument();
    }
    catch (const CMachineFileError& error)
    {
        Ask(WideFromUtf8(error.what()), MB_OK | MB_ICONERROR);
    }
}

void CMainWindow::Edit(const Editor& editor)
{
    if (!CanEdit())
        return;
    m_bEditing = true;
    const std::wstring languageDir = SelectedLanguageDir();
    m_start.document->Edit([&](IHostData* data, IHostControl* control) {
        (m_start.editors->*editor.run)(data, control, languageDir.c_str());
    });
    m_bEditing = false;
    ShowStatus();
    if (m_start.document->LastSave() == CMachineDocument::SaveState::Failed)
        Ask(L"The changes could not be saved.\n\n" + WideFromUtf8(m_start.document->SaveError()), MB_OK | MB_ICONERROR);
}

bool CMainWindow::MayDropDocument()
{
    if (!m_start.document || m_start.document->LastSave() != CMachineDocument::SaveState::Failed)
        return true;
    return Ask(L"The last changes are not in the machine file. Drop them?", MB_YESNO | MB_ICONWARNING) == IDYES;
}

std::wstring CMainWindow::SelectedLanguageDir() const
{
    wchar_t tag[MAX_PATH] = {};
    GetDlgItemTextW(m_hWindow, IDC_LANGUAGE, tag, MAX_PATH);
    return m_start.languageDir + L"\\" + tag;
}

int CMainWindow::Ask(const std::wstring& text, UINT type) const
{
    return MessageBoxW(m_hWindow, text.c_str(), PROGRAM_TITLE, type);
}

} // namespace refhost
