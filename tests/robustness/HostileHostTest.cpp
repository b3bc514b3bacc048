#include "tests/robustness/HostileHost.h"
#include "refhost/MachineFile.h"
#include "tests/machines/WholeMachine.h"
#include "tests/robustness/BlindOperator.h"
#include "tests/support/Controls.h"
#include "tests/support/EditorRun.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Library.h"
#include "tests/support/RunLength.h"
#include "tests/support/ThreadLocale.h"

#include "resources/resource.h"

#include <gtest/gtest.h>

namespace
{
using Operation = decltype(&IQuorvane::EditPrintModes);

constexpr Operation kOperations[] = {&IQuorvane::EditPrintModes, &IQuorvane::EditFactorySchemes,
                                     &IQuorvane::EditUserSchemes};
constexpr std::uint32_t kSaveKinds[] = {2, 2, 3};
constexpr int kGestures = 15;
constexpr unsigned kRunsBetweenChecks = 20;
// So many have all kinds of faults among them.
constexpr unsigned kTellingRuns = 70;

HostFaults SoundFaults()
{
    HostFaults faults;
    faults.keepRemoved = true;
    return faults;
}

class HostileRun : public testing::TestWithParam<unsigned>
{
protected:
    HostileRun() { m_language.WriteTexts(L"TAB_COMMON=Common\r\nTAB_DATA=Data\r\n"); }

    std::int32_t Edit(Operation operation, IHostData* data, IHostControl* control,
                      const std::function<void(Operator&)>& script)
    {
        return RunEditor([&] { return (m_interface.get()->*operation)(data, control, m_language.Path().c_str()); },
                         script);
    }

    static void SetUpTestSuite() { s_runs = s_gestures = 0, s_faults = {}; }
    // A fault that never happens, or a hand that never finds anything, would prove nothing.
    static void TearDownTestSuite();

    void MeetHostileHost(unsigned seed);
    void ExpectSoundRun(std::size_t editor);

private:
    static inline unsigned s_runs = 0;
    static inline unsigned s_gestures = 0;
    static inline FaultCounts s_faults{};

    Library::Interface m_interface = Library::Loaded().NewInterface();
    LanguageFolder m_language;
};

void HostileRun::MeetHostileHost(unsigned seed)
{
    LoggedHost sound(WholeMachine(), SoundFaults());
    sound.Log().SetLevel(CallLog::Level::Nothing);
    HostileHost host(sound, Temper(seed));
    SCOPED_TRACE(CommandToRepeat(seed, "*HostileRun*/" + std::to_string(seed)) + "; the host's faults " +
                 host.Describe());
    const auto script = [seed](Operator& op) {
        op.ExpectAnyDialog();
        op.WaitFor("the editor to open or to end", [&] { return op.HasEditorEnded() || op.TopDialog().Exists(); });
        BlindOperator hand(op, ~seed); // whose choices must not follow the host's
        s_gestures += static_cast<unsigned>(hand.Act(kGestures));
        hand.Leave();
    };
    EXPECT_EQ(Edit(kOperations[seed % std::size(kOperations)], host.Data(), host.Control(), script), 1);
    EXPECT_EQ(host.WrongLoans(), 0u);
    ++s_runs;
    for (std::size_t kind = 0; kind < kFaultKinds; ++kind)
        s_faults[kind] += host.Faults()[kind];
}

void HostileRun::TearDownTestSuite()
{
    if (s_runs < kTellingRuns)
        return;
    EXPECT_GT(s_gestures, s_runs * kGestures / 4);
    for (std::size_t kind = 0; kind < kFaultKinds; ++kind)
        EXPECT_EQ(s_faults[kind] > 0, Temper::kCanThrow || static_cast<Fault>(kind) != Fault::Exception) << kind;
}

// Opened, walked through and saved as if nothing had happened before.
void HostileRun::ExpectSoundRun(std::size_t editor)
{
    LoggedHost host(WholeMachine(), SoundFaults());
    const auto script = [editor](Operator& op) {
        const Window dialog = op.ExpectDialogWith("an editor", [](const Window& any) { return any.Has(IDC_LIST_CFG); });
        const auto configs = dialog.Control<ListBox>(IDC_LIST_CFG);
        EXPECT_EQ(configs.RowCount(), 3);
        const auto items = dialog.Control<ListBox>(editor == 0 ? IDC_LIST_MODE : IDC_LIST_SCHEME);
        EXPECT_EQ(items.RowCount(), editor == 2 ? 6 : 3);
        items.ClickRow(1);
        dialog.Control(IDOK).Click();
        op.ExpectClosed(dialog);
    };
    EXPECT_EQ(Edit(kOperations[editor], host.Data(), host.Control(), script), 1);
    EXPECT_EQ(host.Log().Changes().back(), "IHostControl.SaveParameters(" + std::to_string(kSaveKinds[editor]) + ")");
    EXPECT_TRUE(host.Log().Violations().empty());
}

TEST_P(HostileRun, EndsAndLeavesTheLibraryWhole)
{
    const unsigned seed = GetParam();
    MeetHostileHost(seed);
    if (seed % kRunsBetweenChecks == 0)
        for (std::size_t editor = 0; editor < std::size(kOperations); ++editor)
            ExpectSoundRun(editor);
}

INSTANTIATE_TEST_SUITE_P(Seeds, HostileRun, testing::Range(FirstSeed(), FirstSeed() + RunCount(300, 10000)),
                         testing::PrintToStringParamName());

} // namespace
