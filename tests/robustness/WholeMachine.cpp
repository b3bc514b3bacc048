#include "tests/robustness/WholeMachine.h"

#include "tests/editors/SchemeMachine.h"

refhost::Machine WholeMachine()
{
    refhost::Machine machine = SchemeMachine();
    machine.xResolutions = {"360", "720", "1440"};
    for (refhost::HeadLayout& head : machine.headLayouts)
        head.dataModes = {"None", "Normal", "Fine"};
    return machine;
}
