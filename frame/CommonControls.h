#pragma once

#include "mfc/Undo.h"

#include <windows.h>

// While an object of this class exists, new windows get the version 6 controls that this library's manifest names.
// Where the system has none, they get the host's controls.
class CCommonControls
{
public:
    CCommonControls();

private:
    CUndo m_deactivate;
};
