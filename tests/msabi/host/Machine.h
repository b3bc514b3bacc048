#pragma once

#include "tests/msabi/host/Eclosions.h"
#include "tests/msabi/host/MachineData.h"
#include "tests/msabi/host/PrintConfig.h"
#include "tests/msabi/host/Schemes.h"

class HostControl final : public Object<IHostControl>
{
public:
    void SaveParameters(unsigned kind) override { Require(kind == 2 || kind == 3, "there is no such kind"); }
    void SaveCustomEclosionSet() override {}
};

// The machine itself: what leads to everything else.
class HostData final : public Object<IHostData>
{
public:
    ILayoutList* GetLayoutList() override { return layouts; }
    IHeadLayoutList* GetHeadLayoutList() override { return heads; }
    IChannelList* GetChannelList() override { return channelSetups; }
    IInkChannelTable* GetInkChannels() override { return inkChannels; }
    IXResolutionList* GetXResolutionList() override { return xResolutions; }
    IInkGroupTable* GetInkGroups() override { return inkGroups; }
    IConfigList* GetConfigList() override { return configs; }
    ISchemeList<IPrintScheme>* GetFactorySchemeList() override { return factorySchemes; }
    ISchemeList<IUserScheme>* GetUserSchemeList() override { return userSchemes; }
    IMaterialList* GetMaterialList() override { return materials; }
    ICustomEclosionSet* GetCustomEclosionSet() override { return eclosions; }
    IDeviceState* GetDeviceState() override { return state; }
    IParamTable* GetParamTable(unsigned tableId) override;
    IPrintConfig* CreateConfig() override;
    void DestroyConfig(IPrintConfig* config) override;

    LayoutList* layouts = nullptr;
    HeadLayoutList* heads = nullptr;
    ChannelList* channelSetups = nullptr;
    InkChannelTable* inkChannels = nullptr;
    XResolutionList* xResolutions = nullptr;
    InkGroupTable* inkGroups = nullptr;
    ConfigList* configs = nullptr;
    FactorySchemeList* factorySchemes = nullptr;
    UserSchemeList* userSchemes = nullptr;
    MaterialList* materials = nullptr;
    CustomEclosionSet* eclosions = nullptr;
    DeviceState* state = nullptr;
    HostArray<ParamTable*> tables;

private:
    PrintConfig* m_lent = nullptr;
};

// A machine in which every value of a scheme or a mode differs from its neighbours.
//
// Configurations: "Fast" with three modes, "Fine" with one, "Draft" without. Factory schemes: "Poster", "Banner" and
// "Sign" (0, 1, 3) of the first, "Photo" (2) of the second. User schemes: "Mine" (of "Poster"), "Yours" (of "Sign") and
// "Album" (of "Photo"). Layout 40 "Four" has four channels and two heads, layout 41 "Two" has two and one.
HostData* MakeMachine();

void DescribeMachine(const HostData& machine, TextBuffer& text);
