#include "tests/machines/DetailedMachine.h"

#include <stdexcept>

#include "refhost/MachineText.h"

namespace
{

refhost::PrintMode Mode(const std::string& name, std::uint16_t passCount)
{
    refhost::PrintMode mode;
    mode.name = name;
    mode.passCount = passCount;
    return mode;
}

refhost::PrintMode DetailedMode()
{
    refhost::PrintMode mode = Mode("Fine", 8);
    mode.resident = 1;
    mode.xResolutionIndex = 1;
    mode.smallDotCompensation = {0.1f, 1.5f};
    mode.mediumDotCompensation = {0.0f, -2.25f};
    mode.largeDotCompensation = {3.0e8f, 1.0e-7f};
    mode.frontCompensation = {true, false};
    mode.backCompensation = {false, true};
    mode.headDataModes = {1, 255, 0};
    return mode;
}

std::vector<refhost::PrintConfig> Configurations()
{
    refhost::PrintConfig fast;
    fast.name = "Fast";
    fast.xResolution = 720;
    fast.yResolution = 1200;
    fast.colorCount = 4;
    fast.dotBits = 2;
    fast.modes = {Mode("Fast-1", 4), DetailedMode()};
    refhost::PrintConfig chinese;
    chinese.name = "\xC8\xAB"; // one Chinese character in code page 936
    chinese.enabled = false;
    chinese.modes = {Mode("", 2)};
    return {fast, chinese};
}

refhost::FactoryScheme FactorySchemeNamed(const std::string& name)
{
    refhost::FactoryScheme scheme;
    scheme.name = name;
    scheme.configIndex = 1;
    scheme.modeIndex = 2;
    scheme.wave = 3;
    scheme.speed = 2;
    scheme.smallFormatOffset = 65535;
    scheme.inkMultiple[15] = 80;
    scheme.inkCut[31] = 7;
    return scheme;
}

refhost::UserScheme UserSchemeNamed(const std::string& name)
{
    refhost::UserScheme scheme;
    scheme.name = name;
    scheme.baseScheme = 9;
    scheme.speed = 1;
    scheme.customEclosionId = 4000000000u;
    return scheme;
}

} // namespace

refhost::Machine DetailedMachine()
{
    refhost::Machine machine;
    machine.name = "Small";
    machine.codePage = 936;
    machine.configurations = Configurations();
    machine.factorySchemes = {FactorySchemeNamed("Factory 0"), FactorySchemeNamed("Factory 1")};
    machine.userSchemes = {UserSchemeNamed("User 0"), UserSchemeNamed("User 1")};
    machine.layouts = {{"Layout", 5, {1, 0}}};
    machine.headLayouts = {{"Head", 70, 5, {"None", "Fine"}}, {"Bare head", 71, 5, {}}};
    machine.xResolutions = {"360 dpi", "720 dpi"};
    machine.inkChannels = {{"Cyan", 0, 4}, {"Black", 1, 7}};
    machine.inkGroups = {{"Colours", 100, 3, {0, 1}}, {"No channels", 101, 9, {}}};
    machine.channelSetups = {{"Fits", {2, 1}}, {"Fits nothing", {}}};
    machine.materials = {{"Paper", 12}};
    machine.paramTables = {{1015, {4}}, {2055, {1, 0, -1}}};
    machine.activeSetup = {1, {100, 101}};
    machine.customEclosions = {0, {{1, true, 200, {{{{1, 2}, {8, 7}}}, {}}}, {}}};
    return machine;
}

std::string DetailedMachineFileWith(const std::string& text, const std::string& replacement)
{
    std::string file = refhost::FormatMachine(DetailedMachine());
    const std::size_t place = file.find(text);
    if (place == std::string::npos || file.find(text, place + 1) != std::string::npos)
        throw std::logic_error("does not stand once in the file: " + text);
    return file.replace(place, text.size(), replacement);
}
