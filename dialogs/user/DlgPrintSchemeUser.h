#pragma once

#include "dialogs/scheme/DlgPrintSchemeCmmn.h"
#include "dialogs/scheme/DlgPrintSchemeElc.h"
#include "dialogs/scheme/DlgPrintSchemeInkCut.h"
#include "dialogs/scheme/DlgPrintSchemeInkMul.h"
#include "dialogs/scheme/DlgPrintSchemeSapp.h"
#include "dialogs/scheme/DlgPrintSchemeUv.h"
#include "dialogs/scheme/DlgSchemeEditor.h"

// The user print-scheme editor: shows the enabled factory schemes of each configuration as presets, and adds, deletes
// and edits the operator's own.
class CDlgPrintSchemeUser : public CDlgSchemeEditor
{
public:
    CDlgPrintSchemeUser();

    int ApplyLanguage() override;

protected:
    void OnAddScheme() override;

    void AddPages() override;
    void FillSchemeList() override;

private:
    void ListPresets(int config);
    void ListUserSchemes(int config);

    CDlgPrintSchemeCmmn m_pageCommon;
    CDlgPrintSchemeElc m_pageEclosion;
    CDlgPrintSchemeInkMul m_pageInkMul;
    CDlgPrintSchemeInkCut m_pageInkCut;
    CDlgPrintSchemeUv m_pageUv;
    CDlgPrintSchemeSapp m_pageSapp;
};
