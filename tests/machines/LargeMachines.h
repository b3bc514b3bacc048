#pragma once

#include "refhost/Machine.h"

// A machine with so many of one thing, each with a name of its own: copies in turn of those that it has. Copies of
// schemes are all of the first configuration.

refhost::Machine WithConfigs(refhost::Machine machine, int count);
refhost::Machine WithFactorySchemes(refhost::Machine machine, int count);
refhost::Machine WithUserSchemes(refhost::Machine machine, int count);
refhost::Machine WithMaterials(refhost::Machine machine, int count);
refhost::Machine WithHeads(refhost::Machine machine, int count);
// count user schemes and modes in each of the first two configurations.
refhost::Machine WithTwoLongLists(refhost::Machine machine, int count);
