#include "tests/speed/FileOpens.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <winternl.h>

namespace
{
std::mutex g_mutex;
std::vector<std::wstring> g_paths;
decltype(&NtCreateFile) g_create = nullptr;
decltype(&NtOpenFile) g_open = nullptr;

void Note(const OBJECT_ATTRIBUTES* attributes)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    const UNICODE_STRING* name = attributes->ObjectName;
    g_paths.emplace_back(name ? std::wstring(name->Buffer, name->Length / sizeof(wchar_t)) : std::wstring());
}

NTSTATUS NTAPI CreateNoted(PHANDLE file, ACCESS_MASK access, POBJECT_ATTRIBUTES attributes, PIO_STATUS_BLOCK status,
                           PLARGE_INTEGER size, ULONG fileAttributes, ULONG share, ULONG disposition, ULONG options,
                           PVOID extra, ULONG extraLength)
{
    Note(attributes);
    return g_create(file, access, attributes, status, size, fileAttributes, share, disposition, options, extra,
                    extraLength);
}

NTSTATUS NTAPI OpenNoted(PHANDLE file, ACCESS_MASK access, POBJECT_ATTRIBUTES attributes, PIO_STATUS_BLOCK status,
                         ULONG share, ULONG options)
{
    Note(attributes);
    return g_open(file, access, attributes, status, share, options);
}

HMODULE BaseLibrary()
{
    return GetModuleHandleW(L"kernelbase.dll");
}
} // namespace

FileOpens::FileOpens()
    : m_create(BaseLibrary(), "NtCreateFile", reinterpret_cast<const void*>(&CreateNoted)),
      m_open(BaseLibrary(), "NtOpenFile", reinterpret_cast<const void*>(&OpenNoted))
{
    g_create = m_create.Original<decltype(g_create)>();
    g_open = m_open.Original<decltype(g_open)>();
    Take();
}

FileOpens::~FileOpens() = default;

std::vector<std::wstring> FileOpens::Take()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return std::exchange(g_paths, {});
}

int CountFile(const std::vector<std::wstring>& opens, const std::wstring& name)
{
    return static_cast<int>(std::count_if(opens.begin(), opens.end(), [&](const std::wstring& path) {
        return path.size() >= name.size() && _wcsicmp(path.c_str() + path.size() - name.size(), name.c_str()) == 0;
    }));
}
