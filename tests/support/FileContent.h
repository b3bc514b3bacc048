#pragma once

#include <filesystem>
#include <string>

// Throws std::runtime_error for a file that cannot be read.
std::string ContentOf(const std::filesystem::path& file);
