#pragma once

#include <cstddef>
#include <string>

#include "tests/base/TempFolder.h"

// A test's folder that may hold empty folders, too.
class TemporaryFolder : public TempFolder
{
public:
    ~TemporaryFolder();

    std::wstring PathOf(const std::wstring& name) const { return Path() + L"\\" + name; }
    std::size_t FileCount() const;
};

std::string ContentOf(const std::wstring& path);
