#include "dialogs/scheme/SchemeNames.h"

#include "dialogs/base/MisreadText.h"

#include <cstdio>

namespace
{
// A scheme's name has room for 62 characters and the terminator.
constexpr std::size_t NAME_BYTES = 63;
} // namespace

std::string NewSchemeName(const wchar_t* pszConfigName, std::uint32_t nSchemeCount)
{
    char szName[NAME_BYTES];
    std::snprintf(szName, sizeof(szName), "%s-%u", WideReadAsNarrow(pszConfigName).c_str(),
                  static_cast<unsigned>(nSchemeCount));
    return szName;
}

std::string CopiedSchemeName(int nXResolution, int nYResolution)
{
    char szName[NAME_BYTES];
    std::snprintf(szName, sizeof(szName), "%dX%d_Copy", nXResolution, nYResolution);
    return szName;
}
