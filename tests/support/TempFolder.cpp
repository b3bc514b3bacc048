#include "tests/support/TempFolder.h"

#include <stdexcept>
#include <windows.h>

namespace
{
std::wstring NewFolder()
{
    static int count = 0;
    wchar_t temp[MAX_PATH + 1]{};
    GetTempPathW(MAX_PATH + 1, temp);
    const std::wstring prefix = temp + (L"tests_" + std::to_wstring(GetCurrentProcessId())) + L"_";
    // A name is taken where a program of the same number ended without cleaning up.
    for (int attempt = 0; attempt < 1000; ++attempt)
    {
        const std::wstring path = prefix + std::to_wstring(++count);
        if (CreateDirectoryW(path.c_str(), nullptr))
            return path;
    }
    throw std::runtime_error("no temporary folder");
}
} // namespace

TempFolder::TempFolder() : m_path(NewFolder()) {}

TempFolder::~TempFolder()
{
    WIN32_FIND_DATAW found{};
    HANDLE search = FindFirstFileW((m_path + L"\\*").c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found))
    {
        const std::wstring path = PathOf(found.cFileName);
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path.c_str());
        RemoveDirectoryW(path.c_str());
    }
    FindClose(search);
    RemoveDirectoryW(m_path.c_str());
}

std::wstring TempFolder::Write(const std::wstring& name, std::string_view bytes) const
{
    const std::wstring path = PathOf(name);
    WriteBytes(path, bytes);
    return path;
}

void WriteBytes(const std::wstring& path, std::string_view bytes)
{
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool ok = file != INVALID_HANDLE_VALUE &&
                    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    if (!ok || written != bytes.size())
        throw std::runtime_error("cannot write a test's file");
}
