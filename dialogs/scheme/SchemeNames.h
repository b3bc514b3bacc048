#pragma once

#include <cstdint>
#include <string>

// The name of a factory scheme that was just added: of the configuration's wide name only the bytes before the first
// zero byte are left (of plain Latin text its first character), and the number of schemes follows. Operators know
// schemes by these names.
std::string NewSchemeName(const wchar_t* pszConfigName, std::uint32_t nSchemeCount);

// The name of a copy in another configuration.
std::string CopiedSchemeName(int nXResolution, int nYResolution);
