#pragma once

#include "dialogs/scheme/DlgPrintSchemeCmmn.h"
#include "dialogs/scheme/DlgPrintSchemeElc.h"
#include "dialogs/scheme/DlgPrintSchemeInkCut.h"
#include "dialogs/scheme/DlgPrintSchemeInkMul.h"
#include "dialogs/scheme/DlgPrintSchemeMode.h"
#include "dialogs/scheme/DlgPrintSchemeSapp.h"
#include "dialogs/scheme/DlgPrintSchemeUv.h"
#include "dialogs/scheme/DlgSchemeEditor.h"

// The factory print-scheme editor: adds, deletes, edits and copies the factory schemes of each configuration.
class CDlgPrintSchemeFcty : public CDlgSchemeEditor
{
public:
    CDlgPrintSchemeFcty();

    int ApplyLanguage() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void OnAddScheme() override;
    void OnCopyScheme();

    DECLARE_MESSAGE_MAP()

    void AddPages() override;
    void FillSchemeList() override;
    void OnShowingScheme(int schemeId) override;

private:
    void ListSchemesOf(int config);
    void CopyTo(int targetConfig, int sourceId);
    LRESULT OnRightButtonUp(WPARAM, LPARAM);
    void TrackCopyMenu(POINT screenPoint);

    CDlgPrintSchemeCmmn m_pageCommon;
    CDlgPrintSchemeMode m_pageMode;
    CDlgPrintSchemeElc m_pageEclosion;
    CDlgPrintSchemeInkMul m_pageInkMul;
    CDlgPrintSchemeInkCut m_pageInkCut;
    CDlgPrintSchemeUv m_pageUv;
    CDlgPrintSchemeSapp m_pageSapp;
};
