#include "tests/refhost/TemporaryFolder.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

TemporaryFolder::~TemporaryFolder()
{
    for (const auto& entry : fs::directory_iterator(Path()))
        RemoveDirectoryW(entry.path().c_str());
}

std::size_t TemporaryFolder::FileCount() const
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(Path()), fs::directory_iterator()));
}

std::string ContentOf(const std::wstring& path)
{
    std::ifstream file(fs::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
