#pragma once

#include "tests/support/ImportHook.h"

#include <string>
#include <vector>

// Writes down every file that the process opens while this object lives, whoever asks for it: every road leads through
// one system library to the two calls that open files. One at a time.
class FileOpens
{
public:
    FileOpens();
    ~FileOpens();
    FileOpens(const FileOpens&) = delete;
    FileOpens& operator=(const FileOpens&) = delete;

    // Paths as the system writes them, since the last call.
    std::vector<std::wstring> Take();

private:
    ImportHook m_create;
    ImportHook m_open;
};

int CountFile(const std::vector<std::wstring>& opens, const std::wstring& name);
