#pragma once

#include "dialogs/data/HostList.h"
#include "dialogs/data/HostRun.h"
#include "host/IConfigList.h"
#include "host/IPrintConfig.h"
#include "host/IPrintMode.h"

#include <string>

// The host's print configurations. A configuration is named by its index in the host's list.

// Null where the host has none at that index.
IPrintConfig* ConfigAt(int config);

// The line of the print-mode editor: the name, resolutions, colours and dot bits.
std::wstring ConfigLine(const std::wstring& name, IPrintConfig& config);

// How the scheme editors show a configuration: by its name or, where it has none, by its values. The small "b" is as
// required.
std::wstring ConfigName(IPrintConfig& config);

// The values that the configuration dialog shows; at first those that it offers for a new configuration.
struct ConfigValues
{
    std::wstring name = L"[720 X 720]";
    int xResolution = 720;
    int yResolution = 720;
    int colorCount = 0;
    int dotBits = 0;
    bool enabled = true;
};

ConfigValues ReadConfig(IPrintConfig& config);
// The name comes last.
void WriteConfig(IPrintConfig& config, const ConfigValues& values);

// The name of a configuration that the operator gave none. Its blanks and capitals are as required: another form than
// in a line.
std::wstring NameFromValues(const ConfigValues& values);

// False when the host refuses.
bool AddConfig(IPrintConfig& config);

// Removes the configuration with its factory and user schemes. The other schemes keep their configuration index: it is
// the host's to renumber. False where the host has no such configuration.
bool RemoveConfig(int config);
