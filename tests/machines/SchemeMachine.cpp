#include "tests/machines/SchemeMachine.h"

#include "tests/machines/MachineParts.h"

namespace
{
refhost::FactoryScheme Factory(const std::string& name, int config)
{
    refhost::FactoryScheme scheme = FactorySchemeOf(config);
    scheme.name = name;
    scheme.layoutId = 40;
    scheme.headId = 10;
    return scheme;
}

refhost::UserScheme User(const std::string& name, int config, int base)
{
    refhost::UserScheme scheme = UserSchemeOf(config);
    scheme.name = name;
    scheme.baseScheme = static_cast<std::uint8_t>(base);
    return scheme;
}

refhost::ParamTable EclosionTypes()
{
    refhost::ParamTable table{2055, std::vector<std::int32_t>(20)};
    for (std::size_t type : {0, 2, kCustomEclosionType})
        table.entries[type] = 1;
    return table;
}

void AddInks(refhost::Machine& machine)
{
    machine.layouts = {{"Four", 40, {0, 1, 2, 3}}, {"Two", 41, {4, 5}}};
    machine.headLayouts = {{"Left", 10, 40, {}}, {"Right", 11, 40, {}}, {"Single", 12, 41, {}}};
    machine.inkChannels = {{"Cyan", 0, 3},  {"Magenta", 1, 2}, {"Yellow", 2, 1},
                           {"Black", 3, 0}, {"White", 4, 5},   {"Varnish", 5, 4}};
    machine.inkGroups = {{"Colours", 1, 7, {0, 1}}, {"Dark", 2, 8, {2, 3}}, {"White", 3, 9, {4}}};
    machine.activeSetup = {5, {1, 2, 3}};
    machine.channelSetups = {{"CMYK", {5}}, {"CMYKW", {5, 6}}};
}

// Every value differs from its neighbours and lies within what the pages can show.
void GiveValues(refhost::SchemeValues& values, int seed)
{
    const auto byteOf = [seed](int value) { return static_cast<std::uint8_t>(value + seed); };
    values.speed = static_cast<std::int8_t>(seed % 3);
    values.direction = static_cast<std::int8_t>(1 + seed % 3);
    values.material = static_cast<std::int8_t>(1 + seed % 2);
    values.channel = static_cast<std::uint8_t>(seed % 2);
    values.dotMode = static_cast<std::uint8_t>(seed % 4);
    values.defaultRangeSS = byteOf(11);
    values.defaultRangeS = byteOf(22);
    values.defaultRangeM = byteOf(33);
    values.defaultRangeL = byteOf(44);
    values.eclosionType = seed % 2 == 0 ? 2 : 0;
    values.customEclosionId = static_cast<std::uint32_t>(70000 + seed);
    values.eclosionLevel = static_cast<std::uint8_t>(1 + seed % 3);
    values.customRange = byteOf(55);
    values.headEclosionType = static_cast<std::uint8_t>((1 + seed) % 3);
    values.lampLL = seed % 2 == 0;
    values.lampLR = seed % 2 != 0;
    values.lampRL = seed % 3 == 0;
    values.lampRR = seed % 3 != 0;
    for (std::size_t i = 0; i < values.inkMultiple.size(); ++i)
        values.inkMultiple[i] = static_cast<std::uint16_t>(10 * (1 + (i + static_cast<std::size_t>(seed)) % 8));
    for (std::size_t i = 0; i < values.inkCut.size(); ++i)
        values.inkCut[i] = byteOf(60 + static_cast<int>(i));
}

void GiveFactoryValues(refhost::FactoryScheme& scheme, int seed)
{
    GiveValues(scheme, seed);
    scheme.modeIndex = static_cast<std::uint8_t>(scheme.configIndex == 0 ? seed % 3 : 0);
    scheme.waitStepStop = 1;
    scheme.wave = static_cast<std::int8_t>(seed % 3);
    scheme.headId = 11;
    scheme.smallFormatMode = static_cast<std::uint8_t>(seed % 2);
    scheme.smallFormatOffset = static_cast<std::uint16_t>(40000 + seed);
}

void GiveValues(refhost::Machine& machine)
{
    int seed = 0;
    for (refhost::FactoryScheme& scheme : machine.factorySchemes)
        GiveFactoryValues(scheme, seed++);
    for (refhost::UserScheme& scheme : machine.userSchemes)
        GiveValues(scheme, seed++);
}
} // namespace

refhost::Machine SchemeMachine()
{
    refhost::Machine machine;
    machine.configurations = {Config("Fast", {"Fast-1", "Fast-2", "Fast-3"}), Config("Fine", {"Fine-1"}),
                              Config("Draft")};
    machine.configurations[0].modes[1].passCount = 6;
    machine.configurations[0].modes[1].resident = 1;
    machine.factorySchemes = {Factory("Poster", 0), Factory("Banner", 0), Factory("Photo", 1), Factory("Sign", 0)};
    machine.userSchemes = {User("Mine", 0, 0), User("Yours", 0, 3), User("Album", 1, 2)};
    GiveValues(machine);
    AddInks(machine);
    machine.materials = {{"Paper", 1}, {"Foil", 2}};
    machine.paramTables = {{1015, {3}}, EclosionTypes(), {2057, {1}}};
    return machine;
}
