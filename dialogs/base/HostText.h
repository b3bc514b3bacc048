#pragma once

#include "dialogs/base/CodePage.h"

#include <afxstr.h>

// A host's narrow text as it is shown; a null one, or one that cannot be converted, is empty.
inline CString HostText(const char* pszNarrow)
{
    return WideText(pszNarrow).value_or(std::wstring());
}

// A host's name where a format needs one: the format's own word stands for a missing one.
inline CString HostTextForFormat(const char* pszNarrow)
{
    return WideText(pszNarrow).value_or(L"(null)");
}

// Names a host object; null where the name cannot be converted.
template <class Named>
void SetHostName(Named& object, LPCTSTR pszName)
{
    const std::optional<std::string> name = NarrowText(pszName);
    object.SetName(name ? name->c_str() : nullptr);
}
