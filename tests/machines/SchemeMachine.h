#pragma once

#include "refhost/Machine.h"
#include "tests/machines/CustomEclosionType.h"

// A small machine for the tests of the scheme editors. Each scheme has values of its own, all within what the pages can
// show.
//
// Configurations: "Fast" with three modes, "Fine" with one, "Draft" without.
// Factory schemes: "Poster", "Banner" and "Sign" (0, 1, 3) of the first configuration, "Photo" (2) of the second.
// User schemes: "Mine" (of "Poster") and "Yours" (of "Sign") of the first configuration, "Album" (of "Photo").
// Layout 40 has four channels with the colour indices 3 to 0 and two heads, layout 41 two channels and one head.
// The active set-up 5 has the groups "Colours" (colour index 7, channels 0 and 1), "Dark" (8, channels 2 and 3) and
// "White" (9, channel 4). Three waveforms; eclosion types 0, 2 and 19; the custom level.
refhost::Machine SchemeMachine();
