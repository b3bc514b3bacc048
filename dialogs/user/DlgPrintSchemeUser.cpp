#include "dialogs/user/DlgPrintSchemeUser.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/MisreadText.h"
#include "dialogs/base/Rows.h"
#include "dialogs/user/CopyScheme.h"
#include "dialogs/user/DlgPrintSchemeUserAddScheme.h"
#include "dialogs/user/SourceSchemes.h"
#include "frame/ModalRunner.h"
#include "host/IHostData.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

namespace
{
constexpr std::int32_t SAVE_USER_DATA = 3;
constexpr LPCTSTR DIVIDER = L"----------------------";

IUserSchemeList* UserSchemes()
{
    return GetHostContext().pData->GetUserSchemeList();
}
} // namespace

CDlgPrintSchemeUser::CDlgPrintSchemeUser() : CDlgSchemeEditor(IDD_SCHEME_USER, FIRST_USER_SCHEME, SAVE_USER_DATA) {}

int CDlgPrintSchemeUser::ApplyLanguage()
{
    SetWindowText(GetLanguageText(L"TITLE_USER", L""));
    return CDlgSchemeEditor::ApplyLanguage();
}

std::vector<CDlgSchemeEditor::Page> CDlgPrintSchemeUser::MakePages()
{
    std::vector<Page> pages = {
        {&m_pageCommon, IDD_SCHEME_CMMN, GetLanguageText(L"TAB_COMMON", L"")},
        {&m_pageEclosion, IDD_SCHEME_ELC, GetLanguageText(L"TAB_ELC", L"")},
        {&m_pageInkMul, IDD_SCHEME_INK_MUL, GetLanguageText(L"TAB_INK_MUL", L"")},
        {&m_pageInkCut, IDD_SCHEME_INK_CUT, GetLanguageText(L"TAB_INK_CUT", L"")},
        {&m_pageUv, IDD_SCHEME_UV, GetLanguageText(L"TAB_UV", L"")},
        {&m_pageSapp, IDD_SCHEME_SAPP, GetLanguageText(L"TAB_SAPP", L"")},
    };
    for (const Page& page : pages)
        page.pPage->m_bUserEditor = TRUE;
    return pages;
}

void CDlgPrintSchemeUser::OnAddScheme()
{
    const int nConfig = m_lstConfigs.GetCurSel();
    if (!SelectedConfig())
        return;
    CDlgPrintSchemeUserAddScheme dialog(nConfig, SelectedSchemeId());
    if (RunModal(&dialog, L"Quorvane.dll") != IDOK)
        return;
    IUserSchemeList* pList = UserSchemes();
    IUserScheme* pScheme = pList ? pList->AddScheme() : nullptr;
    if (!pScheme)
        return;
    CopySchemeInto(*pScheme, dialog.m_nSource);
    SetHostName(*pScheme, dialog.m_strName);
    const int nNewId = FIRST_USER_SCHEME + static_cast<int>(pList->GetCount()) - 1;
    const int nRow = AddSchemeRow(HostText(pScheme->GetName()), nNewId);
    if (nRow < 0)
        pList->RemoveAt(pList->GetCount() - 1);
    else
        SelectAddedRow(nRow);
}

// Names stand unconverted in this list, as operators know them, until a scheme is added.
void CDlgPrintSchemeUser::FillSchemeList()
{
    const int nConfig = m_lstConfigs.GetCurSel();
    Refill(m_lstSchemes, [&] {
        if (nConfig < 0)
            return;
        AddPresets(nConfig);
        if (m_lstSchemes.GetCount() > 0)
            AddSchemeRow(DIVIDER, NO_SCHEME);
        AddUserSchemes(nConfig);
        EnableControl(m_btnAdd, m_lstSchemes.GetCount() > 0);
    });
    if (nConfig >= 0)
        SelectScheme(true);
}

void CDlgPrintSchemeUser::AddPresets(int nConfig)
{
    const CString strPreset = GetLanguageText(L"PRESET", L"预设");
    ForEachPreset(nConfig, [&](IPrintScheme& scheme, int nSchemeId) {
        AddSchemeRow(PresetText(scheme.GetName(), strPreset), nSchemeId);
    });
}

void CDlgPrintSchemeUser::AddUserSchemes(int nConfig)
{
    ForEachUserScheme(nConfig, [&](IUserScheme& scheme, int nSchemeId) {
        AddSchemeRow(NarrowReadAsWide(scheme.GetName()).c_str(), nSchemeId);
    });
}

void CDlgPrintSchemeUser::RemoveFromHost(int nSchemeId)
{
    IUserSchemeList* pList = UserSchemes();
    const auto nIndex = static_cast<std::uint32_t>(nSchemeId - FIRST_USER_SCHEME);
    if (pList && pList->GetAt(nIndex))
        pList->RemoveAt(nIndex);
}
