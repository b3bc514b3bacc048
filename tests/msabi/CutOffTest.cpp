// A host whose operations raise exceptions that the library cannot catch: Microsoft's C++ exceptions and faults.
#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/msabi/ForeignHostTest.h"
#include "tests/support/FaultReport.h"

namespace
{
struct Cut
{
    const char* operation;
    Raised raised;
};

void PrintTo(const Cut& cut, std::ostream* out)
{
    *out << cut.operation << (cut.raised == Raised::Fault ? ", fault" : ", C++ exception");
}

// The host's main window; it has no object of the library's.
class MainWindow
{
public:
    MainWindow()
        : m_handle(CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr,
                                 nullptr, nullptr))
    {
        SetActiveWindow(m_handle);
    }
    ~MainWindow() { DestroyWindow(m_handle); }
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    HWND Handle() const { return m_handle; }
    bool IsEnabled() const { return IsWindowEnabled(m_handle) != FALSE; }

private:
    HWND m_handle;
};

class CutOffTest : public ForeignHostTest
{
protected:
    bool HasRaised() const { return m_host.Api().HasRaised() != 0; }

    // Nothing is left of the editor before: the host has its window back, and another editor opens and saves.
    void ExpectSoundHost()
    {
        EXPECT_TRUE(HasRaised());
        EXPECT_TRUE(m_window.IsEnabled());
        m_host.TakeChanges();
        Edit(Editor::FactorySchemes, ExpectFactoryEditor, [](FactoryEditor& editor) {
            editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Sound");
            editor.SaveAndQuit();
        });
        const std::string changes = Text(m_host.TakeChanges());
        EXPECT_NE(changes.find("Poster.SetName(\"Sound\")"), std::string::npos) << changes;
        EXPECT_NE(changes.find("control.SaveParameters(2)"), std::string::npos) << changes;
        EXPECT_TRUE(m_window.IsEnabled());
    }

    AllowedFaults m_allowed;
    MainWindow m_window;
};

// A command to a dialog of the editor.
struct Command
{
    Window dialog;
    WPARAM idAndNotice;
    LPARAM control;
};

class CutOffEditor : public CutOffTest, public testing::WithParamInterface<Cut>
{
protected:
    bool IsIn(const char* operation) const { return std::string(GetParam().operation) == operation; }

    // What leads to the operation, which will raise its exception.
    Command WayThere(const FactoryEditor& editor)
    {
        const bool isNested = IsIn("SaveCustomEclosionSet");
        const Window dialog = isNested ? editor.OpenCustomEclosion() : editor.Dialog();
        const HWND list = editor.Schemes().Handle();
        SendMessageW(list, LB_SETCURSEL, 1, 0);
        m_host.Api().RaiseIn(GetParam().operation, GetParam().raised);
        if (isNested || IsIn("SaveParameters"))
            return {dialog, IDOK, 0};
        return {dialog, MAKEWPARAM(IDC_LIST_SCHEME, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list)};
    }

    // The editor is as usable as before, unless it was about to be closed.
    void GoOn(const FactoryEditor& editor, const Window& dialog)
    {
        EXPECT_FALSE(m_window.IsEnabled());
        if (dialog != editor.Dialog())
            editor.Confirm(dialog);
        editor.Schemes().ClickRow(2);
        editor.Schemes().ClickRow(0);
        editor.SaveAndQuit();
    }
};

// A posted message reaches the operation without the system in between, so the host gets its exception back.
TEST_P(CutOffEditor, IsClosedWhereTheHostCatchesItsException)
{
    Window dialog;
    const int result = m_host.RunAndCatch(Editor::FactorySchemes, [&](Operator& op) {
        const FactoryEditor editor = ExpectFactoryEditor(op);
        dialog = editor.Dialog();
        const Command command = WayThere(editor);
        PostMessageW(command.dialog.Handle(), WM_COMMAND, command.idAndNotice, command.control);
        op.ExpectClosed(dialog);
    });
    EXPECT_EQ(result, kCaught);
    EXPECT_FALSE(dialog.Exists());
    EXPECT_EQ(GetActiveWindow(), m_window.Handle());
    ExpectSoundHost();
}

// A message that another thread sends reaches the operation through the system, which throws the exception away there.
TEST_P(CutOffEditor, GoesOnWhereTheSystemThrowsTheExceptionAway)
{
    Edit(Editor::FactorySchemes, ExpectFactoryEditor, [this](FactoryEditor& editor) {
        const Command command = WayThere(editor);
        SendMessageW(command.dialog.Handle(), WM_COMMAND, command.idAndNotice, command.control);
        EXPECT_TRUE(HasRaised());
        if (IsIn("SaveParameters"))
            editor.Op().ExpectClosed(editor.Dialog());
        else
            GoOn(editor, command.dialog);
    });
    ExpectSoundHost();
}

INSTANTIATE_TEST_SUITE_P(Operations, CutOffEditor,
                         testing::Values(Cut{"GetSpeed", Raised::CxxException}, Cut{"GetSpeed", Raised::Fault},
                                         Cut{"SetSpeed", Raised::CxxException}, Cut{"SetSpeed", Raised::Fault},
                                         Cut{"SaveParameters", Raised::CxxException},
                                         Cut{"SaveParameters", Raised::Fault},
                                         Cut{"SaveCustomEclosionSet", Raised::CxxException},
                                         Cut{"SaveCustomEclosionSet", Raised::Fault}));

class CutOffOpening : public CutOffTest, public testing::WithParamInterface<Raised>
{
};

// The host has its window back before any message is dispatched.
TEST_P(CutOffOpening, LeavesNothing)
{
    m_host.Api().RaiseIn("GetConfigList", GetParam());
    EXPECT_EQ(m_host.Api().EditAndCatch(Editor::UserSchemes, L""), kCaught);
    ExpectSoundHost();
}

INSTANTIATE_TEST_SUITE_P(Exceptions, CutOffOpening, testing::Values(Raised::CxxException, Raised::Fault));
} // namespace
