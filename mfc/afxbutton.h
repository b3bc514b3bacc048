// CMFCButton: a push button. Images and owner drawing are not supported, so it stays a standard push button and keeps
// the default-button behaviour.
#pragma once

#include <afxwin.h>

class CMFCButton : public CButton
{
};
