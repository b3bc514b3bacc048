#include "tests/kit/Options.h"

#include <cstdlib>

namespace
{
bool Take(Options& options, const std::string& name, const std::string& value)
{
    if (name == "--filter")
        options.filter = value;
    else if (name == "--timeout")
        options.timeoutSeconds = static_cast<unsigned>(std::strtoul(value.c_str(), nullptr, 10));
    else
        return false;
    return !options.filter.empty() && options.timeoutSeconds > 0 && options.timeoutSeconds <= 86400;
}
} // namespace

std::optional<Options> OptionsOf(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i)
        if (arguments[i] == "--probe")
            options.probe = true;
        else if (++i == arguments.size() || !Take(options, arguments[i - 1], arguments[i]))
            return std::nullopt;
    return options;
}
