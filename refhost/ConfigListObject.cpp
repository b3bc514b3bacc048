#include "refhost/ConfigListObject.h"

namespace refhost
{

ConfigListObject::ConfigListObject(HostContext& context, const std::vector<PrintConfig>& configs)
    : HostObject(context, "IConfigList"), m_configs(context, std::string())
{
    for (const PrintConfig& config : configs)
        m_configs.Add(config);
}

std::vector<PrintConfig> ConfigListObject::Values() const
{
    std::vector<PrintConfig> values;
    for (const auto& config : m_configs)
        values.push_back(config->Values());
    return values;
}

std::uint32_t ConfigListObject::GetCount()
{
    return Get("GetCount", m_configs.Count());
}

IPrintConfig* ConfigListObject::GetAt(std::uint32_t index)
{
    return Read("GetAt", index) ? m_configs.At(index) : nullptr;
}

std::uint8_t ConfigListObject::AddConfig(IPrintConfig* source)
{
    // Every configuration that an editor can hold was made by this host.
    auto* config = static_cast<PrintConfigObject*>(source);
    const bool accepted = Change("AddConfig", static_cast<const HostObject*>(config)) && config != nullptr;
    if (accepted)
        m_configs.Add(config->Values());
    return accepted;
}

void ConfigListObject::RemoveAt(std::uint32_t index)
{
    Change("RemoveAt", index);
    m_configs.Remove(index);
}

} // namespace refhost
