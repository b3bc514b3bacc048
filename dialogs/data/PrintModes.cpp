#include "dialogs/data/PrintModes.h"

namespace
{
// What a mode's name may fill, without the terminator.
constexpr std::size_t MAX_MODE_NAME_BYTES = 259;

std::string NewModeName(IPrintConfig& config)
{
    const std::string count = std::to_string(config.GetModeCount());
    const char* configName = config.GetName(); // good only until the next call
    const std::string name = std::string(configName ? configName : "(null)") + "-" + count;
    return name.substr(0, MAX_MODE_NAME_BYTES);
}
} // namespace

IPrintMode* AddMode(IPrintConfig& config)
{
    IPrintMode* mode = config.AddMode();
    if (mode)
        mode->SetName(NewModeName(config).c_str());
    return mode;
}

void RemoveLastMode(IPrintConfig& config)
{
    config.RemoveMode(config.GetModeCount() - 1);
}

void RemoveMode(IPrintConfig& config, const IPrintMode* mode)
{
    const std::uint32_t count = CountOf(&config);
    for (std::uint32_t i = 0; i < count; ++i)
        if (At(&config, i) == mode)
        {
            config.RemoveMode(i);
            return;
        }
}
