#include "tests/kit/WorkFolder.h"

#include "tests/support/FileContent.h"

#include <stdexcept>
#include <windows.h>

namespace
{
std::wstring NewFolder()
{
    wchar_t temp[MAX_PATH + 1]{};
    GetTempPathW(MAX_PATH + 1, temp);
    const std::wstring path = temp + (L"quorvane-tests-" + std::to_wstring(GetCurrentProcessId()));
    if (!CreateDirectoryW(path.c_str(), nullptr) && GetLastError() != ERROR_ALREADY_EXISTS)
        throw std::runtime_error("there is no folder for temporary files");
    return path;
}
} // namespace

WorkFolder::WorkFolder() : m_path(NewFolder()) {}

WorkFolder::~WorkFolder()
{
    RemoveDirectoryW(m_path.c_str());
}

std::string WorkFolder::Take(const std::wstring& name) const
{
    const std::wstring path = PathOf(name);
    if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES)
        return {};
    const std::string content = ContentOf(path);
    DeleteFileW(path.c_str());
    return content;
}
