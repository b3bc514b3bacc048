#include "dialogs/data/Configs.h"

#include "dialogs/data/HostText.h"
#include "dialogs/data/NumberText.h"
#include "dialogs/data/Schemes.h"

namespace
{
std::wstring Bracketed(int number, const wchar_t* unit)
{
    return L"[" + NumberText(number) + unit + L"]";
}

std::wstring Resolution(int x, int y, const wchar_t* by)
{
    return L"[" + NumberText(x) + by + NumberText(y) + L"]";
}

std::wstring ValuesText(IPrintConfig& config, const wchar_t* bits)
{
    const std::wstring resolution = Resolution(config.GetXResolution(), config.GetYResolution(), L"X");
    return resolution + Bracketed(config.GetColorCount(), L"C") + Bracketed(config.GetDotBits(), bits);
}

// From the last one, so that no index moves before it is looked at.
template <class SchemeList>
void RemoveSchemesOf(SchemeList* list, int config)
{
    for (std::uint32_t i = CountOf(list); i-- > 0;)
    {
        auto* scheme = At(list, i);
        if (scheme && BelongsTo(*scheme, config))
            list->RemoveAt(i);
    }
}
} // namespace

IPrintConfig* ConfigAt(int config)
{
    return At(HostData().GetConfigList(), config);
}

std::wstring ConfigLine(const std::wstring& name, IPrintConfig& config)
{
    return name + L" " + ValuesText(config, L"B");
}

std::wstring ConfigName(IPrintConfig& config)
{
    const std::wstring name = HostText(config.GetName());
    return name.empty() ? ValuesText(config, L"b") : name;
}

ConfigValues ReadConfig(IPrintConfig& config)
{
    ConfigValues values;
    values.xResolution = config.GetXResolution();
    values.yResolution = config.GetYResolution();
    values.colorCount = config.GetColorCount();
    values.dotBits = config.GetDotBits();
    values.enabled = config.GetEnabled() != 0;
    values.name = HostText(config.GetName());
    return values;
}

void WriteConfig(IPrintConfig& config, const ConfigValues& values)
{
    config.SetXResolution(values.xResolution);
    config.SetYResolution(values.yResolution);
    config.SetColorCount(values.colorCount);
    config.SetDotBits(values.dotBits);
    config.SetEnabled(values.enabled);
    SetHostName(config, values.name.c_str());
}

std::wstring NameFromValues(const ConfigValues& values)
{
    std::wstring name = Resolution(values.xResolution, values.yResolution, L" X ");
    if (values.colorCount != 0)
        name += Bracketed(values.colorCount, L" C");
    if (values.dotBits != 0)
        name += Bracketed(values.dotBits, L" B");
    return name;
}

bool AddConfig(IPrintConfig& config)
{
    IConfigList* list = HostData().GetConfigList();
    return list && list->AddConfig(&config) != 0;
}

bool RemoveConfig(int config)
{
    IConfigList* list = HostData().GetConfigList();
    if (!At(list, config))
        return false;
    list->RemoveAt(static_cast<std::uint32_t>(config));
    RemoveSchemesOf(HostData().GetFactorySchemeList(), config);
    RemoveSchemesOf(HostData().GetUserSchemeList(), config);
    return true;
}
