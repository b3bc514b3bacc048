#include "tests/fuzz/CurrentInput.h"

#include "tests/support/RunLength.h"

#include <filesystem>
#include <fstream>

std::string FuzzInput::File() const
{
    return std::string("fuzz/") + kind + "-" + std::to_string(seed) + "-" + std::to_string(number) + ".bin";
}

FuzzInput& CurrentInput()
{
    static FuzzInput input;
    return input;
}

std::string KeepCurrentInput()
{
    const FuzzInput& input = CurrentInput();
    std::filesystem::create_directories("fuzz");
    std::ofstream(input.File(), std::ios::binary) << input.bytes;
    const std::string seed = std::to_string(input.seed);
    return "input " + std::to_string(input.number) + " of seed " + seed + ", kept in " + input.File() +
           " beside the test program; again: " +
           CommandToRepeat(input.seed, std::string("*") + input.kind + "*/" + seed);
}
