#include "dialogs/user/DlgPrintSchemeUser.h"

#include "dialogs/data/CopyScheme.h"
#include "dialogs/data/MisreadText.h"
#include "dialogs/data/SchemeNames.h"
#include "dialogs/user/DlgPrintSchemeUserAddScheme.h"
#include "frame/ModalRunner.h"
#include "resources/resource.h"

namespace
{
constexpr const wchar_t* DIVIDER = L"----------------------";
} // namespace

CDlgPrintSchemeUser::CDlgPrintSchemeUser() : CDlgSchemeEditor(IDD_SCHEME_USER, TRUE) {}

int CDlgPrintSchemeUser::ApplyLanguage()
{
    SetWindowText(GetLanguageText(L"TITLE_USER", L""));
    return CDlgSchemeEditor::ApplyLanguage();
}

void CDlgPrintSchemeUser::AddPages()
{
    AddSchemePage(m_pageCommon, IDD_SCHEME_CMMN, L"TAB_COMMON");
    AddSchemePage(m_pageEclosion, IDD_SCHEME_ELC, L"TAB_ELC");
    AddSchemePage(m_pageInkMul, IDD_SCHEME_INK_MUL, L"TAB_INK_MUL");
    AddSchemePage(m_pageInkCut, IDD_SCHEME_INK_CUT, L"TAB_INK_CUT");
    AddSchemePage(m_pageUv, IDD_SCHEME_UV, L"TAB_UV");
    AddSchemePage(m_pageSapp, IDD_SCHEME_SAPP, L"TAB_SAPP");
}

void CDlgPrintSchemeUser::OnAddScheme()
{
    const int config = m_lstConfigs.GetCurSel();
    if (!SelectedConfig())
        return;
    CDlgPrintSchemeUserAddScheme dialog(config, SelectedSchemeId());
    if (RunModal(&dialog, L"Quorvane.dll") != IDOK)
        return;
    const AddedScheme<IUserScheme> added = AddUserScheme();
    if (!added.scheme)
        return;
    CopySchemeInto(*added.scheme, dialog.m_nSource);
    SetHostName(*added.scheme, dialog.m_strName);
    ShowAddedScheme(HostText(added.scheme->GetName()), added.id);
}

// Names stand unconverted in this list, as required, until a scheme is added.
void CDlgPrintSchemeUser::FillSchemeList()
{
    const int config = m_lstConfigs.GetCurSel();
    Refill(m_lstSchemes, [&] {
        if (config < 0)
            return;
        ListPresets(config);
        if (m_lstSchemes.GetCount() > 0)
            AddRow(m_lstSchemes, DIVIDER, NO_SCHEME);
        ListUserSchemes(config);
        EnableControl(m_btnAdd, m_lstSchemes.GetCount() > 0);
    });
    if (config >= 0)
        SelectScheme(true);
}

void CDlgPrintSchemeUser::ListPresets(int config)
{
    const std::wstring word = GetLanguageText(L"PRESET", L"预设").GetString();
    ForEachPresetOf(config, [&](IPrintScheme& scheme, int id) {
        AddRow(m_lstSchemes, PresetText(scheme.GetName(), word).c_str(), id);
    });
}

void CDlgPrintSchemeUser::ListUserSchemes(int config)
{
    ForEachUserSchemeOf(config, [&](IUserScheme& scheme, int id) {
        AddRow(m_lstSchemes, NarrowReadAsWide(scheme.GetName()).c_str(), id);
    });
}
