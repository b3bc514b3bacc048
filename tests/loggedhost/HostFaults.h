// Ways in which a host may behave badly, for tests.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct HostFaults
{
    // Calls that fail, as the call log writes them, with * for any text: an object or a name comes back as null,
    // AddConfig refuses. Examples: "IHostData.*", "IConfigList.GetAt(2)", "IPrintConfig[*].AddMode()",
    // "IPrintMode[*].GetName()", "IConfigList.AddConfig(*)". Other operations do not fail.
    std::vector<std::string> failing;

    // Removed objects are not freed but kept aside, and every call on one is recorded as a violation.
    bool keepRemoved = false;

    // How many bytes GetEntry fills; the first four are the value.
    std::size_t paramEntryBytes = 4;

    bool Fails(const std::string& call) const;
};
