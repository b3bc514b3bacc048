#pragma once

#include <map>
#include <set>
#include <string>

// Functions by library.
using Imports = std::map<std::string, std::set<std::string>>;

// What the library may import on this architecture: the content of windows7-imports.txt.
Imports AllowedImports();
// What of it every compiler makes the library import.
Imports NeededImports();
