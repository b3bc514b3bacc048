#pragma once

#include <afxwin.h>

#include <optional>

// While an object of this class exists, new windows of this thread keep to one scale. In a host that is aware of each
// monitor's scale, the system would change the size of a dialog and its controls in the midst of a run, but not that of
// what the dialog has measured. Systems that know no such contexts (before Windows 10 of 2016) go on as they are.
class CDpiAwareness
{
public:
    CDpiAwareness();

private:
    std::optional<CUndo> m_restore; // nothing where nothing was changed
};
