#pragma once

#include "tests/msabi/host/TextBuffer.h"

// What the host writes down while the library calls it.

TextBuffer& Faults();
TextBuffer& Changes();

// The fault is of the call that runs now, if one does.
void ReportFault(const char* what);

// Gives the condition back.
bool Require(bool condition, const char* otherwise);
