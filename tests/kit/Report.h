#pragma once

#include "tests/kit/Results.h"

#include <string>

enum class Progress
{
    Running,
    Ended
};

// One page of HTML that needs no other file.
std::string ReportOf(const std::vector<ProgramResult>& programs, const Counts& counts, Progress progress);
