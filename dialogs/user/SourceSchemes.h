#pragma once

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/MisreadText.h"
#include "dialogs/scheme/SchemeRecords.h"
#include "host/IHostData.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"

#include <afxstr.h>

#include <algorithm>

// The schemes of a configuration that the user editor shows and that a new user scheme can be made from.

// Calls the visitor with every existing scheme of a list that belongs to the configuration, and its index.
template <class SchemeList, class Visitor>
void ForEachSchemeOf(SchemeList* pList, int nConfig, int nMaxCount, Visitor visit)
{
    const int nCount = std::min(static_cast<int>(HostCount(pList)), nMaxCount);
    for (int i = 0; i < nCount; ++i)
    {
        auto* pScheme = pList->GetAt(static_cast<std::uint32_t>(i));
        if (pScheme && pScheme->GetConfigIndex() == nConfig)
            visit(*pScheme, i);
    }
}

// Presets are the enabled factory schemes. One beyond the ids of factory schemes could not be told from a user scheme.
template <class Visitor>
void ForEachPreset(int nConfig, Visitor visit)
{
    ForEachSchemeOf(GetHostContext().pData->GetFactorySchemeList(), nConfig, FIRST_USER_SCHEME,
                    [&](IPrintScheme& scheme, int nIndex) {
                        if (scheme.GetEnabled())
                            visit(scheme, nIndex);
                    });
}

template <class Visitor>
void ForEachUserScheme(int nConfig, Visitor visit)
{
    ForEachSchemeOf(GetHostContext().pData->GetUserSchemeList(), nConfig, MAX_HOST_COUNT,
                    [&](IUserScheme& scheme, int nIndex) { visit(scheme, nIndex + FIRST_USER_SCHEME); });
}

// The row of a preset; its name stands there unconverted.
inline CString PresetText(const char* pszName, const CString& strPreset)
{
    CString strRow;
    strRow.Format(L"%s(%s)", NarrowReadAsWide(pszName).c_str(), strPreset.GetString());
    return strRow;
}
