#pragma once

#include "dialogs/base/HostCount.h"

#include <afxstr.h>

#include <cstdint>
#include <string>

class IPrintConfig;
class IPrintMode;

// The line that shows a configuration: its name, resolutions, colours and dot bits.
CString ConfigText(const CString& strName, IPrintConfig& config);

// The name of the mode that was just added to a configuration: the configuration's name and the count of its modes.
std::string NewModeName(IPrintConfig& config);

void RemoveModeOf(IPrintConfig& config, const IPrintMode* pMode);

// Removes a configuration's schemes, from the last one so that no index moves before it is looked at. The others keep
// their configuration index: it is the host's to renumber.
template <class SchemeList>
void RemoveSchemesOfConfig(SchemeList* pList, int nConfig)
{
    for (std::uint32_t i = HostCount(pList); i-- > 0;)
    {
        auto* pScheme = pList->GetAt(i);
        if (pScheme && pScheme->GetConfigIndex() == nConfig)
            pList->RemoveAt(i);
    }
}
