#include "dialogs/scheme/DlgPrintSchemeFcty.h"

#include "dialogs/data/Configs.h"
#include "dialogs/data/CopyScheme.h"
#include "dialogs/data/SchemeNames.h"
#include "dialogs/scheme/DlgPrintSchemeCopyToConfig.h"
#include "resources/resource.h"

namespace
{
// Sent to the dialog itself, so that an exception of the host's ends the handler and not the editor.
UINT rightButtonWentUp = 0;
} // namespace

CDlgPrintSchemeFcty::CDlgPrintSchemeFcty() : CDlgSchemeEditor(IDD_SCHEME_FACTORY, FALSE)
{
    rightButtonWentUp = ::RegisterWindowMessage(L"QuorvaneRightButtonWentUp");
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeFcty, CDlgSchemeEditor)
    ON_COMMAND(IDM_COPY_SCHEME, &CDlgPrintSchemeFcty::OnCopyScheme)
    ON_REGISTERED_MESSAGE(rightButtonWentUp, &CDlgPrintSchemeFcty::OnRightButtonUp)
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
        SendMessage(rightButtonWentUp);
    return CDlgSchemeEditor::PreTranslateMessage(pMsg);
}

void CDlgPrintSchemeFcty::OnAddScheme()
{
    IPrintConfig* config = SelectedConfig();
    if (!config)
        return;
    const AddedScheme<IPrintScheme> added = AddFactoryScheme();
    if (!added.scheme)
        return;
    added.scheme->SetName(NewSchemeName(config->GetName(), added.id).c_str());
    SetField(*added.scheme, SchemeField::ConfigIndex, m_lstConfigs.GetCurSel());
    ShowAddedScheme(HostText(added.scheme->GetName()), added.id);
}

// As required, the copy dialog runs without the modal runner, like the configuration dialog.
void CDlgPrintSchemeFcty::OnCopyScheme()
{
    CDlgPrintSchemeCopyToConfig dialog;
    if (dialog.DoModal() != IDOK || dialog.GetChosen().empty())
        return;
    const int sourceId = SelectedSchemeId();
    if (!IsFactorySchemeId(sourceId) || sourceId >= FactorySchemeCount())
        return;
    for (int config : dialog.GetChosen())
        CopyTo(config, sourceId);
}

void CDlgPrintSchemeFcty::CopyTo(int targetConfig, int sourceId)
{
    const AddedScheme<IPrintScheme> copy = AddFactoryScheme();
    if (!copy.scheme)
        return;
    CopySchemeInto(*copy.scheme, sourceId);
    IPrintConfig* config = ConfigAt(targetConfig);
    if (!config)
        return; // the copy stays, where the host put it
    SetField(*copy.scheme, SchemeField::ConfigIndex, targetConfig);
    copy.scheme->SetName(CopiedSchemeName(*config).c_str());
    if (targetConfig == m_lstConfigs.GetCurSel())
        FillSchemeList();
}

// The selection follows the cursor's height wherever in the dialog the button was released; the menu belongs to the
// list.
LRESULT CDlgPrintSchemeFcty::OnRightButtonUp(WPARAM, LPARAM)
{
    RECT firstRow = {};
    m_lstSchemes.GetItemRect(0, &firstRow);
    RECT list;
    m_lstSchemes.GetClientRect(&list);
    m_lstSchemes.ClientToScreen(&list);
    POINT cursor;
    ::GetCursorPos(&cursor);
    const int rowHeight = firstRow.bottom - firstRow.top;
    if (rowHeight > 0)
    {
        const int firstVisible = m_lstSchemes.GetScrollPos(SB_VERT);
        m_lstSchemes.SetCurSel((rowHeight * firstVisible - list.top + cursor.y) / rowHeight);
        SelectScheme(true);
        m_lstSchemes.RedrawWindow();
    }
    if (::PtInRect(&list, cursor))
        TrackCopyMenu(cursor);
    return 0;
}

void CDlgPrintSchemeFcty::TrackCopyMenu(POINT screenPoint)
{
    CMenu menu;
    if (!menu.LoadMenu(IDR_MENU_COPY))
        return;
    menu.ModifyMenu(IDM_COPY_SCHEME, MF_BYCOMMAND | MF_STRING, IDM_COPY_SCHEME,
                    GetLanguageText(L"IDM_COPY_SCHEME", L""));
    ::TrackPopupMenu(menu.GetSubMenu(0), TPM_LEFTALIGN | TPM_RIGHTBUTTON, screenPoint.x, screenPoint.y, 0, m_hWnd,
                     nullptr);
}

void CDlgPrintSchemeFcty::FillSchemeList()
{
    const int config = m_lstConfigs.GetCurSel();
    if (config < 0)
    {
        m_lstSchemes.SetRedraw(FALSE); // until the next fill, as required
        m_lstSchemes.ResetContent();
        return;
    }
    const bool hasConfig = SelectedConfig() != nullptr;
    Refill(m_lstSchemes, [&] {
        if (hasConfig)
            ListSchemesOf(config);
        m_lstSchemes.SetCurSel(0);
    });
    if (hasConfig)
        SelectScheme(true);
}

void CDlgPrintSchemeFcty::ListSchemesOf(int config)
{
    ForEachFactorySchemeOf(
        config, [this](IPrintScheme& scheme, int id) { AddRow(m_lstSchemes, HostText(scheme.GetName()).c_str(), id); });
}

void CDlgPrintSchemeFcty::OnShowingScheme(int schemeId)
{
    m_pageMode.m_nConfigIndex = schemeId >= 0 ? m_lstConfigs.GetCurSel() : -1;
}
