#include "tests/image/ImportList.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace
{
constexpr const char* kThisArchitecture = sizeof(void*) == 8 ? "x64" : "x86";

// What a line has behind the function's name.
struct Conditions
{
    bool isForThisArchitecture = true;
    bool mayBeMissing = false;
};

Conditions ReadConditions(std::istream& words)
{
    Conditions conditions;
    for (std::string word; words >> word;)
        if (word == "runtime")
            conditions.mayBeMissing = true;
        else
            conditions.isForThisArchitecture = word == kThisArchitecture;
    return conditions;
}

Imports ReadList(bool withThoseThatMayBeMissing)
{
    std::ifstream file("windows7-imports.txt");
    if (!file)
        throw std::runtime_error("windows7-imports.txt does not lie beside the tests");
    Imports imports;
    std::string library;
    for (std::string line; std::getline(file, line);)
    {
        std::istringstream words(line);
        std::string name;
        words >> name;
        if (name.empty() || name[0] == '#')
            continue;
        const Conditions conditions = ReadConditions(words);
        if (line[0] != ' ')
            library = name;
        else if (conditions.isForThisArchitecture && (withThoseThatMayBeMissing || !conditions.mayBeMissing))
            imports[library].insert(name);
    }
    return imports;
}
} // namespace

Imports AllowedImports()
{
    return ReadList(true);
}

Imports NeededImports()
{
    return ReadList(false);
}
