#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "refhost/program/Editors.h"

namespace refhost
{

struct CommandLine
{
    std::wstring machine;     // empty: none yet
    std::wstring language;    // empty: the program chooses
    std::wstring languageDir; // the folder with one folder per language; empty: beside the program
    const Editor* open = nullptr;
};

// What is wrong with a command line, for its user to read.
class CCommandLineError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

extern const wchar_t* const USAGE;

// `arguments` without the program's name. Throws CCommandLineError.
CommandLine ParseCommandLine(const std::vector<std::wstring>& arguments);

} // namespace refhost
