#pragma once

#include "refhost/Machine.h"

// The machines that are measured. Large ones are the sample machine with more of one thing, each with a name of its
// own; schemes are copies of the sample's, all of the first configuration.

refhost::Machine SampleMachine();
refhost::Machine WithConfigs(refhost::Machine machine, int count);
refhost::Machine WithFactorySchemes(refhost::Machine machine, int count);
refhost::Machine WithUserSchemes(refhost::Machine machine, int count);
refhost::Machine WithMaterials(refhost::Machine machine, int count);
refhost::Machine WithHeads(refhost::Machine machine, int count);
// As many user schemes and modes in each of the first two configurations.
refhost::Machine WithTwoLongLists(refhost::Machine machine, int count);
