// CDialogEx: the extended dialog. Its background and pop-up extras are not supported; it is CDialog.
#pragma once

#include <afxwin.h>

class CDialogEx : public CDialog
{
public:
    using CDialog::CDialog;
};
