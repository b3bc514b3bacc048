#include "tests/editors/PrintModeTest.h"

StoredMode::operator Calls() const
{
    const std::string mode = "IPrintMode[" + place + "].";
    return {mode + "SetPassCount(" + std::to_string(passCount) + ")",
            mode + "SetXResolutionIndex(" + std::to_string(xResolutionIndex) + ")", mode + "SetName(\"" + name + "\")",
            mode + "SetDisabled(" + std::to_string(disabled) + ")",
            mode + "SetResident(" + std::to_string(resident) + ")"};
}

void PrintModeTest::Run(const Script& script)
{
    RunOperation(&IQuorvane::EditPrintModes, WithEditor(script));
}

void PrintModeTest::RunAgain(const Script& script)
{
    RunOperationAgain(&IQuorvane::EditPrintModes, WithEditor(script));
}

EditorTest::WindowScript PrintModeTest::WithEditor(const Script& script)
{
    return [&script](Operator& op) {
        PrintModeEditor editor = ExpectPrintModeEditor(op);
        script(editor);
    };
}

const refhost::PrintMode& PrintModeTest::Mode(std::size_t config, std::size_t mode)
{
    m_after = Machine();
    return m_after.configurations.at(config).modes.at(mode);
}
