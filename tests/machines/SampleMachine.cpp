#include "tests/machines/SampleMachine.h"

#include "refhost/MachineFile.h"
#include "tests/support/BesideProgram.h"

refhost::Machine SampleMachine()
{
    return refhost::LoadMachine(BesideProgram(L"samples\\machine.json"));
}
