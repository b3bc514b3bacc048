#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/Random.h"

// Machine files as they are written, and what becomes of them in careless hands.
class MachineInputs
{
public:
    // `sample` is the path of the shipped machine file.
    explicit MachineInputs(const std::string& sample);

    struct Input
    {
        std::string text;
        bool isIntact; // nothing was changed, so it must be accepted
    };
    Input Text(Random& random) const;

private:
    using Tokens = std::vector<std::string_view>;

    const std::string& Origin(Random& random) const;
    void MutateTokens(Tokens& tokens, Random& random) const;

    std::string m_sample;
    std::vector<std::string> m_texts;
};
