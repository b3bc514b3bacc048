#include "tests/editors/Machines.h"

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

refhost::Machine SmallMachine()
{
    refhost::Machine machine;
    machine.configurations = {Config("Fast", {"Fast-1", "Fast-2"}), Config("Fine", {"Fine-1"}), Config("Draft")};
    machine.inkGroups = {{"Cyan", 1, 0, {}}, {"Magenta", 2, 1, {}}, {"Yellow", 3, 2, {}}, {"Black", 4, 3, {}}};
    machine.xResolutions = {"360", "720", "1440"};
    machine.headLayouts = {{"Left", 10, 0, {"None", "Normal", "Fine"}}, {"Right", 11, 0, {"None", "Sharp"}}};
    return machine;
}

refhost::Machine EmptyMachine()
{
    return refhost::Machine();
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
