#pragma once

// The eclosion type that opens the dialog for custom eclosions when it is chosen.
constexpr int kCustomEclosionType = 19;
