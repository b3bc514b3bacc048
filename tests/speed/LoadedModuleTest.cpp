#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/support/DialogWatch.h"

#include <psapi.h>

namespace
{
using LoadedModule = FactorySchemeFixture;

std::wstring PathOf(HMODULE module)
{
    wchar_t path[MAX_PATH + 1]{};
    GetModuleFileNameW(module, path, MAX_PATH);
    return path;
}

bool StartsWith(const std::wstring& path, const std::wstring& folder)
{
    return _wcsnicmp(path.c_str(), folder.c_str(), folder.size()) == 0;
}

TEST_F(LoadedModule, IsTheSystemsOrTheHostsOrTheLibraryItself)
{
    Run([](FactoryEditor& editor) {
        const Window dialog = editor.OpenCustomEclosion();
        editor.Confirm(dialog, IDCANCEL);
        editor.SaveAndQuit();
    });
    HMODULE modules[1024];
    DWORD bytes = 0;
    ASSERT_TRUE(EnumProcessModules(GetCurrentProcess(), modules, sizeof modules, &bytes));
    ASSERT_LE(bytes, sizeof modules);
    wchar_t system[MAX_PATH + 1]{};
    GetWindowsDirectoryW(system, MAX_PATH);
    for (DWORD i = 0; i < bytes / sizeof(HMODULE); ++i)
    {
        const bool isKnown = modules[i] == GetModuleHandleW(nullptr) || modules[i] == Library::Loaded().Module() ||
                             StartsWith(PathOf(modules[i]), system);
        EXPECT_TRUE(isKnown) << Utf8(PathOf(modules[i]));
    }
}
} // namespace
