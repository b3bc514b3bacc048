#include "dialogs/scheme/DlgPrintSchemeFcty.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/Rows.h"
#include "dialogs/scheme/DlgPrintSchemeCopyToConfig.h"
#include "dialogs/scheme/SchemeNames.h"
#include "host/IConfigList.h"
#include "host/IHostData.h"
#include "host/IPrintConfig.h"
#include "host/IPrintScheme.h"
#include "host/ISchemeParams.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
// Sent to the dialog itself, so that an exception of the host's ends the handler and not the editor.
const UINT WM_RIGHT_BUTTON_WENT_UP = ::RegisterWindowMessage(L"QuorvaneRightButtonWentUp");

IFactorySchemeList* FactorySchemes()
{
    return GetHostContext().pData->GetFactorySchemeList();
}

// Null when the host refuses, or when the new scheme would have no id left to be named by.
IPrintScheme* AddSchemeTo(IFactorySchemeList* pList)
{
    return pList && pList->GetCount() < FIRST_USER_SCHEME ? pList->AddScheme() : nullptr;
}

void CopyParams(IPrintScheme& target, IPrintScheme* pSource)
{
    ISchemeParams* pTarget = target.GetParams();
    ISchemeParams* pParams = pSource ? pSource->GetParams() : nullptr;
    if (pTarget && pParams)
        pTarget->CopyFrom(pParams);
}
} // namespace

CDlgPrintSchemeFcty::CDlgPrintSchemeFcty() : CDlgSchemeEditor(IDD_SCHEME_FACTORY, FALSE) {}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeFcty, CDlgSchemeEditor)
    ON_COMMAND(IDM_COPY_SCHEME, &CDlgPrintSchemeFcty::OnCopyScheme)
    ON_REGISTERED_MESSAGE(WM_RIGHT_BUTTON_WENT_UP, &CDlgPrintSchemeFcty::OnRightButtonUp)
END_MESSAGE_MAP()

int CDlgPrintSchemeFcty::ApplyLanguage()
{
    SetWindowText(GetLanguageText(L"TITLE_FACT", L""));
    return CDlgSchemeEditor::ApplyLanguage();
}

void CDlgPrintSchemeFcty::AddPages()
{
    AddSchemePage(m_pageCommon, IDD_SCHEME_CMMN, L"TAB_COMMON");
    AddSchemePage(m_pageMode, IDD_SCHEME_MODE, L"TAB_MODE");
    AddSchemePage(m_pageEclosion, IDD_SCHEME_ELC, L"TAB_ELC");
    AddSchemePage(m_pageInkMul, IDD_SCHEME_INK_MUL, L"TAB_INK_MUL");
    AddSchemePage(m_pageInkCut, IDD_SCHEME_INK_CUT, L"TAB_INK_CUT");
    AddSchemePage(m_pageUv, IDD_SCHEME_UV, L"TAB_UV");
    AddSchemePage(m_pageSapp, IDD_SCHEME_SAPP, L"TAB_SAPP");
}

BOOL CDlgPrintSchemeFcty::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_RBUTTONUP)
        SendMessage(WM_RIGHT_BUTTON_WENT_UP);
    return CDlgSchemeEditor::PreTranslateMessage(pMsg);
}

void CDlgPrintSchemeFcty::OnAddScheme()
{
    IPrintConfig* pConfig = SelectedConfig();
    IFactorySchemeList* pList = pConfig ? FactorySchemes() : nullptr;
    IPrintScheme* pScheme = AddSchemeTo(pList);
    if (!pScheme)
        return;
    const std::optional<std::wstring> configName = WideText(pConfig->GetName());
    pScheme->SetName(NewSchemeName(configName ? configName->c_str() : nullptr, pList->GetCount()).c_str());
    pScheme->SetConfigIndex(static_cast<std::uint8_t>(m_lstConfigs.GetCurSel()));
    const auto nIndex = static_cast<int>(pList->GetCount() - 1);
    const int nRow = AddSchemeRow(HostText(pScheme->GetName()), nIndex);
    if (nRow < 0)
        pList->RemoveAt(static_cast<std::uint32_t>(nIndex));
    else
        SelectAddedRow(nRow);
}

void CDlgPrintSchemeFcty::OnCopyScheme()
{
    CDlgPrintSchemeCopyToConfig dialog;
    if (dialog.DoModal() != IDOK || dialog.GetChosen().empty())
        return;
    const int nSourceId = SelectedSchemeId();
    IFactorySchemeList* pList = FactorySchemes();
    if (!pList || nSourceId < 0 || static_cast<std::uint32_t>(nSourceId) >= pList->GetCount())
        return;
    for (std::uint32_t nConfig : dialog.GetChosen())
        CopyTo(nConfig, nSourceId);
}

void CDlgPrintSchemeFcty::CopyTo(std::uint32_t nConfig, int nSourceId)
{
    IFactorySchemeList* pList = FactorySchemes();
    IPrintScheme* pCopy = AddSchemeTo(pList);
    if (!pCopy)
        return;
    CopyParams(*pCopy, pList->GetAt(static_cast<std::uint32_t>(nSourceId)));
    IConfigList* pConfigs = GetHostContext().pData->GetConfigList();
    IPrintConfig* pConfig = pConfigs ? pConfigs->GetAt(nConfig) : nullptr;
    if (!pConfig)
        return; // the copy stays, where the host put it
    pCopy->SetConfigIndex(static_cast<std::uint8_t>(nConfig));
    pCopy->SetName(CopiedSchemeName(pConfig->GetXResolution(), pConfig->GetYResolution()).c_str());
    if (static_cast<int>(nConfig) == m_lstConfigs.GetCurSel())
        FillSchemeList();
}

// The selection follows the cursor's height wherever in the dialog the button was released; the menu belongs to the
// list.
LRESULT CDlgPrintSchemeFcty::OnRightButtonUp(WPARAM, LPARAM)
{
    RECT rcRow = {};
    m_lstSchemes.GetItemRect(0, &rcRow);
    RECT rcList;
    m_lstSchemes.GetClientRect(&rcList);
    m_lstSchemes.ClientToScreen(&rcList);
    POINT ptCursor;
    ::GetCursorPos(&ptCursor);
    const int nRowHeight = rcRow.bottom - rcRow.top;
    if (nRowHeight > 0)
    {
        const int nScroll = m_lstSchemes.GetScrollPos(SB_VERT);
        m_lstSchemes.SetCurSel((nRowHeight * nScroll - rcList.top + ptCursor.y) / nRowHeight);
        SelectScheme(true);
        m_lstSchemes.RedrawWindow();
    }
    if (::PtInRect(&rcList, ptCursor))
        TrackCopyMenu(ptCursor);
    return 0;
}

void CDlgPrintSchemeFcty::TrackCopyMenu(POINT ptScreen)
{
    CMenu menu;
    if (!menu.LoadMenu(IDR_MENU_COPY))
        return;
    menu.ModifyMenu(IDM_COPY_SCHEME, MF_BYCOMMAND | MF_STRING, IDM_COPY_SCHEME,
                    GetLanguageText(L"IDM_COPY_SCHEME", L""));
    ::TrackPopupMenu(menu.GetSubMenu(0), TPM_LEFTALIGN | TPM_RIGHTBUTTON, ptScreen.x, ptScreen.y, 0, m_hWnd, nullptr);
}

void CDlgPrintSchemeFcty::FillSchemeList()
{
    const int nConfig = m_lstConfigs.GetCurSel();
    if (nConfig < 0)
    {
        m_lstSchemes.SetRedraw(FALSE); // until the next fill
        m_lstSchemes.ResetContent();
        return;
    }
    const bool bConfig = SelectedConfig() != nullptr;
    Refill(m_lstSchemes, [&] {
        if (bConfig)
            AddSchemesOf(nConfig);
        m_lstSchemes.SetCurSel(0);
    });
    if (bConfig)
        SelectScheme(true);
}

void CDlgPrintSchemeFcty::AddSchemesOf(int nConfig)
{
    IFactorySchemeList* pList = FactorySchemes();
    const std::uint32_t nCount = HostCount(pList);
    // A scheme beyond has no id; taken for one, it would name a user scheme.
    const int nListed = static_cast<int>(std::min<std::uint32_t>(nCount, FIRST_USER_SCHEME));
    for (int i = 0; i < nListed; ++i)
    {
        IPrintScheme* pScheme = pList->GetAt(static_cast<std::uint32_t>(i));
        if (pScheme && pScheme->GetConfigIndex() == nConfig)
            AddSchemeRow(HostText(pScheme->GetName()), i);
    }
}

void CDlgPrintSchemeFcty::RemoveFromHost(int nSchemeId)
{
    IFactorySchemeList* pList = FactorySchemes();
    const auto nIndex = static_cast<std::uint32_t>(nSchemeId);
    if (pList && pList->GetAt(nIndex))
        pList->RemoveAt(nIndex);
}

void CDlgPrintSchemeFcty::OnShowingScheme(int nSchemeId)
{
    m_pageMode.m_nConfigIndex = nSchemeId >= 0 ? m_lstConfigs.GetCurSel() : -1;
}
