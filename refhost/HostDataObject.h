#pragma once

#include "host/IHostData.h"
#include "refhost/ConfigListObject.h"
#include "refhost/EclosionObjects.h"
#include "refhost/InkObjects.h"
#include "refhost/SchemeListObject.h"
#include "refhost/TableObjects.h"

namespace refhost
{

class HostDataObject : public IHostData
{
public:
    explicit HostDataObject(const Machine& machine);

    Machine Values() const;

    ILayoutList* GetLayoutList() override;
    IHeadLayoutList* GetHeadLayoutList() override;
    IChannelList* GetChannelList() override;
    IInkChannelTable* GetInkChannels() override;
    IXResolutionList* GetXResolutionList() override;
    IInkGroupTable* GetInkGroups() override;
    IConfigList* GetConfigList() override;
    IFactorySchemeList* GetFactorySchemeList() override;
    IUserSchemeList* GetUserSchemeList() override;
    IMaterialList* GetMaterialList() override;
    ICustomEclosionSet* GetCustomEclosionSet() override;
    IDeviceState* GetDeviceState() override;
    IParamTable* GetParamTable(std::uint32_t tableId) override;
    IPrintConfig* CreateConfig() override;
    void DestroyConfig(IPrintConfig* config) override;

private:
    Machine m_machine; // what editors cannot change
    ConfigListObject m_configs;
    FactorySchemeListObject m_factorySchemes;
    UserSchemeListObject m_userSchemes;
    LayoutListObject m_layouts;
    HeadLayoutListObject m_headLayouts;
    XResolutionListObject m_xResolutions;
    InkChannelTableObject m_inkChannels;
    InkGroupTableObject m_inkGroups;
    ChannelListObject m_channelSetups;
    MaterialListObject m_materials;
    DeviceStateObject m_deviceState;
    CustomEclosionSetObject m_customEclosions;
    HostItems<ParamTableObject> m_paramTables;
    HostItems<PrintConfigObject> m_created; // not yet handed back
};

} // namespace refhost
