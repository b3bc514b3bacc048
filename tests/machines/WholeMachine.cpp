#include "tests/machines/WholeMachine.h"

#include "tests/machines/SchemeMachine.h"

refhost::Machine WholeMachine()
{
    refhost::Machine machine = SchemeMachine();
    machine.xResolutions = {"360", "720", "1440"};
    for (refhost::HeadLayout& head : machine.headLayouts)
        head.dataModes = {"None", "Normal", "Fine"};
    return machine;
}
