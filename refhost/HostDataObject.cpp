#include "refhost/HostDataObject.h"

namespace refhost
{

CHostDataObject::CHostDataObject(const Machine& machine)
    : m_machine(machine), m_configs(machine.configurations), m_factorySchemes(machine.factorySchemes),
      m_userSchemes(machine.userSchemes), m_layouts(machine.layouts), m_headLayouts(machine.headLayouts),
      m_xResolutions(machine.xResolutions), m_inkChannels(machine.inkChannels, machine.layouts),
      m_inkGroups(machine.inkGroups, m_inkChannels), m_channelSetups(machine.channelSetups),
      m_materials(machine.materials), m_deviceState(machine.activeSetup), m_customEclosions(machine.customEclosions),
      m_paramTables(machine.paramTables)
{
}

Machine CHostDataObject::Values() const
{
    Machine values = m_machine;
    values.configurations = m_configs.Values();
    values.factorySchemes = m_factorySchemes.Values();
    values.userSchemes = m_userSchemes.Values();
    values.customEclosions = m_customEclosions.Values();
    return values;
}

ILayoutList* CHostDataObject::GetLayoutList()
{
    return &m_layouts;
}

IHeadLayoutList* CHostDataObject::GetHeadLayoutList()
{
    return &m_headLayouts;
}

IChannelList* CHostDataObject::GetChannelList()
{
    return &m_channelSetups;
}

IInkChannelTable* CHostDataObject::GetInkChannels()
{
    return &m_inkChannels;
}

IXResolutionList* CHostDataObject::GetXResolutionList()
{
    return &m_xResolutions;
}

IInkGroupTable* CHostDataObject::GetInkGroups()
{
    return &m_inkGroups;
}

IConfigList* CHostDataObject::GetConfigList()
{
    return &m_configs;
}

IFactorySchemeList* CHostDataObject::GetFactorySchemeList()
{
    return &m_factorySchemes;
}

IUserSchemeList* CHostDataObject::GetUserSchemeList()
{
    return &m_userSchemes;
}

IMaterialList* CHostDataObject::GetMaterialList()
{
    return &m_materials;
}

ICustomEclosionSet* CHostDataObject::GetCustomEclosionSet()
{
    return &m_customEclosions;
}

IDeviceState* CHostDataObject::GetDeviceState()
{
    return &m_deviceState;
}

IParamTable* CHostDataObject::GetParamTable(std::uint32_t tableId)
{
    for (const auto& table : m_paramTables)
        if (table->Id() == tableId)
            return table.get();
    return nullptr;
}

IPrintConfig* CHostDataObject::CreateConfig()
{
    return &m_created.Add(PrintConfig());
}

void CHostDataObject::DestroyConfig(IPrintConfig* config)
{
    std::uint32_t i = 0;
    while (i < m_created.Count() && m_created.At(i) != config)
        ++i;
    m_created.Remove(i);
}

} // namespace refhost
