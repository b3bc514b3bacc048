#include "tests/runtime/SharedRuntime.h"

#include "tests/support/BesideProgram.h"

#include <gtest/gtest.h>

namespace
{
class LoadedSharedRuntime : public testing::Environment
{
public:
    // Beside each other, but not beside the program: no other test program may find them.
    void SetUp() override
    {
        SetDllDirectoryW(BesideProgram(L"runtime").c_str());
        for (const std::wstring& file : SharedRuntimeFiles())
            ASSERT_TRUE(LoadLibraryW(file.c_str())) << "error " << GetLastError();
        SetDllDirectoryW(nullptr);
    }
};

const testing::Environment* const kEnvironment = testing::AddGlobalTestEnvironment(new LoadedSharedRuntime);
} // namespace

std::vector<std::wstring> SharedRuntimeFiles()
{
#ifdef _WIN64
    const wchar_t* const unwinder = L"libgcc_s_seh-1.dll";
#else
    const wchar_t* const unwinder = L"libgcc_s_dw2-1.dll";
#endif
    return {L"libwinpthread-1.dll", unwinder, L"libstdc++-6.dll"};
}

HMODULE SharedRuntimeModule(const std::wstring& file)
{
    return GetModuleHandleW(file.c_str());
}
