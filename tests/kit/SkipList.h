#pragma once

#include <string>
#include <vector>

// Tests that a system cannot run, and why. A line of the list is "SYSTEM PATTERN REASON"; SYSTEM is windows or wine,
// the pattern one of GoogleTest's. Empty lines and those that start with # do not count.
class SkipList
{
public:
    SkipList(const std::string& lines, const std::string& system);

    bool IsEmpty() const { return m_skips.empty(); }
    // Empty for a test that runs.
    std::string ReasonFor(const std::string& test) const;
    // The filter that leaves them out besides.
    std::string Narrowed(const std::string& filter) const;

private:
    struct Skip
    {
        std::string pattern;
        std::string reason;
    };

    std::vector<Skip> m_skips;
};
