#pragma once

#include <afxtabctrl.h>

// Creates an editor's tab control over the placeholder of the same id, and after it in the tab order.
void CreateEditorTab(CMFCTabCtrl& tab, CWnd& editor, int nPlaceholderId);
