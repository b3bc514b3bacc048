// The functions that tell of scales came with Windows 10. Like the library, the tests look them up at run time: they
// have to start on Windows 7.
#undef WINVER
#undef _WIN32_WINNT
#define WINVER 0x0A00
#define _WIN32_WINNT 0x0A00

#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
struct HostScale
{
    const char* name;
    DPI_AWARENESS_CONTEXT context;
    DPI_AWARENESS ofEditor;
};

std::ostream& operator<<(std::ostream& stream, const HostScale& scale)
{
    return stream << scale.name;
}

template <class Function>
Function SystemFunction(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

#define SYSTEM_FUNCTION(name) SystemFunction<decltype(&name)>(#name)

bool HasScales()
{
    return SYSTEM_FUNCTION(SetThreadDpiAwarenessContext) != nullptr;
}

DPI_AWARENESS_CONTEXT SetContextOfThread(DPI_AWARENESS_CONTEXT context)
{
    return HasScales() ? SYSTEM_FUNCTION(SetThreadDpiAwarenessContext)(context) : nullptr;
}

DPI_AWARENESS_CONTEXT ContextOfThread()
{
    return HasScales() ? SYSTEM_FUNCTION(GetThreadDpiAwarenessContext)() : nullptr;
}

class EditorScale : public FactorySchemeFixture, public testing::WithParamInterface<HostScale>
{
protected:
    EditorScale() : m_before(SetContextOfThread(GetParam().context)), m_ofHost(ContextOfThread()) {}
    ~EditorScale() override { SetContextOfThread(m_before); }

    void SetUp() override
    {
        if (!HasScales())
            GTEST_SKIP() << "this system has one scale for all windows";
    }

    const DPI_AWARENESS_CONTEXT m_before;
    const DPI_AWARENESS_CONTEXT m_ofHost; // some systems do not tell it from its first version
};

DPI_AWARENESS AwarenessOf(const Window& window)
{
    const auto contextOf = SYSTEM_FUNCTION(GetWindowDpiAwarenessContext);
    return SYSTEM_FUNCTION(GetAwarenessFromDpiAwarenessContext)(contextOf(window.Handle()));
}

// Template, fonts and measures keep to one scale in every window. That of the host is in effect again afterwards.
TEST_P(EditorScale, IsOneForAllWindows)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(AwarenessOf(editor.Dialog()), GetParam().ofEditor);
        EXPECT_EQ(AwarenessOf(editor.Open(SchemePage::Eclosion)), GetParam().ofEditor);
        const Window eclosion = editor.OpenCustomEclosion();
        EXPECT_EQ(AwarenessOf(eclosion), GetParam().ofEditor);
        editor.Confirm(eclosion, IDCANCEL);
        editor.Cancel();
    });
    EXPECT_TRUE(SYSTEM_FUNCTION(AreDpiAwarenessContextsEqual)(ContextOfThread(), m_ofHost));
}

const HostScale kScales[] = {
    {"PerMonitor", DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE, DPI_AWARENESS_SYSTEM_AWARE},
    {"PerMonitorV2", DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2, DPI_AWARENESS_SYSTEM_AWARE},
    {"System", DPI_AWARENESS_CONTEXT_SYSTEM_AWARE, DPI_AWARENESS_SYSTEM_AWARE},
    {"Unaware", DPI_AWARENESS_CONTEXT_UNAWARE, DPI_AWARENESS_UNAWARE},
};

INSTANTIATE_TEST_SUITE_P(InAHost, EditorScale, testing::ValuesIn(kScales),
                         [](const auto& scale) { return std::string(scale.param.name); });
} // namespace
