#pragma once

#include <vector>
#include <windows.h>

// The controls of a dialog and of its pages that a person could act on now: visible and enabled ones.
std::vector<HWND> ReachableControls(HWND dialog);
