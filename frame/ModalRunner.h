#pragma once

#include <afxwin.h>

// Runs a constructed dialog modally with this library's templates, menus and control styles in force, whatever the
// host's own are, and gives the dialog's result; -1 for a null dialog. The library is found by its file name in the
// folder of the host's executable; each run raises its load count by one. Without a file name the resources that are
// current stay current.
int RunModal(CDialog* dialog, const wchar_t* libraryFileName);
