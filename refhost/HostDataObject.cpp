#include "refhost/HostDataObject.h"

namespace refhost
{

HostDataObject::HostDataObject(const Machine& machine)
    : m_machine(machine), m_configs(machine.configurations), m_factorySchemes(machine.factorySchemes),
      m_userSchemes(machine.userSchemes), m_layouts(machine.layouts), m_headLayouts(machine.headLayouts),
      m_xResolutions(machine.xResolutions), m_inkChannels(machine.inkChannels, machine.layouts),
      m_inkGroups(machine.inkGroups, m_inkChannels), m_channelSetups(machine.channelSetups),
      m_materials(machine.materials), m_deviceState(machine.activeSetup), m_customEclosions(machine.customEclosions),
      m_paramTables(machine.paramTables)
{
}

Machine HostDataObject::Values() const
{
    Machine values = m_machine;
    values.configurations = m_configs.Values();
    values.factorySchemes = m_factorySchemes.Values();
    values.userSchemes = m_userSchemes.Values();
    values.customEclosions = m_customEclosions.Values();
    return values;
}

ILayoutList* HostDataObject::GetLayoutList()
{
    return &m_layouts;
}

IHeadLayoutList* HostDataObject::GetHeadLayoutList()
{
    return &m_headLayouts;
}

IChannelList* HostDataObject::GetChannelList()
{
    return &m_channelSetups;
}

IInkChannelTable* HostDataObject::GetInkChannels()
{
    return &m_inkChannels;
}

IXResolutionList* HostDataObject::GetXResolutionList()
{
    return &m_xResolutions;
}

IInkGroupTable* HostDataObject::GetInkGroups()
{
    return &m_inkGroups;
}

IConfigList* HostDataObject::GetConfigList()
{
    return &m_configs;
}

IFactorySchemeList* HostDataObject::GetFactorySchemeList()
{
    return &m_factorySchemes;
}

IUserSchemeList* HostDataObject::GetUserSchemeList()
{
    return &m_userSchemes;
}

IMaterialList* HostDataObject::GetMaterialList()
{
    return &m_materials;
}

ICustomEclosionSet* HostDataObject::GetCustomEclosionSet()
{
    return &m_customEclosions;
}

IDeviceState* HostDataObject::GetDeviceState()
{
    return &m_deviceState;
}

IParamTable* HostDataObject::GetParamTable(std::uint32_t tableId)
{
    for (const auto& table : m_paramTables)
        if (table->Id() == tableId)
            return table.get();
    return nullptr;
}

IPrintConfig* HostDataObject::CreateConfig()
{
    return &m_created.Add(PrintConfig());
}

void HostDataObject::DestroyConfig(IPrintConfig* config)
{
    for (std::uint32_t i = 0; i < m_created.Count(); ++i)
        if (m_created.At(i) == config)
            return m_created.Remove(i);
}

} // namespace refhost
