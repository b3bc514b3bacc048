#include "dialogs/printmode/PrintModeRules.h"

#include "host/IPrintConfig.h"

#include <cstdio>

CString ConfigText(const CString& strName, IPrintConfig& config)
{
    CString str;
    str.Format(L"%s [%dX%d][%dC][%dB]", strName.GetString(), config.GetXResolution(), config.GetYResolution(),
               config.GetColorCount(), config.GetDotBits());
    return str;
}

std::string NewModeName(IPrintConfig& config)
{
    constexpr std::size_t BUFFER_BYTES = 260; // what a mode's name may fill, terminator included
    char szName[BUFFER_BYTES];
    const unsigned nCount = config.GetModeCount();
    const char* pszConfig = config.GetName(); // good only until the next call
    std::snprintf(szName, BUFFER_BYTES, "%s-%u", pszConfig ? pszConfig : "(null)", nCount);
    return szName;
}

void RemoveModeOf(IPrintConfig& config, const IPrintMode* pMode)
{
    const std::uint32_t nCount = SaneCount(config.GetModeCount());
    for (std::uint32_t i = 0; i < nCount; ++i)
        if (config.GetMode(i) == pMode)
        {
            config.RemoveMode(i);
            return;
        }
}
