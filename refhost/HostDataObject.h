#pragma once

#include "host/IHostData.h"
#include "refhost/ConfigListObject.h"
#include "refhost/EclosionObjects.h"
#include "refhost/InkObjects.h"
#include "refhost/SchemeListObject.h"
#include "refhost/TableObjects.h"

namespace refhost
{

class CHostDataObject final : public IHostData
{
public:
    explicit CHostDataObject(const Machine& machine);

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
    CConfigListObject m_configs;
    CFactorySchemeListObject m_factorySchemes;
    CUserSchemeListObject m_userSchemes;
    CLayoutListObject m_layouts;
    CHeadLayoutListObject m_headLayouts;
    CXResolutionListObject m_xResolutions;
    CInkChannelTableObject m_inkChannels;
    CInkGroupTableObject m_inkGroups;
    CChannelListObject m_channelSetups;
    CMaterialListObject m_materials;
    CDeviceStateObject m_deviceState;
    CCustomEclosionSetObject m_customEclosions;
    CHostItems<CParamTableObject> m_paramTables;
    CHostItems<CPrintConfigObject> m_created; // not yet handed back
};

} // namespace refhost
