#include "refhost/ConfigListObject.h"

namespace refhost
{

CConfigListObject::CConfigListObject(const std::vector<PrintConfig>& configs) : m_configs(configs) {}

std::vector<PrintConfig> CConfigListObject::Values() const
{
    return m_configs.Values();
}

std::uint32_t CConfigListObject::GetCount()
{
    return m_configs.Count();
}

IPrintConfig* CConfigListObject::GetAt(std::uint32_t index)
{
    return m_configs.At(index);
}

std::uint8_t CConfigListObject::AddConfig(IPrintConfig* source)
{
    // Every configuration that an editor can hold was made by this host.
    const auto* config = static_cast<const CPrintConfigObject*>(source);
    if (config == nullptr)
        return 0;
    m_configs.Add(config->Values());
    return 1;
}

void CConfigListObject::RemoveAt(std::uint32_t index)
{
    m_configs.Remove(index);
}

} // namespace refhost
