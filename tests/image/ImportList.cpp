#include "tests/image/ImportList.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace
{
constexpr const char* kThisArchitecture = sizeof(void*) == 8 ? "x64" : "x86";
}

std::map<std::string, std::set<std::string>> AllowedImports()
{
    std::ifstream file("windows7-imports.txt");
    if (!file)
        throw std::runtime_error("windows7-imports.txt does not lie beside the tests");
    std::map<std::string, std::set<std::string>> allowed;
    std::string library;
    for (std::string line; std::getline(file, line);)
    {
        std::istringstream words(line);
        std::string name;
        std::string architecture;
        words >> name >> architecture;
        if (name.empty() || name[0] == '#')
            continue;
        if (line[0] != ' ')
            library = name;
        else if (architecture.empty() || architecture == kThisArchitecture)
            allowed[library].insert(name);
    }
    return allowed;
}
