#pragma once

#include <map>
#include <set>
#include <string>

// What the library may import on this architecture: the content of windows7-imports.txt.
std::map<std::string, std::set<std::string>> AllowedImports();
