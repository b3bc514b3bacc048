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
constexpr LPCTSTR DIVIDER = L"----------------------";

IUserSchemeList* UserSchemes()
{
    return GetHostContext().pData->GetUserSchemeList();
}
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
