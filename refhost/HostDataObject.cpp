#include "refhost/HostDataObject.h"

namespace refhost
{

HostDataObject::HostDataObject(HostContext& context, const Machine& machine)
    : HostObject(context, "IHostData"), m_machine(machine), m_configs(context, machine.configurations),
      m_factorySchemes(context, "factory", machine.factorySchemes), m_userSchemes(context, "user", machine.userSchemes),
      m_layouts(context, "ILayoutList", machine.layouts),
      m_headLayouts(context, "IHeadLayoutList", machine.headLayouts),
      m_xResolutions(context, "IXResolutionList", machine.xResolutions),
      m_inkChannels(context, machine.inkChannels, machine.layouts),
      m_inkGroups(context, machine.inkGroups, m_inkChannels),
      m_channelSetups(context, "IChannelList", machine.channelSetups),
      m_materials(context, "IMaterialList", machine.materials), m_deviceState(context, machine.activeSetup),
      m_customEclosions(context, machine.customEclosions), m_paramTables(context, std::string()),
      m_created(context, "new")
{
    for (const ParamTable& table : machine.paramTables)
        m_paramTables.Add(table);
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
    return Read("GetLayoutList") ? &m_layouts : nullptr;
}

IHeadLayoutList* HostDataObject::GetHeadLayoutList()
{
    return Read("GetHeadLayoutList") ? &m_headLayouts : nullptr;
}

IChannelList* HostDataObject::GetChannelList()
{
    return Read("GetChannelList") ? &m_channelSetups : nullptr;
}

IInkChannelTable* HostDataObject::GetInkChannels()
{
    return Read("GetInkChannels") ? &m_inkChannels : nullptr;
}

IXResolutionList* HostDataObject::GetXResolutionList()
{
    return Read("GetXResolutionList") ? &m_xResolutions : nullptr;
}

IInkGroupTable* HostDataObject::GetInkGroups()
{
    return Read("GetInkGroups") ? &m_inkGroups : nullptr;
}

IConfigList* HostDataObject::GetConfigList()
{
    return Read("GetConfigList") ? &m_configs : nullptr;
}

IFactorySchemeList* HostDataObject::GetFactorySchemeList()
{
    return Read("GetFactorySchemeList") ? &m_factorySchemes : nullptr;
}

IUserSchemeList* HostDataObject::GetUserSchemeList()
{
    return Read("GetUserSchemeList") ? &m_userSchemes : nullptr;
}

IMaterialList* HostDataObject::GetMaterialList()
{
    return Read("GetMaterialList") ? &m_materials : nullptr;
}

ICustomEclosionSet* HostDataObject::GetCustomEclosionSet()
{
    return Read("GetCustomEclosionSet") ? &m_customEclosions : nullptr;
}

IDeviceState* HostDataObject::GetDeviceState()
{
    return Read("GetDeviceState") ? &m_deviceState : nullptr;
}

IParamTable* HostDataObject::GetParamTable(std::uint32_t tableId)
{
    if (Read("GetParamTable", tableId))
        for (const auto& table : m_paramTables)
            if (table->Id() == tableId)
                return table.get();
    return nullptr;
}

IPrintConfig* HostDataObject::CreateConfig()
{
    return Change("CreateConfig") ? &m_created.Add(PrintConfig()) : nullptr;
}

void HostDataObject::DestroyConfig(IPrintConfig* config)
{
    for (std::uint32_t i = 0; i < m_created.Count(); ++i)
        if (m_created.At(i) == config)
        {
            Change("DestroyConfig", static_cast<const HostObject*>(m_created.At(i)));
            return m_created.Remove(i);
        }
    // The pointer may be dead, so nothing is asked of it.
    Context().log.RecordViolation("IHostData.DestroyConfig of what CreateConfig did not make");
}

} // namespace refhost
