#include "dialogs/scheme/SchemeRecords.h"

#include "dialogs/base/HostContext.h"
#include "host/IDeviceState.h"
#include "host/IHostData.h"
#include "host/IParamTable.h"
#include "host/IUserScheme.h"

#include <cstring>

namespace
{
// Only the host knows the size of an entry.
constexpr std::size_t ENTRY_BYTES = 256;

IParamTable* ParamTable(std::uint32_t nTable)
{
    IHostData* pData = GetHostContext().pData;
    return pData ? pData->GetParamTable(nTable) : nullptr;
}
} // namespace

IPrintScheme* FactorySchemeAt(int nIndex)
{
    IHostData* pData = GetHostContext().pData;
    IFactorySchemeList* pList = pData && nIndex >= 0 ? pData->GetFactorySchemeList() : nullptr;
    return pList ? pList->GetAt(static_cast<std::uint32_t>(nIndex)) : nullptr;
}

IUserScheme* UserSchemeAt(int nIndex)
{
    IHostData* pData = GetHostContext().pData;
    IUserSchemeList* pList = pData && nIndex >= 0 ? pData->GetUserSchemeList() : nullptr;
    return pList ? pList->GetAt(static_cast<std::uint32_t>(nIndex)) : nullptr;
}

IPrintScheme* BaseSchemeOf(IUserScheme* pScheme)
{
    return pScheme ? FactorySchemeAt(pScheme->GetBaseScheme()) : nullptr;
}

IActiveSetup* ActiveSetup()
{
    IHostData* pData = GetHostContext().pData;
    IDeviceState* pState = pData ? pData->GetDeviceState() : nullptr;
    return pState ? pState->GetActiveSetup() : nullptr;
}

int ParamCount(std::uint32_t nTable)
{
    IParamTable* pTable = ParamTable(nTable);
    return pTable ? pTable->GetCount() : 0;
}

int ParamValue(std::uint32_t nTable, int nIndex)
{
    IParamTable* pTable = ParamTable(nTable);
    if (!pTable)
        return 0;
    alignas(void*) unsigned char entry[ENTRY_BYTES] = {};
    pTable->GetEntry(entry, static_cast<std::uint32_t>(nIndex));
    std::int32_t nValue;
    std::memcpy(&nValue, entry, sizeof(nValue));
    return nValue;
}
