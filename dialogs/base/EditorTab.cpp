#include "dialogs/base/EditorTab.h"

void CreateEditorTab(CMFCTabCtrl& tab, CWnd& editor, int nPlaceholderId)
{
    CWnd* pPlaceholder = editor.GetDlgItem(nPlaceholderId);
    RECT rc;
    pPlaceholder->GetWindowRect(&rc);
    editor.ScreenToClient(&rc);
    tab.Create(CMFCTabCtrl::STYLE_3D, rc, &editor, static_cast<UINT>(nPlaceholderId), CMFCTabCtrl::LOCATION_TOP, FALSE);
    ::SetWindowPos(tab.m_hWnd, pPlaceholder->m_hWnd, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}
