#include "tests/kit/SkipList.h"

#include "tests/kit/Text.h"

#include <sstream>

SkipList::SkipList(const std::string& lines, const std::string& system)
{
    std::istringstream all(lines);
    for (std::string line; std::getline(all, line);)
    {
        std::istringstream words(line);
        std::string where;
        Skip skip;
        words >> where >> skip.pattern >> std::ws;
        std::getline(words, skip.reason);
        if (where == system)
            m_skips.push_back(skip);
    }
}

std::string SkipList::ReasonFor(const std::string& test) const
{
    for (const Skip& skip : m_skips)
        if (Matches(test, skip.pattern))
            return skip.reason;
    return {};
}

std::string SkipList::Narrowed(const std::string& filter) const
{
    std::string narrowed = filter;
    for (const Skip& skip : m_skips)
        narrowed += (narrowed.find('-') == std::string::npos ? '-' : ':') + skip.pattern;
    return narrowed;
}
