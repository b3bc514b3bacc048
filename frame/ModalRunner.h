#pragma once

#include <afxwin.h>

// Runs a constructed dialog modally, with this library's templates, menus and control styles in effect, whatever those
// of the host are. Returns the dialog's result, or -1 for a null dialog. The library is found by its file name in the
// folder of the host's executable. Each call with a file name raises its load count by one: editor runs, and the
// dialogs that are run like this inside them. Without a file name the current resources stay current.
int RunModal(CDialog* dialog, const wchar_t* libraryFileName);
