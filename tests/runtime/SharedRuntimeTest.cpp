// The library raises and catches exceptions of its own. In a process that holds the shared run-time library as well,
// each kind of them must find its handler: the operator sees the same as in any other process, and the process lives
// on.
#include "tests/runtime/SharedRuntime.h"
#include "refhost/Host.h"
#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/support/ImportHook.h"

#include <atomic>
#include <cstdlib>

namespace
{
std::atomic<bool> isMemoryGone{false};
// What the library called before: its blocks must come from where it frees them.
decltype(&std::malloc) originalMalloc;

void* MallocWithoutMemory(std::size_t size)
{
    return isMemoryGone ? nullptr : originalMalloc(size);
}

// While it lives, the library gets no memory.
class NoMemory
{
public:
    NoMemory() { isMemoryGone = true; }
    ~NoMemory() { isMemoryGone = false; }
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

class ExceptionBesideSharedRuntime : public PrintModeFixture
{
protected:
    ExceptionBesideSharedRuntime() { originalMalloc = m_malloc.Original<decltype(originalMalloc)>(); }

private:
    ImportHook m_malloc{Library::Loaded().Module(), "malloc", reinterpret_cast<const void*>(&MallocWithoutMemory)};
};

void RefuseOnLeaving(const PrintModeEditor& editor, int field, const std::wstring& text)
{
    editor.Edit(field).Type(text);
    editor.Op().Key(VK_TAB);
    editor.Op().AnswerMessageBox();
}

TEST(SharedRuntime, IsInTheProcess)
{
    for (const std::wstring& file : SharedRuntimeFiles())
        EXPECT_TRUE(SharedRuntimeModule(file)) << testing::PrintToString(file);
}

TEST_F(ExceptionBesideSharedRuntime, OfANumberThatIsNoneIsCaught)
{
    Run([](PrintModeEditor& editor) {
        for (int field : {IDC_EDIT_SMALL, IDC_EDIT_MEDIUM, IDC_EDIT_LARGE})
        {
            RefuseOnLeaving(editor, field, L"abc");
            editor.Edit(field).Type(L"0.5");
        }
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}

TEST_F(ExceptionBesideSharedRuntime, OfAnIntegerThatIsNoneIsCaught)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog config = editor.OpenAddConfig();
        config.Type(IDC_EDIT_CFG_XDPI, L"abc");
        config.Dialog().Control(IDOK).Click();
        editor.Op().AnswerMessageBox();
        editor.Confirm(config, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(ExceptionBesideSharedRuntime, OfANameThatIsTooLongIsCaught)
{
    m_machine.configurations = {Config("A", {std::string(61, 'x')})};
    Run([](PrintModeEditor& editor) {
        editor.Press(IDOK);
        editor.Op().AnswerMessageBox();
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}

TEST_F(ExceptionBesideSharedRuntime, OfAControlThatIsMissingIsCaught)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog config = editor.OpenAddConfig();
        const Window field = config.Field(IDC_EDIT_CFG_COLORS);
        editor.Op().OnUi([&] { SetWindowLongPtrW(field.Handle(), GWLP_ID, 1); });
        config.Dialog().Control(IDOK).Click();
        EXPECT_TRUE(config.Dialog().Exists());
        editor.Confirm(config, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(ExceptionBesideSharedRuntime, OfMemoryThatRunsOutInAHandlerIsCaught)
{
    Run([](PrintModeEditor& editor) {
        editor.Op().OnUi([&] {
            const NoMemory noMemory;
            const HWND configs = editor.Configs().Handle();
            SendMessageW(configs, LB_SETCURSEL, 1, 0);
            SendMessageW(editor.Dialog().Handle(), WM_COMMAND, MAKEWPARAM(IDC_LIST_CFG, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(configs));
        });
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"Fast-1", L"Fast-2"}));
        editor.Cancel();
    });
}

TEST_F(ExceptionBesideSharedRuntime, OfMemoryThatRunsOutBeforeTheEditorOpensIsCaught)
{
    refhost::CHost host(m_machine);
    const Library::Interface quorvane = Library::Loaded().NewInterface();
    const NoMemory noMemory;
    EXPECT_EQ(quorvane->EditPrintModes(host.Data(), host.Control(), m_languageDir.c_str()), 1);
}

using RangeBesideSharedRuntime = FactorySchemeFixture;

TEST_F(RangeBesideSharedRuntime, ThatIsTooLargeIsRefused)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Eclosion, IDC_EDIT_RANGE_S).Type(L"100000");
        editor.Schemes().ClickRow(1);
        editor.Op().AnswerMessageBox();
        editor.Cancel();
    });
}
} // namespace
