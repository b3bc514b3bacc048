#include "dialogs/base/LanguageFile.h"

#include <climits>
#include <new>
#include <windows.h>

namespace
{
// Closes the file on every way out, one without memory included.
class CFileHandle
{
public:
    explicit CFileHandle(HANDLE file) : m_hFile(file) {}
    ~CFileHandle()
    {
        if (IsOpen())
            CloseHandle(m_hFile);
    }
    CFileHandle(const CFileHandle&) = delete;
    CFileHandle& operator=(const CFileHandle&) = delete;

    bool IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_hFile; }

private:
    HANDLE m_hFile;
};

std::string ReadHandle(HANDLE file)
{
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file, &size) || size.QuadPart > INT_MAX)
        return {};
    std::string bytes(static_cast<size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        return {};
    bytes.resize(read);
    return bytes;
}

// The system's call opens no profile by a longer path, even where files can have one.
bool IsProfilePath(const std::wstring& path)
{
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH;
}

std::string ReadWholeFile(const std::wstring& path)
{
    if (!IsProfilePath(path))
        return {};
    const DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const CFileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.IsOpen() ? ReadHandle(file.Get()) : std::string();
}

CLanguageText ReadText(const std::wstring& path)
{
    try
    {
        return CLanguageText(ReadWholeFile(path));
    }
    catch (const std::bad_alloc&)
    {
        // A file too large for memory is as good as none.
        return {};
    }
}
} // namespace

CLanguageFile::CLanguageFile(const std::wstring& path) : CLanguageText(ReadText(path)) {}
