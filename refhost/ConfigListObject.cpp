#include "refhost/ConfigListObject.h"

namespace refhost
{

ConfigListObject::ConfigListObject(const std::vector<PrintConfig>& configs) : m_configs(configs) {}

std::vector<PrintConfig> ConfigListObject::Values() const
{
    return m_configs.Values();
}

std::uint32_t ConfigListObject::GetCount()
{
    return m_configs.Count();
}

IPrintConfig* ConfigListObject::GetAt(std::uint32_t index)
{
    return m_configs.At(index);
}

std::uint8_t ConfigListObject::AddConfig(IPrintConfig* source)
{
    // Every configuration that an editor can hold was made by this host.
    const auto* config = static_cast<const PrintConfigObject*>(source);
    if (config == nullptr)
        return 0;
    m_configs.Add(config->Values());
    return 1;
}

void ConfigListObject::RemoveAt(std::uint32_t index)
{
    m_configs.Remove(index);
}

} // namespace refhost
