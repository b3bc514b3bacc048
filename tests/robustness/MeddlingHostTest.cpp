#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/machines/WholeMachine.h"
#include "tests/robustness/HostileHost.h"
#include "tests/support/EditorRun.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Library.h"

#include <gtest/gtest.h>

// Hosts that do one wrong thing, at one moment.
namespace
{
using Calls = std::vector<std::string>;

class MeddlingHost : public testing::Test
{
protected:
    template <class Editor>
    void Run(const std::function<void(const Editor&)>& script)
    {
        constexpr bool isFactory = std::is_same_v<Editor, FactoryEditor>;
        const auto operation = isFactory ? &IQuorvane::EditFactorySchemes : &IQuorvane::EditPrintModes;
        const auto withEditor = [&](Operator& op) {
            const auto isEditor = [](const Window& any) { return any.Has(IDC_LIST_CFG); };
            const Editor editor(op, op.ExpectDialogWith("an editor", isEditor));
            script(editor);
        };
        const auto run = [&] {
            return (m_interface.get()->*operation)(m_host.Data(), m_host.Control(), m_language.Path().c_str());
        };
        EXPECT_EQ(RunEditor(run, withEditor), 1);
        EXPECT_EQ(m_host.WrongLoans(), 0u);
        EXPECT_EQ(m_sound.Log().Violations(), Calls());
    }

    Calls ChangesWith(const std::string& text)
    {
        Calls found;
        for (const std::string& call : m_sound.Log().Changes())
            if (call.find(text) != std::string::npos)
                found.push_back(call);
        return found;
    }

    refhost::Machine m_machine = WholeMachine();
    LoggedHost m_sound{m_machine, [] {
                           HostFaults faults;
                           faults.keepRemoved = true;
                           return faults;
                       }()};
    HostileHost m_host{m_sound, Temper()};

private:
    Library::Interface m_interface = Library::Loaded().NewInterface();
    LanguageFolder m_language;
};

// Each time that it is asked for while the editor opens and shows another scheme.
TEST_F(MeddlingHost, LosesAConfigurationBetweenTwoQuestions)
{
    unsigned calls = 0;
    for (bool wasCalled = true; wasCalled; ++calls)
    {
        SCOPED_TRACE(calls);
        const auto giveNull = [this] { m_host.GiveNull(); };
        m_host.Within(&IConfigList::GetAt, giveNull, calls);
        Run<FactoryEditor>([](const FactoryEditor& editor) {
            if (editor.Schemes().RowCount() > 1)
                editor.Schemes().ClickRow(1);
            editor.Cancel();
        });
        wasCalled = m_host.HasActed();
    }
    EXPECT_GT(calls, 10u);
}

TEST_F(MeddlingHost, LosesTheListThatAConfigurationIsDeletedFrom)
{
    Run<PrintModeEditor>([this](const PrintModeEditor& editor) {
        m_host.Within(&IHostData::GetConfigList, [this] { m_host.GiveNull(); });
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().RowCount(), 2);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IConfigList.RemoveAt"), Calls{"IConfigList.RemoveAt(0)"});
}

// Walked within each other, such lists would never end.
TEST_F(MeddlingHost, SaysThatThereAreAMillionInkGroupsOfAMillionChannels)
{
    m_host.Always(&IActiveSetup::GetGroupCount, 1'000'000);
    m_host.Always(&IActiveSetup::GetGroupId, 1);
    m_host.Always(&IInkGroup::GetChannelCount, 1'000'000);
    Run<FactoryEditor>([](const FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        editor.Cancel();
    });
    EXPECT_LT(m_sound.Log().Everything().size(), 100'000u);
}

TEST_F(MeddlingHost, WantsAnotherEditorWhileItSaves)
{
    std::int32_t result = -1;
    const Library::Interface second = Library::Loaded().NewInterface();
    m_host.Within(&IHostControl::SaveParameters,
                  [&] { result = second->EditPrintModes(m_host.Data(), m_host.Control(), L""); });
    Run<FactoryEditor>([](const FactoryEditor& editor) { editor.SaveAndQuit(); });
    EXPECT_EQ(result, 0);
}

// On x86 this compiler's unwinder knows the frames of its own module alone: there no host may throw.
#if !defined(__i386__)

using ThrowingHost = MeddlingHost;

TEST_F(ThrowingHost, MayThrowWhenItTakesAConfigurationBack)
{
    Run<PrintModeEditor>([this](const PrintModeEditor& editor) {
        m_host.Within(&IHostData::DestroyConfig, [] { throw 1; });
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(editor.Configs().RowCount(), 4);
        editor.Cancel();
    });
}

TEST_F(ThrowingHost, MayOpenAnEditorAfterOneThatDidNotOpen)
{
    m_host.Within(&IHostData::GetConfigList, [] { throw 1; });
    const Library::Interface editors = Library::Loaded().NewInterface();
    EXPECT_EQ(editors->EditPrintModes(m_host.Data(), m_host.Control(), L""), 1);
    EXPECT_TRUE(m_host.HasActed());
    Run<PrintModeEditor>([](const PrintModeEditor& editor) { editor.Cancel(); });
}

// Also where no window procedure is about to be left.
TEST_F(ThrowingHost, LeavesTheEditorOpenWhenTheRightButtonGoesUp)
{
    Run<FactoryEditor>([this](const FactoryEditor& editor) {
        m_host.Within(&IPrintScheme::SetSpeed, [] { throw 1; });
        editor.Schemes().RightClickRow(1);
        EXPECT_TRUE(m_host.HasActed());
        EXPECT_TRUE(editor.Dialog().IsVisible());
        editor.Cancel();
    });
}

#endif

} // namespace
