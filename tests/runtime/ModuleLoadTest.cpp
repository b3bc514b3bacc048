// What loading and unloading the library does to the process of its host.
#include "host/Quorvane.h"
#include "tests/runtime/CountedImports.h"
#include "tests/support/BesideProgram.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>
#include <memory>
#include <winternl.h>

namespace
{
// A module of its own, whose load count no other test touches.
class LibraryCopy
{
public:
    LibraryCopy() { CopyFileW(BesideProgram(L"Quorvane.dll").c_str(), m_path.c_str(), FALSE); }

    HMODULE Load() const { return LoadLibraryW(m_path.c_str()); }
    bool IsLoaded() const { return GetModuleHandleW(L"Copy.dll") != nullptr; }

private:
    TempFolder m_folder;
    std::wstring m_path = m_folder.PathOf(L"Copy.dll");
};

template <class Function>
Function Export(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

void MakeAndReleaseInterface(HMODULE module)
{
    const auto release = Export<ReleaseInterfaceFunction>(module, "ReleaseInterface");
    release(Export<NewInterfaceFunction>(module, "NewInterface")());
}

int CountFreeIndexes(DWORD(WINAPI* take)(), BOOL(WINAPI* giveBack)(DWORD))
{
    std::vector<DWORD> taken;
    for (DWORD index = take(); index != TLS_OUT_OF_INDEXES; index = take())
        taken.push_back(index);
    for (const DWORD index : taken)
        giveBack(index);
    return static_cast<int>(taken.size());
}

int CountFreeTlsIndexes()
{
    return CountFreeIndexes(&TlsAlloc, &TlsFree);
}

TEST(ModuleLoad, LeavesNoThreadLocalIndexBehind)
{
    constexpr int cycles = 200;
    const LibraryCopy library;
    FreeLibrary(library.Load()); // what the system keeps for itself comes with the first
    const int before = CountFreeTlsIndexes();
    for (int i = 0; i < cycles; ++i)
    {
        const HMODULE module = library.Load();
        ASSERT_TRUE(module);
        MakeAndReleaseInterface(module);
        FreeLibrary(module);
        ASSERT_FALSE(library.IsLoaded());
    }
    EXPECT_EQ(CountFreeTlsIndexes(), before);
}

struct LoadNotice
{
    ULONG flags;
    const UNICODE_STRING* path;
    const UNICODE_STRING* name;
    void* base;
    ULONG size;
};

using LoadCallback = void(CALLBACK*)(ULONG reason, const LoadNotice* notice, void* context);

// Counts from the moment on at which a module is in memory and none of its code has run yet.
class CountedLoad
{
public:
    explicit CountedLoad(const char* library) : m_library(library)
    {
        System<LONG(NTAPI*)(ULONG, LoadCallback, void*, void**)>("LdrRegisterDllNotification")(0, &OnLoad, this,
                                                                                               &m_cookie);
    }
    ~CountedLoad() { System<LONG(NTAPI*)(void*)>("LdrUnregisterDllNotification")(m_cookie); }
    CountedLoad(const CountedLoad&) = delete;
    CountedLoad& operator=(const CountedLoad&) = delete;

    const CountedImports* Imports() const { return m_imports.get(); }
    void StopCounting() { m_imports.reset(); }

private:
    template <class Function>
    static Function System(const char* name)
    {
        return Export<Function>(GetModuleHandleW(L"ntdll.dll"), name);
    }

    static void CALLBACK OnLoad(ULONG reason, const LoadNotice* notice, void* context)
    {
        constexpr ULONG loaded = 1;
        auto& self = *static_cast<CountedLoad*>(context);
        if (reason == loaded && std::wstring(notice->name->Buffer, notice->name->Length / 2) == L"Copy.dll")
            self.m_imports = std::make_unique<CountedImports>(static_cast<HMODULE>(notice->base), self.m_library);
    }

    const char* m_library;
    void* m_cookie = nullptr;
    std::unique_ptr<CountedImports> m_imports;
};

class CallsWhileLoading : public testing::TestWithParam<const char*>
{
};

// The loader's lock is held then: what they might load or wait for could be the thread that waits for the lock.
TEST_P(CallsWhileLoading, DoNotReachTheWindowSystem)
{
    const LibraryCopy library;
    CountedLoad load(GetParam());
    const HMODULE module = library.Load();
    ASSERT_TRUE(module);
    ASSERT_TRUE(load.Imports());
    EXPECT_GT(load.Imports()->Count(), 0u);
    EXPECT_EQ(load.Imports()->Called(), std::vector<std::string>());
    load.StopCounting();
    FreeLibrary(module);
}

INSTANTIATE_TEST_SUITE_P(OfEachLibrary, CallsWhileLoading, testing::Values("user32.dll", "gdi32.dll", "comctl32.dll"));

TEST(CallsWhileLoadingAreCounted, WhereThereAreSome)
{
    const LibraryCopy library;
    CountedLoad load("kernel32.dll");
    const HMODULE module = library.Load();
    ASSERT_TRUE(load.Imports());
    EXPECT_NE(load.Imports()->Called(), std::vector<std::string>());
    load.StopCounting();
    FreeLibrary(module);
}
} // namespace
