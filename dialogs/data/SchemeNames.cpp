#include "dialogs/data/SchemeNames.h"

#include "dialogs/data/HostText.h"
#include "dialogs/data/MisreadText.h"
#include "dialogs/data/NumberText.h"
#include "dialogs/data/Schemes.h"
#include "host/IPrintConfig.h"

namespace
{
// A scheme's name has room for 62 bytes and the terminator.
constexpr std::size_t MAX_NAME_BYTES = 62;
} // namespace

std::string NewSchemeName(const char* configName, int schemeId)
{
    const std::optional<std::wstring> wide = WideText(configName);
    const std::string name = WideReadAsNarrow(wide ? wide->c_str() : nullptr) + "-" + std::to_string(schemeId + 1);
    return name.substr(0, MAX_NAME_BYTES);
}

std::string CopiedSchemeName(IPrintConfig& config)
{
    return std::to_string(config.GetXResolution()) + "X" + std::to_string(config.GetYResolution()) + "_Copy";
}

std::wstring ProposedSchemeName(const std::wstring& word)
{
    return word + L"-" + NumberText(UserSchemeCount() + 1);
}

std::wstring PresetText(const char* name, const std::wstring& word)
{
    return NarrowReadAsWide(name) + L"(" + word + L")";
}
