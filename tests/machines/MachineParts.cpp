#include "tests/machines/MachineParts.h"

refhost::Machine EmptyMachine()
{
    return refhost::Machine();
}

refhost::PrintConfig Config(const std::string& name, const std::vector<std::string>& modes)
{
    refhost::PrintConfig config;
    config.name = name;
    config.xResolution = 720;
    config.yResolution = 1200;
    config.colorCount = 4;
    config.dotBits = 2;
    for (const std::string& modeName : modes)
    {
        refhost::PrintMode mode;
        mode.name = modeName;
        config.modes.push_back(mode);
    }
    return config;
}

refhost::FactoryScheme FactorySchemeOf(int config)
{
    refhost::FactoryScheme scheme;
    scheme.configIndex = static_cast<std::uint8_t>(config);
    return scheme;
}

refhost::UserScheme UserSchemeOf(int config)
{
    refhost::UserScheme scheme;
    scheme.configIndex = static_cast<std::uint8_t>(config);
    return scheme;
}
