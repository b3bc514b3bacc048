#pragma once

#include "tests/editors/EditorTest.h"
#include "tests/editors/PrintModeEditor.h"

// What a mode receives when the common page stores its controls, in this order. The place is the mode's in the call
// log: "0.1" for the second mode of the first configuration.
struct StoredMode
{
    std::string place;
    std::string name;
    int passCount = refhost::kDefaultPassCount;
    int xResolutionIndex = 0;
    int disabled = 0;
    int resident = 0;

    operator Calls() const;
};

// One run of the print-mode editor over a machine that the test sets up first.
class PrintModeTest : public EditorTest
{
protected:
    using Script = std::function<void(PrintModeEditor&)>;
    void Run(const Script& script);
    // A run again with the same host, as the operator left it.
    void RunAgain(const Script& script);

    const refhost::PrintMode& Mode(std::size_t config, std::size_t mode);

private:
    static WindowScript WithEditor(const Script& script);

    refhost::Machine m_after;
};
