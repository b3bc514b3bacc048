#pragma once

#include "host/IQuorvane.h"
#include "refhost/Host.h"
#include "tests/editors/Machines.h"
#include "tests/support/EditorRun.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Library.h"

#include <gtest/gtest.h>
#include <optional>

using Calls = std::vector<std::string>;

Calls operator+(Calls left, const Calls& right);

// One run of an editor over a machine that the test sets up first. Whatever the script does, the run must return 1,
// leave no configuration of CreateConfig behind and never call an object that the host has removed.
class EditorTest : public testing::Test
{
protected:
    EditorTest();

    using Operation = decltype(&IQuorvane::EditPrintModes);
    using WindowScript = std::function<void(Operator&)>;
    // With a new host.
    void RunOperation(Operation operation, const WindowScript& script);
    // With the same host, as the operator left it.
    void RunOperationAgain(Operation operation, const WindowScript& script);

    refhost::Machine m_machine = SmallMachine();
    refhost::HostFaults m_faults;
    LanguageFolder m_language;
    std::wstring m_languageDir = m_language.Path();

    refhost::Host& Host() { return *m_host; }
    // What the host was told so far, without what it was asked.
    Calls Changes() { return Host().Log().Changes(); }
    // Those since the last call.
    Calls NewChanges();
    // Those that contain the text.
    Calls ChangesWith(const std::string& text);
    refhost::Machine Machine() { return Host().CurrentMachine(); }

private:
    Library::Interface m_interface;
    std::optional<refhost::Host> m_host;
};
