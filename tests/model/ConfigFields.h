#pragma once

#include "refhost/Machine.h"

#include <optional>
#include <string>

// What stands in the fields of the dialog that adds or renames a configuration.
struct ConfigFields
{
    std::wstring name;
    std::wstring xResolution;
    std::wstring yResolution;
    std::wstring colorCount;
    std::wstring dotBits;
    bool enabled;

    friend bool operator==(const ConfigFields& left, const ConfigFields& right)
    {
        return left.name == right.name && left.xResolution == right.xResolution &&
               left.yResolution == right.yResolution && left.colorCount == right.colorCount &&
               left.dotBits == right.dotBits && left.enabled == right.enabled;
    }
    friend bool operator!=(const ConfigFields& left, const ConfigFields& right) { return !(left == right); }
};

// As the dialog shows a configuration whose name is in the code page.
ConfigFields FieldsOf(const refhost::PrintConfig& config, unsigned codePage);

struct ConfigValues
{
    std::wstring name;
    int xResolution;
    int yResolution;
    int colorCount;
    int dotBits;
    bool enabled;
};

// What the dialog's OK makes of them; nothing where it refuses one and stays open.
std::optional<ConfigValues> AcceptedConfig(const ConfigFields& fields);
