#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
// How many calls the host receives for some number of rows.
using CallsFor = std::function<std::size_t(int rows)>;

// The calls grow by the same number for every further row, however many there are.
void ExpectLinear(const CallsFor& callsFor)
{
    const std::size_t at100 = callsFor(100);
    const std::size_t perHundred = callsFor(200) - at100;
    EXPECT_GT(perHundred, 0u);
    EXPECT_EQ(callsFor(1000) - at100, 9 * perHundred);
}

void ExpectConstant(const CallsFor& callsFor)
{
    const std::size_t at100 = callsFor(100);
    EXPECT_GT(at100, 0u);
    EXPECT_EQ(callsFor(1000), at100);
}

class UserCallGrowth : public UserSchemeFixture
{
protected:
    void UseSchemes(int count)
    {
        const refhost::UserScheme pattern = m_machine.userSchemes.front();
        m_machine.userSchemes.assign(static_cast<std::size_t>(count), pattern);
    }

    std::size_t CallsOf(int schemes, const std::function<void(UserEditor&)>& action)
    {
        UseSchemes(schemes);
        std::size_t calls = 0;
        Run([&](UserEditor& editor) {
            editor.Op().OnUi([this] { Host().Log().Clear(); });
            action(editor);
            calls = Host().Log().Everything().size();
            editor.Cancel();
        });
        return calls;
    }
};

TEST_F(UserCallGrowth, IsLinearToOpen)
{
    ExpectLinear([this](int rows) {
        UseSchemes(rows);
        Run([](UserEditor& editor) { editor.Cancel(); });
        return Host().Log().Everything().size();
    });
}

TEST_F(UserCallGrowth, IsLinearForAChangeOfConfiguration)
{
    ExpectLinear([this](int rows) {
        return CallsOf(rows, [](UserEditor& editor) {
            editor.Configs().ClickRow(1);
            editor.Configs().ClickRow(0);
        });
    });
}

TEST_F(UserCallGrowth, IsNoneForAChangeOfScheme)
{
    ExpectConstant([this](int rows) {
        return CallsOf(rows, [](UserEditor& editor) {
            editor.Schemes().ClickRow(kMine);
            editor.Schemes().ClickRow(kYours);
        });
    });
}

TEST_F(UserCallGrowth, IsNoneToDeleteAScheme)
{
    ExpectConstant([this](int rows) {
        return CallsOf(rows, [](UserEditor& editor) {
            editor.Schemes().ClickRow(kMine);
            editor.Press(IDC_BTN_DEL_SCHEME);
        });
    });
}

class FactoryCallGrowth : public FactorySchemeFixture
{
};

TEST_F(FactoryCallGrowth, IsLinearToOpen)
{
    ExpectLinear([this](int rows) {
        const refhost::FactoryScheme pattern = m_machine.factorySchemes.front();
        m_machine.factorySchemes.assign(static_cast<std::size_t>(rows), pattern);
        Run([](FactoryEditor& editor) { editor.Cancel(); });
        return Host().Log().Everything().size();
    });
}

class PrintModeCallGrowth : public PrintModeFixture
{
};

TEST_F(PrintModeCallGrowth, IsLinearToOpenByConfigurations)
{
    ExpectLinear([this](int rows) {
        const refhost::PrintConfig pattern = m_machine.configurations.front();
        m_machine.configurations.assign(static_cast<std::size_t>(rows), pattern);
        Run([](PrintModeEditor& editor) { editor.Cancel(); });
        return Host().Log().Everything().size();
    });
}

TEST_F(PrintModeCallGrowth, IsLinearToOpenByModes)
{
    ExpectLinear([this](int rows) {
        const refhost::PrintMode pattern = m_machine.configurations.front().modes.front();
        m_machine.configurations.front().modes.assign(static_cast<std::size_t>(rows), pattern);
        Run([](PrintModeEditor& editor) { editor.Cancel(); });
        return Host().Log().Everything().size();
    });
}
} // namespace
