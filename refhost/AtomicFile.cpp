#include "refhost/AtomicFile.h"

#include <windows.h>

#include "refhost/MachineFileError.h"
#include "refhost/TextConversion.h"

namespace refhost
{
namespace
{

constexpr LONGLONG LARGEST_FILE = LONGLONG{64} * 1024 * 1024;

std::string ErrorText(DWORD code)
{
    wchar_t text[512] = {};
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                        text, 512, nullptr);
    std::wstring message(text, length);
    while (!message.empty() && (message.back() == L'\n' || message.back() == L'\r' || message.back() == L'.'))
        message.pop_back();
    return Utf8FromWide(message) + " (system error " + std::to_string(code) + ")";
}

[[noreturn]] void Fail(const std::string& what, const std::wstring& path, DWORD code)
{
    throw CMachineFileError(what + " " + Utf8FromWide(path) + ": " + ErrorText(code));
}

class CFile
{
public:
    CFile(const std::wstring& path, DWORD access, DWORD share, DWORD disposition)
        : m_hFile(CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~CFile() { Close(); }
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    bool IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }
    HANDLE Handle() const { return m_hFile; }

    bool Close()
    {
        const HANDLE handle = m_hFile;
        m_hFile = INVALID_HANDLE_VALUE;
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle);
    }

private:
    HANDLE m_hFile;
};

bool WriteAndStore(const std::wstring& path, const std::string& text)
{
    CFile file(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    DWORD written = 0;
    return file.IsOpen() && WriteFile(file.Handle(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
           written == text.size() && FlushFileBuffers(file.Handle()) && file.Close();
}

bool IsReadOnly(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace

std::string ReadWholeFile(const std::wstring& path)
{
    CFile file(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    LARGE_INTEGER size = {};
    if (!file.IsOpen() || !GetFileSizeEx(file.Handle(), &size))
        Fail("cannot open", path, GetLastError());
    if (size.QuadPart > LARGEST_FILE)
        throw CMachineFileError(Utf8FromWide(path) + ": is too large to be a machine file");
    std::string text(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file.Handle(), text.data(), static_cast<DWORD>(text.size()), &read, nullptr))
        Fail("cannot read", path, GetLastError());
    text.resize(read);
    return text;
}

void ReplaceWholeFile(const std::wstring& path, const std::string& text)
{
    // Replacing by name would succeed on some systems: the attribute guards the folder's entry there, not the data.
    if (IsReadOnly(path))
        Fail("cannot write", path, ERROR_FILE_READ_ONLY);
    const std::wstring fresh = path + L".new";
    if (!WriteAndStore(fresh, text))
    {
        const DWORD code = GetLastError();
        DeleteFileW(fresh.c_str());
        Fail("cannot write", fresh, code);
    }
    if (!MoveFileExW(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
    {
        const DWORD code = GetLastError();
        DeleteFileW(fresh.c_str());
        Fail("cannot replace", path, code);
    }
}

} // namespace refhost
