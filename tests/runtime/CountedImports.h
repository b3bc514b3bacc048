#pragma once

#include "tests/support/ImportTable.h"

#include <string>
#include <vector>

// Counts, for as long as it lives, how often a module calls what it imports from one library of the system. The
// functions themselves run as before.
class CountedImports
{
public:
    // The library by its file name. The module's start-up code need not have run yet.
    CountedImports(HMODULE module, const char* library);
    ~CountedImports();
    CountedImports(const CountedImports&) = delete;
    CountedImports& operator=(const CountedImports&) = delete;

    std::size_t Count() const { return m_imports.size(); }
    // The functions that were called at least once.
    std::vector<std::string> Called() const;

private:
    struct Stub
    {
        unsigned char code[16];
        ULONG_PTR function;
        LONG calls;
    };

    std::vector<Import> m_imports;
    Stub* m_stubs; // one for each of them, beside each other and executable
};
