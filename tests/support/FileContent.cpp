#include "tests/support/FileContent.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

std::string ContentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}
