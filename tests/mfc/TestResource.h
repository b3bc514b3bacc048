// Ids of the templates and the menu in mfc_tests.rc.
#pragma once

#define IDD_MODAL 200         // an editor: two edits, a push button, OK and Cancel
#define IDD_PAGE 201          // a child page with an edit and a button
#define IDD_UNKNOWN_CLASS 202 // cannot be created
#define IDD_NO_TEMPLATE 203   // stands in no module

#define IDR_POPUP 210

#define IDC_NUMBER 1001
#define IDC_OTHER 1002
#define IDC_PUSH 1003

#define ID_POPUP_ADD 1101
#define ID_POPUP_DELETE 1102
