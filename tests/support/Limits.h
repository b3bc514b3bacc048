#pragma once

#include <chrono>

// Far longer than anything takes, on a busy machine too; only what never comes gets there.
constexpr std::chrono::seconds kWaitLimit{60};

// For a whole test. Where it is reached, the program is ended, because a hanging thread cannot be.
constexpr std::chrono::seconds kTestLimit{300};
