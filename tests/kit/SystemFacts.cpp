#include "tests/kit/SystemFacts.h"

#include "tests/kit/Text.h"

#include <windows.h>

#include <commctrl.h>
#include <uxtheme.h>

namespace
{
template <class Function>
Function SystemFunction(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

std::string Dotted(std::initializer_list<unsigned long> numbers)
{
    std::string text;
    for (const unsigned long number : numbers)
        text += (text.empty() ? "" : ".") + std::to_string(number);
    return text;
}

// GetVersionEx tells what the program's manifest asks for.
std::string WindowsVersion()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (const auto get = SystemFunction<LONG(NTAPI*)(OSVERSIONINFOW*)>("RtlGetVersion"))
        get(&version);
    return Dotted({version.dwMajorVersion, version.dwMinorVersion, version.dwBuildNumber}) + " " +
           Utf8Of(version.szCSDVersion);
}

std::string WineVersionText()
{
    const auto get = SystemFunction<const char*(CDECL*)()>("wine_get_version");
    return get ? get() : "no";
}

std::string Processor()
{
    SYSTEM_INFO info{};
    GetNativeSystemInfo(&info);
    switch (info.wProcessorArchitecture)
    {
    case PROCESSOR_ARCHITECTURE_AMD64:
        return "x64";
    case PROCESSOR_ARCHITECTURE_INTEL:
        return "x86";
    default:
        return "kind " + std::to_string(info.wProcessorArchitecture);
    }
}

std::wstring PathOf(HMODULE module)
{
    wchar_t path[MAX_PATH + 1]{};
    GetModuleFileNameW(module, path, MAX_PATH);
    return path;
}

std::string FileVersion(const std::wstring& path)
{
    std::vector<char> bytes(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    void* value = nullptr;
    UINT size = 0;
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(bytes.size()), bytes.data()) ||
        !VerQueryValueW(bytes.data(), L"\\", &value, &size))
        return "unknown";
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(value);
    return Dotted({HIWORD(info.dwFileVersionMS), LOWORD(info.dwFileVersionMS), HIWORD(info.dwFileVersionLS),
                   LOWORD(info.dwFileVersionLS)});
}

// Those that the manifest of this program asks for, as the library's asks for the dialogs.
std::string CommonControls()
{
    InitCommonControls();
    const std::wstring path = PathOf(GetModuleHandleW(L"comctl32.dll"));
    return FileVersion(path) + ", " + Utf8Of(path);
}

std::string LocaleName(LCID locale)
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH]{};
    LCIDToLocaleName(locale, name, LOCALE_NAME_MAX_LENGTH, 0);
    return Utf8Of(name);
}

// Of narrow texts on a thread that nobody gave another locale.
std::string ThreadCodePage()
{
    DWORD codePage = 0;
    GetLocaleInfoW(GetThreadLocale(), LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t*>(&codePage), sizeof codePage / sizeof(wchar_t));
    return std::to_string(codePage);
}

std::string Dpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return std::to_string(dpi);
}

std::string Size(int width, int height)
{
    return std::to_string(GetSystemMetrics(width)) + " x " + std::to_string(GetSystemMetrics(height));
}

std::string Screen()
{
    return Size(SM_CXSCREEN, SM_CYSCREEN) + ", all " + std::to_string(GetSystemMetrics(SM_CMONITORS)) +
           " monitors: " + Size(SM_CXVIRTUALSCREEN, SM_CYVIRTUALSCREEN);
}

std::string YesOrNo(bool value)
{
    return value ? "yes" : "no";
}
} // namespace

std::vector<std::pair<std::string, std::string>> SystemFacts()
{
    return {
        {"Windows", WindowsVersion()},
        {"Wine", WineVersionText()},
        {"Processor", Processor()},
        {"Common controls", CommonControls()},
        {"ANSI code page", std::to_string(GetACP())},
        {"OEM code page", std::to_string(GetOEMCP())},
        {"Code page of a thread", ThreadCodePage()},
        {"Locale of the user", LocaleName(GetUserDefaultLCID())},
        {"Locale of the system", LocaleName(GetSystemDefaultLCID())},
        {"DPI of the system", Dpi()},
        {"Themes are active", YesOrNo(IsThemeActive() && IsAppThemed())},
        {"Screen", Screen()},
        {"Remote session", YesOrNo(GetSystemMetrics(SM_REMOTESESSION) != 0)},
    };
}
