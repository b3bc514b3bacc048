#include "tests/editors/fixtures/PrintModeFixture.h"

namespace
{
class ModuleEntry : public PrintModeFixture
{
protected:
    // Runs an operation that must not open anything.
    static std::int32_t WithoutDialog(const std::function<std::int32_t()>& operation)
    {
        return RunEditor(operation, [](Operator&) {});
    }
};

TEST_F(ModuleEntry, NullHostPointerEndsEachEditorAtOnce)
{
    LoggedHost host(m_machine);
    const Library::Interface editors = Library::Loaded().NewInterface();
    const wchar_t* dir = m_languageDir.c_str();
    EXPECT_EQ(WithoutDialog([&] { return editors->EditPrintModes(nullptr, host.Control(), dir); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditPrintModes(host.Data(), nullptr, dir); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditPrintModes(nullptr, nullptr, nullptr); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditFactorySchemes(nullptr, host.Control(), dir); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditFactorySchemes(host.Data(), nullptr, dir); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditUserSchemes(nullptr, host.Control(), dir); }), 0);
    EXPECT_EQ(WithoutDialog([&] { return editors->EditUserSchemes(host.Data(), nullptr, dir); }), 0);
    EXPECT_EQ(host.Log().Everything(), Calls());
}

// Run expects the result 1.
TEST_F(ModuleEntry, ReturnsOneWhateverEndedTheEditor)
{
    Run([](PrintModeEditor& editor) { editor.SaveAndQuit(); });
    RunAgain([](PrintModeEditor& editor) { editor.Cancel(); });
    RunAgain([](PrintModeEditor& editor) { editor.Op().Close(editor.Dialog()); });
    RunAgain([](PrintModeEditor& editor) { editor.Op().Key(VK_ESCAPE); });
    RunAgain([](PrintModeEditor& editor) { editor.Op().Key(VK_RETURN); });
}

TEST_F(ModuleEntry, ReleasingNullDoesNothing)
{
    Library::Loaded().ReleaseFunction()(nullptr);
    Run([](PrintModeEditor& editor) { editor.Cancel(); });
}

TEST_F(ModuleEntry, EveryCallMakesAnObjectOfItsOwn)
{
    const Library::Interface first = Library::Loaded().NewInterface();
    const Library::Interface second = Library::Loaded().NewInterface();
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first.get(), second.get());
}

TEST_F(ModuleEntry, DestroyFreesTheObjectAndReturnsItsAddress)
{
    IQuorvane* object = Library::Loaded().NewInterface().release();
    void* address = object;
    EXPECT_EQ(object->Destroy(1), address);
}

TEST_F(ModuleEntry, EachRunShowsTheHostOfThatRun)
{
    Run([](PrintModeEditor& editor) { editor.Cancel(); });
    m_machine.configurations = {Config("Other", {"Other-1"})};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), Texts{L"Other [720X1200][4C][2B]"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Other-1"});
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}

TEST_F(ModuleEntry, EachRunReadsTheLanguageFileAfresh)
{
    m_language.WriteTexts(L"IDC_STATIC_CFG=Before\r\n");
    Run([this](PrintModeEditor& editor) {
        m_language.WriteTexts(L"IDC_STATIC_CFG=After\r\n");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"Before");
        editor.Cancel();
    });
    RunAgain([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"After");
        editor.Cancel();
    });
}

// Another host and another object want editors while the first has one open.
class SecondEditor : public ModuleEntry
{
protected:
    // All three operations, by an object of their own.
    void ExpectRefused()
    {
        EXPECT_EQ(m_second->EditPrintModes(m_other.Data(), m_other.Control(), m_otherLanguage.c_str()), 0);
        EXPECT_EQ(m_second->EditFactorySchemes(m_other.Data(), m_other.Control(), m_otherLanguage.c_str()), 0);
        EXPECT_EQ(m_second->EditUserSchemes(m_other.Data(), m_other.Control(), m_otherLanguage.c_str()), 0);
        EXPECT_EQ(m_other.Log().Everything(), Calls());
    }

    LoggedHost m_other{m_machine};

private:
    Library::Interface m_second = Library::Loaded().NewInterface();
    std::wstring m_otherLanguage = L"C:\\no such folder";
};

TEST_F(SecondEditor, LeavesTheFirstAsItIs)
{
    Run([this](PrintModeEditor& editor) {
        editor.Op().OnUi([this] { ExpectRefused(); });
        const ConfigDialog dialog = editor.OpenAddConfig();
        editor.Op().OnUi([this] { ExpectRefused(); });
        editor.Confirm(dialog, IDCANCEL);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
    EXPECT_EQ(m_other.Log().Everything(), Calls());
}

TEST_F(SecondEditor, IsRefusedOnAnotherThread)
{
    Run([this](PrintModeEditor& editor) {
        ExpectRefused();
        editor.Cancel();
    });
}

std::function<void()> onTime;

void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD)
{
    KillTimer(nullptr, timer);
    onTime();
}

TEST_F(SecondEditor, IsRefusedFromATimer)
{
    bool isOver = false;
    onTime = [&] {
        ExpectRefused();
        isOver = true;
    };
    Run([&](PrintModeEditor& editor) {
        editor.Op().OnUi([&] { SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &Tick); });
        editor.Op().WaitFor("the timer", [&] { return isOver; });
        editor.Cancel();
    });
}

TEST_F(SecondEditor, OpensOnceTheFirstIsClosed)
{
    for (int i = 0; i < 2; ++i)
        Run([](PrintModeEditor& editor) { editor.Cancel(); });
}

// How often the library must be freed until it has gone.
int UnloadCount()
{
    int count = 0;
    for (HMODULE module = GetModuleHandleW(L"Quorvane.dll"); module; module = GetModuleHandleW(L"Quorvane.dll"))
    {
        FreeLibrary(module);
        ++count;
    }
    return count;
}

TEST(ModuleLoading, EveryRunRaisesTheLoadCountByOne)
{
    UnloadCount();
    {
        const Library library;
        const Library::Interface editors = library.NewInterface();
        refhost::CHost host(PrintModeMachine());
        for (int i = 0; i < 3; ++i)
            RunEditor([&] { return editors->EditPrintModes(host.Data(), host.Control(), L""); },
                      [](Operator& op) { PrintModeEditor(op, op.ExpectDialog(kEditorCaption)).Cancel(); });
    }
    EXPECT_EQ(UnloadCount(), 4);
    Library::Loaded() = Library();
}
} // namespace
