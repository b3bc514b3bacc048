#include "tests/msabi/host/Positions.h"

namespace
{
const Position kSchemeList[] = {
    {2, "GetCount", "u"},
    {3, "GetAt", "pu"},
    {4, "AddScheme", "p"},
    {5, "RemoveAt", "vu"},
};

const Position kActiveSetup[] = {
    {4, "GetId", "u"},
    {20, "GetGroupCount", "u"},
    {22, "GetGroupId", "wu"},
};

const Position kChannelList[] = {
    {2, "GetCount", "u"},
    {3, "GetAt", "pu"},
};

const Position kChannelSetup[] = {
    {5, "GetName", "t"},
    {14, "FindSetup", "iu"},
};

const Position kConfigList[] = {
    {14, "GetCount", "u"},
    {15, "GetAt", "pu"},
    {18, "AddConfig", "bp"},
    {19, "RemoveAt", "vu"},
};

const Position kCustomEclosion[] = {
    {4, "GetCurrentMode", "i"}, {5, "SetCurrentMode", "vi"}, {6, "IsLocked", "b"},      {7, "SetLocked", "ve"},
    {8, "GetRange", "i"},       {9, "SetRange", "vi"},       {10, "GetModeCount", "u"}, {11, "AddMode", "p"},
    {12, "GetMode", "pu"},      {13, "DeleteMode", "vu"},
};

const Position kCustomEclosionSet[] = {
    {2, "GetCurrentIndex", "i"}, {3, "SetCurrentIndex", "vi"}, {4, "GetCount", "u"},
    {5, "AddEclosion", "p"},     {6, "GetEclosion", "pu"},
};

const Position kDataMode[] = {
    {5, "GetName", "t"},
};

const Position kDeviceState[] = {
    {16, "GetActiveSetup", "p"},
};

// The host returns 32 bits here, of which the library reads a byte.
const Position kEclosionElement[] = {
    {4, "GetWidth", "c"},
    {5, "SetWidth", "vi"},
    {6, "GetHeight", "c"},
    {7, "SetHeight", "vi"},
};

const Position kEclosionMode[] = {
    {4, "GetElementCount", "u"},
    {5, "AddElement", "p"},
    {6, "GetElement", "pu"},
    {7, "DeleteElement", "vu"},
};

const Position kHeadLayout[] = {
    {3, "GetName", "t"},           {4, "GetId", "w"},         {6, "GetLayoutId", "u"},
    {10, "GetDataModeCount", "u"}, {12, "GetDataMode", "pu"},
};

const Position kHeadLayoutList[] = {
    {2, "GetCount", "u"},
    {4, "GetAt", "pu"},
    {6, "FindById", "pw"},
    {7, "IndexOfId", "iw"},
};

const Position kHostControl[] = {
    {1, "SaveParameters", "vu"},
    {3, "SaveCustomEclosionSet", "v"},
};

const Position kHostData[] = {
    {14, "GetLayoutList", "p"},   {15, "GetHeadLayoutList", "p"},    {19, "GetChannelList", "p"},
    {20, "GetInkChannels", "p"},  {21, "GetXResolutionList", "p"},   {23, "GetInkGroups", "p"},
    {31, "GetConfigList", "p"},   {32, "GetFactorySchemeList", "p"}, {35, "GetUserSchemeList", "p"},
    {39, "GetMaterialList", "p"}, {40, "GetCustomEclosionSet", "p"}, {41, "GetDeviceState", "p"},
    {46, "GetParamTable", "pu"},  {60, "CreateConfig", "p"},         {67, "DestroyConfig", "vp"},
};

const Position kInkChannel[] = {
    {2, "GetId", "w"},
    {4, "GetName", "t"},
};

const Position kInkChannelTable[] = {
    {6, "GetColorIndex", "cw"},
    {8, "GetChannelsOfLayout", "vca"},
};

const Position kInkGroup[] = {
    {2, "GetId", "w"},
    {5, "GetName", "t"},
    {12, "GetChannelCount", "u"},
    {14, "GetChannel", "pu"},
};

const Position kInkGroupTable[] = {
    {4, "GetCount", "u"},
    {6, "GetAt", "pu"},
    {8, "GetGroup", "pw"},
    {9, "GetColorIndex", "cw"},
};

const Position kLayout[] = {
    {3, "GetName", "t"},
    {4, "GetId", "u"},
};

const Position kLayoutList[] = {
    {2, "GetCount", "u"},
    {4, "GetAt", "pu"},
};

const Position kMaterial[] = {
    {3, "GetId", "w"},
    {5, "GetName", "t"},
};

const Position kMaterialList[] = {
    {25, "GetCount", "u"},
    {26, "GetAt", "pu"},
};

const Position kParamTable[] = {
    {17, "GetCount", "i"},
    {21, "GetEntry", "vau"},
};

const Position kPrintConfig[] = {
    {2, "SetName", "vt"},        {3, "SetXResolution", "vi"}, {4, "SetYResolution", "vi"}, {5, "SetColorCount", "vi"},
    {6, "SetDotBits", "vi"},     {7, "SetEnabled", "ve"},     {8, "GetName", "t"},         {9, "GetXResolution", "w"},
    {10, "GetYResolution", "w"}, {11, "GetColorCount", "c"},  {12, "GetDotBits", "c"},     {13, "GetEnabled", "i"},
    {14, "GetModeCount", "u"},   {15, "GetMode", "pu"},       {16, "AddMode", "p"},        {17, "RemoveMode", "vu"},
};

const Position kPrintMode[] = {
    {2, "SetName", "vt"},
    {3, "SetPassCount", "vi"},
    {5, "SetDisabled", "ve"},
    {13, "SetXResolutionIndex", "vi"},
    {14, "SetHeadDataMode", "vcu"},
    {15, "SetSmallDotCompensation", "vfu"},
    {16, "SetMediumDotCompensation", "vfu"},
    {17, "SetLargeDotCompensation", "vfu"},
    {18, "SetFrontCompensation", "veu"},
    {19, "SetBackCompensation", "veu"},
    {20, "SetResident", "vc"},
    {21, "GetName", "t"},
    {22, "GetPassCount", "w"},
    {24, "GetDisabled", "c"},
    {32, "GetXResolutionIndex", "i"},
    {33, "GetHeadDataMode", "cu"},
    {34, "GetSmallDotCompensation", "fu"},
    {35, "GetMediumDotCompensation", "fu"},
    {36, "GetLargeDotCompensation", "fu"},
    {37, "GetFrontCompensation", "bu"},
    {38, "GetBackCompensation", "bu"},
    {39, "GetResident", "c"},
};

const Position kPrintScheme[] = {
    {1, "GetParams", "p"},
    {2, "SetName", "vt"},
    {3, "SetConfigIndex", "vc"},
    {4, "SetModeIndex", "vc"},
    {5, "SetWaitStepStop", "vc"},
    {6, "SetWave", "vi"},
    {7, "SetEnabled", "vc"},
    {8, "SetDotMode", "vc"},
    {9, "SetDefaultRangeSS", "vc"},
    {10, "SetDefaultRangeS", "vc"},
    {11, "SetDefaultRangeM", "vc"},
    {12, "SetDefaultRangeL", "vc"},
    {13, "SetEclosionType", "vc"},
    {14, "SetCustomEclosionId", "vu"},
    {15, "SetEclosionLevel", "vc"},
    {16, "SetCustomRange", "vc"},
    {17, "SetHeadEclosionType", "vc"},
    {18, "SetInkMultiple", "vwc"},
    {19, "SetInkCut", "vcc"},
    {20, "SetLampLL", "vc"},
    {21, "SetLampLR", "vc"},
    {22, "SetLampRL", "vc"},
    {23, "SetLampRR", "vc"},
    {24, "SetSpeed", "vc"},
    {25, "SetDirection", "vc"},
    {26, "SetMaterial", "vc"},
    {27, "SetLayoutId", "vu"},
    {28, "SetHeadId", "vc"},
    {29, "SetChannel", "vc"},
    {30, "SetSmallFormatMode", "vc"},
    {31, "SetSmallFormatOffset", "vw"},
    {32, "GetName", "t"},
    {33, "GetConfigIndex", "c"},
    {34, "GetModeIndex", "c"},
    {35, "GetWaitStepStop", "c"},
    {36, "GetWave", "s"},
    {37, "GetEnabled", "c"},
    {38, "GetDotMode", "c"},
    {39, "GetDefaultRangeSS", "c"},
    {40, "GetDefaultRangeS", "c"},
    {41, "GetDefaultRangeM", "c"},
    {42, "GetDefaultRangeL", "c"},
    {43, "GetEclosionType", "c"},
    {44, "GetCustomEclosionId", "u"},
    {45, "GetEclosionLevel", "c"},
    {46, "GetCustomRange", "c"},
    {47, "GetHeadEclosionType", "c"},
    {48, "GetInkMultiple", "wc"},
    {49, "GetInkCut", "cc"},
    {50, "GetLampLL", "c"},
    {51, "GetLampLR", "c"},
    {52, "GetLampRL", "c"},
    {53, "GetLampRR", "c"},
    {54, "GetSpeed", "s"},
    {55, "GetDirection", "s"},
    {56, "GetMaterial", "s"},
    {57, "GetLayoutId", "c"},
    {58, "GetHeadId", "c"},
    {59, "GetChannel", "c"},
    {60, "GetSmallFormatMode", "c"},
    {61, "GetSmallFormatOffset", "w"},
};

const Position kSchemeParams[] = {
    {2, "CopyFrom", "vp"},
};

const Position kUserScheme[] = {
    {1, "GetParams", "p"},
    {2, "SetName", "vt"},
    {3, "SetConfigIndex", "vc"},
    {4, "SetBaseScheme", "vw"},
    {5, "SetSpeed", "vc"},
    {6, "SetDirection", "vc"},
    {7, "SetMaterial", "vc"},
    {8, "SetDotMode", "vc"},
    {9, "SetDefaultRangeSS", "vc"},
    {10, "SetDefaultRangeS", "vc"},
    {11, "SetDefaultRangeM", "vc"},
    {12, "SetDefaultRangeL", "vc"},
    {13, "SetEclosionType", "vc"},
    {14, "SetCustomEclosionId", "vu"},
    {15, "SetEclosionLevel", "vc"},
    {16, "SetCustomRange", "vc"},
    {17, "SetHeadEclosionType", "vc"},
    {18, "SetInkMultiple", "vwc"},
    {19, "SetInkCut", "vcc"},
    {20, "SetLampLL", "vc"},
    {21, "SetLampLR", "vc"},
    {22, "SetLampRL", "vc"},
    {23, "SetLampRR", "vc"},
    {24, "SetChannel", "vc"},
    {25, "GetName", "t"},
    {26, "GetConfigIndex", "c"},
    {27, "GetBaseScheme", "c"},
    {28, "GetSpeed", "s"},
    {29, "GetDirection", "s"},
    {30, "GetMaterial", "s"},
    {31, "GetDotMode", "c"},
    {32, "GetDefaultRangeSS", "c"},
    {33, "GetDefaultRangeS", "c"},
    {34, "GetDefaultRangeM", "c"},
    {35, "GetDefaultRangeL", "c"},
    {36, "GetEclosionType", "c"},
    {37, "GetCustomEclosionId", "u"},
    {38, "GetEclosionLevel", "c"},
    {39, "GetCustomRange", "c"},
    {40, "GetHeadEclosionType", "c"},
    {41, "GetInkMultiple", "wc"},
    {42, "GetInkCut", "cc"},
    {43, "GetLampLL", "c"},
    {44, "GetLampLR", "c"},
    {45, "GetLampRL", "c"},
    {46, "GetLampRR", "c"},
    {47, "GetChannel", "c"},
};

const Position kXResolution[] = {
    {5, "GetName", "t"},
};

const Position kXResolutionList[] = {
    {2, "GetCount", "u"},
    {3, "GetAt", "pu"},
};

template <unsigned Count>
constexpr InterfaceTable Table(const char* name, const Position (&positions)[Count])
{
    return {name, positions, Count, nullptr, {}};
}

// In the order of InterfaceId.
InterfaceTable g_tables[] = {
    Table("IFactorySchemeList", kSchemeList),
    Table("IUserSchemeList", kSchemeList),
    Table("IActiveSetup", kActiveSetup),
    Table("IChannelList", kChannelList),
    Table("IChannelSetup", kChannelSetup),
    Table("IConfigList", kConfigList),
    Table("ICustomEclosion", kCustomEclosion),
    Table("ICustomEclosionSet", kCustomEclosionSet),
    Table("IDataMode", kDataMode),
    Table("IDeviceState", kDeviceState),
    Table("IEclosionElement", kEclosionElement),
    Table("IEclosionMode", kEclosionMode),
    Table("IHeadLayout", kHeadLayout),
    Table("IHeadLayoutList", kHeadLayoutList),
    Table("IHostControl", kHostControl),
    Table("IHostData", kHostData),
    Table("IInkChannel", kInkChannel),
    Table("IInkChannelTable", kInkChannelTable),
    Table("IInkGroup", kInkGroup),
    Table("IInkGroupTable", kInkGroupTable),
    Table("ILayout", kLayout),
    Table("ILayoutList", kLayoutList),
    Table("IMaterial", kMaterial),
    Table("IMaterialList", kMaterialList),
    Table("IParamTable", kParamTable),
    Table("IPrintConfig", kPrintConfig),
    Table("IPrintMode", kPrintMode),
    Table("IPrintScheme", kPrintScheme),
    Table("ISchemeParams", kSchemeParams),
    Table("IUserScheme", kUserScheme),
    Table("IXResolution", kXResolution),
    Table("IXResolutionList", kXResolutionList),
};
static_assert(sizeof(g_tables) / sizeof(g_tables[0]) == static_cast<unsigned>(InterfaceId::Count));
} // namespace

InterfaceTable& TableOf(InterfaceId interface_)
{
    return g_tables[static_cast<unsigned>(interface_)];
}
