#pragma once

#include <string>
#include <utility>
#include <vector>

// What a reader of the report has to know of the machine: names and values.
std::vector<std::pair<std::string, std::string>> SystemFacts();
