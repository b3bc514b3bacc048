#include "tests/machines/PrintModeMachine.h"

#include "tests/machines/MachineParts.h"

refhost::Machine PrintModeMachine()
{
    refhost::Machine machine;
    machine.configurations = {Config("Fast", {"Fast-1", "Fast-2"}), Config("Fine", {"Fine-1"}), Config("Draft")};
    machine.inkGroups = {{"Cyan", 1, 0, {}}, {"Magenta", 2, 1, {}}, {"Yellow", 3, 2, {}}, {"Black", 4, 3, {}}};
    machine.xResolutions = {"360", "720", "1440"};
    machine.headLayouts = {{"Left", 10, 0, {"None", "Normal", "Fine"}}, {"Right", 11, 0, {"None", "Sharp"}}};
    return machine;
}
