#pragma once

#include "refhost/Machine.h"

// The machines that are measured. A large one is the sample machine with more items of one kind, each with its own
// name. Schemes are copies of the sample's schemes, all in the first configuration.

refhost::Machine SampleMachine();
refhost::Machine WithConfigs(refhost::Machine machine, int count);
refhost::Machine WithFactorySchemes(refhost::Machine machine, int count);
refhost::Machine WithUserSchemes(refhost::Machine machine, int count);
refhost::Machine WithMaterials(refhost::Machine machine, int count);
refhost::Machine WithHeads(refhost::Machine machine, int count);
// count user schemes and modes in each of the first two configurations.
refhost::Machine WithTwoLongLists(refhost::Machine machine, int count);
