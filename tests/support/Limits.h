#pragma once

#include <chrono>

// Far longer than anything takes; only what never comes gets there.
constexpr std::chrono::seconds kWaitLimit{20};

// For a whole test. Where it is reached, the program is ended, because a hanging thread cannot be.
constexpr std::chrono::seconds kTestLimit{120};
