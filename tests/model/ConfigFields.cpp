#include "tests/model/ConfigFields.h"

#include "tests/model/HostText.h"

namespace
{
constexpr std::size_t kLongestName = 60;

std::wstring AutomaticName(const ConfigValues& values)
{
    std::wstring name =
        L"[" + std::to_wstring(values.xResolution) + L" X " + std::to_wstring(values.yResolution) + L"]";
    if (values.colorCount != 0)
        name += L"[" + std::to_wstring(values.colorCount) + L" C]";
    if (values.dotBits != 0)
        name += L"[" + std::to_wstring(values.dotBits) + L" B]";
    return name;
}
} // namespace

ConfigFields FieldsOf(const refhost::PrintConfig& config, unsigned codePage)
{
    return {ToWide(config.name, codePage),       std::to_wstring(config.xResolution),
            std::to_wstring(config.yResolution), std::to_wstring(config.colorCount),
            std::to_wstring(config.dotBits),     config.enabled};
}

std::optional<ConfigValues> AcceptedConfig(const ConfigFields& fields)
{
    const auto x = ParseInteger(fields.xResolution);
    const auto y = ParseInteger(fields.yResolution);
    const auto colors = ParseInteger(fields.colorCount);
    const auto bits = ParseInteger(fields.dotBits);
    if (!x || !y || !colors || !bits || fields.name.size() > kLongestName)
        return std::nullopt;
    ConfigValues values{Trimmed(fields.name), *x, *y, *colors, *bits, fields.enabled};
    if (values.name.empty())
        values.name = AutomaticName(values);
    return values;
}
