#pragma once

#include "tests/support/Operator.h"

#include <cstdint>
#include <functional>
#include <string>

// Runs one operation of the library on this thread, as a host does, while a script acts on its windows on another one.
// Returns the operation's result. When the script fails, or ends while a dialog is open, every dialog is closed by
// force, and the test fails with the reason; so it does when a dialog opened that the script did not expect.
std::int32_t RunEditor(const std::function<std::int32_t()>& operation, const std::function<void(Operator&)>& script);
