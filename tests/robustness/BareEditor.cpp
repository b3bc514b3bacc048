#include "tests/robustness/BareEditor.h"

BareEditor::BareEditor(HMODULE library, const std::vector<int>& templates) : m_library(library), m_templates(templates)
{
    wchar_t path[MAX_PATH + 1]{};
    GetModuleFileNameW(library, path, MAX_PATH);
    ACTCTXW context{};
    context.cbSize = sizeof(context);
    context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.lpSource = path;
    context.lpResourceName = MAKEINTRESOURCEW(2);
    m_context = CreateActCtxW(&context);
}

BareEditor::~BareEditor()
{
    ReleaseActCtx(m_context);
}

std::int32_t BareEditor::Run() const
{
    ULONG_PTR cookie = 0;
    ActivateActCtx(m_context, &cookie);
    DialogBoxParamW(m_library, MAKEINTRESOURCEW(m_templates.front()), nullptr, &Procedure,
                    reinterpret_cast<LPARAM>(this));
    DeactivateActCtx(0, cookie);
    return 1;
}

INT_PTR CALLBACK BareEditor::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG && lParam)
        reinterpret_cast<const BareEditor*>(lParam)->CreatePages(dialog);
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        EndDialog(dialog, IDCANCEL);
    return message == WM_INITDIALOG;
}

void BareEditor::CreatePages(HWND dialog) const
{
    for (std::size_t i = 1; i < m_templates.size(); ++i)
        CreateDialogParamW(m_library, MAKEINTRESOURCEW(m_templates[i]), dialog, &Procedure, 0);
}
