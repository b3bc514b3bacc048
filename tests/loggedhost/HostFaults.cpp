#include "tests/loggedhost/HostFaults.h"

namespace
{

bool Matches(const char* pattern, const char* text)
{
    if (*pattern == '*')
        return Matches(pattern + 1, text) || (*text != '\0' && Matches(pattern, text + 1));
    if (*pattern != *text)
        return false;
    return *pattern == '\0' || Matches(pattern + 1, text + 1);
}

} // namespace

bool HostFaults::Fails(const std::string& call) const
{
    for (const std::string& pattern : failing)
        if (Matches(pattern.c_str(), call.c_str()))
            return true;
    return false;
}
