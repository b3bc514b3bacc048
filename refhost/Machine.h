// What a machine knows: plain values, as they lie in a machine file and behind the host interfaces.
//
// Names are narrow text in the machine's code page, the form in which the host interfaces serve them. The machine file
// holds them as UTF-8; they are converted when the file is read and written.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace refhost
{

constexpr std::uint8_t NO_DATA_MODE = 255;
constexpr std::uint16_t DEFAULT_PASS_COUNT = 4;
constexpr std::uint16_t DEFAULT_INK_MULTIPLE = 10;
constexpr std::uint8_t DEFAULT_INK_CUT = 100;

struct PrintMode
{
    std::string name;
    std::uint16_t passCount = DEFAULT_PASS_COUNT;
    bool disabled = false;
    std::uint8_t resident = 0;
    std::int32_t xResolutionIndex = 0;
    // One value per ink group, in the order of the ink groups; a missing one counts as 0 or off.
    std::vector<float> smallDotCompensation;
    std::vector<float> mediumDotCompensation;
    std::vector<float> largeDotCompensation;
    std::vector<bool> frontCompensation;
    std::vector<bool> backCompensation;
    // One index per head layout, in the order of the head layouts; a missing one counts as NO_DATA_MODE.
    std::vector<std::uint8_t> headDataModes;
};

struct PrintConfig
{
    std::string name;
    std::uint16_t xResolution = 0;
    std::uint16_t yResolution = 0;
    std::uint8_t colorCount = 0;
    std::uint8_t dotBits = 0;
    bool enabled = true;
    std::vector<PrintMode> modes;
};

// The values that factory and user schemes have in common. -1 in a signed value means "unlimited".
struct SchemeValues
{
    SchemeValues();

    std::string name;
    std::uint8_t configIndex = 0;
    std::int8_t speed = -1;
    std::int8_t direction = -1;
    std::int8_t material = -1;
    std::uint8_t channel = 0;
    std::uint8_t dotMode = 0;
    std::uint8_t defaultRangeSS = 0;
    std::uint8_t defaultRangeS = 0;
    std::uint8_t defaultRangeM = 0;
    std::uint8_t defaultRangeL = 0;
    std::uint8_t eclosionType = 0;
    std::uint32_t customEclosionId = 0;
    std::uint8_t eclosionLevel = 0;
    std::uint8_t customRange = 0;
    std::uint8_t headEclosionType = 0;
    std::array<std::uint16_t, 16> inkMultiple;
    std::array<std::uint8_t, 32> inkCut;
    std::uint8_t lampLL = 1;
    std::uint8_t lampLR = 1;
    std::uint8_t lampRL = 1;
    std::uint8_t lampRR = 1;
};

struct FactoryOnlyValues
{
    bool enabled = true;
    std::uint8_t modeIndex = 0;
    std::uint8_t waitStepStop = 0;
    std::int8_t wave = -1;
    std::uint8_t layoutId = 0;
    std::uint8_t headId = 0;
    std::uint8_t smallFormatMode = 0;
    std::uint16_t smallFormatOffset = 0;
};

struct UserOnlyValues
{
    std::uint8_t baseScheme = 0; // index of a factory scheme
};

struct FactoryScheme : SchemeValues, FactoryOnlyValues
{
};

struct UserScheme : SchemeValues, UserOnlyValues
{
};

struct Layout
{
    std::string name;
    std::uint32_t id = 0;
    std::vector<std::uint16_t> channels; // ids of ink channels
};

struct HeadLayout
{
    std::string name;
    std::uint16_t id = 0;
    std::uint32_t layoutId = 0;
    std::vector<std::string> dataModes;
};

struct InkChannel
{
    std::string name;
    std::uint16_t id = 0;
    std::uint8_t colorIndex = 0;
};

struct InkGroup
{
    std::string name;
    std::uint16_t id = 0;
    std::uint8_t colorIndex = 0;
    std::vector<std::uint16_t> channels; // ids of ink channels
};

struct ChannelSetup
{
    std::string name;
    std::vector<std::uint32_t> fits; // ids of the active set-ups that it can be used with
};

struct Material
{
    std::string name;
    std::uint16_t id = 0;
};

struct ParamTable
{
    std::uint32_t id = 0;
    std::vector<std::int32_t> entries;
};

struct ActiveSetup
{
    std::uint32_t id = 0;
    std::vector<std::uint16_t> groups; // ids of ink groups
};

struct EclosionElement
{
    std::uint8_t width = 1;
    std::uint8_t height = 1;
};

struct EclosionMode
{
    std::vector<EclosionElement> elements;
};

struct CustomEclosion
{
    std::int32_t currentMode = 0;
    bool locked = false;
    std::int32_t range = 0;
    std::vector<EclosionMode> modes;
};

struct CustomEclosionSet
{
    std::int32_t currentIndex = 0;
    std::vector<CustomEclosion> definitions;
};

struct Machine
{
    std::string name;
    std::uint32_t codePage = 1252; // of every name
    std::vector<PrintConfig> configurations;
    std::vector<FactoryScheme> factorySchemes;
    std::vector<UserScheme> userSchemes;
    std::vector<Layout> layouts;
    std::vector<HeadLayout> headLayouts;
    std::vector<std::string> xResolutions;
    std::vector<InkChannel> inkChannels;
    std::vector<InkGroup> inkGroups;
    std::vector<ChannelSetup> channelSetups;
    std::vector<Material> materials;
    std::vector<ParamTable> paramTables;
    ActiveSetup activeSetup;
    CustomEclosionSet customEclosions;
};

} // namespace refhost
