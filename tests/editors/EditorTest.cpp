#include "tests/editors/EditorTest.h"

Calls operator+(Calls left, const Calls& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

EditorTest::EditorTest() : m_interface(Library::Loaded().NewInterface())
{
    m_faults.keepRemoved = true;
}

void EditorTest::RunOperation(Operation operation, const WindowScript& script)
{
    m_host.emplace(m_machine, m_faults);
    RunOperationAgain(operation, script);
}

void EditorTest::RunOperationAgain(Operation operation, const WindowScript& script)
{
    const auto run = [&] {
        return (m_interface.get()->*operation)(Host().Data(), Host().Control(), m_languageDir.c_str());
    };
    EXPECT_EQ(RunEditor(run, script), 1);
    EXPECT_EQ(Host().Log().Violations(), Calls());
    EXPECT_EQ(Host().OutstandingConfigs(), 0u);
}

Calls EditorTest::NewChanges()
{
    const Calls changes = Changes();
    Host().Log().Clear();
    return changes;
}

Calls EditorTest::ChangesWith(const std::string& text)
{
    Calls found;
    for (const std::string& call : Changes())
        if (call.find(text) != std::string::npos)
            found.push_back(call);
    return found;
}
