#pragma once

#include "tests/msabi/host/HostArray.h"

// The interfaces as the host's own team writes them for Microsoft's compiler: the operations in table order, one
// virtual destructor where the library has one, the host's own types. Nothing here comes from the library's headers.

class IActiveSetup;
class IChannelList;
class IChannelSetup;
class IConfigList;
class ICustomEclosion;
class ICustomEclosionSet;
class IDataMode;
class IDeviceState;
class IEclosionElement;
class IEclosionMode;
class IHeadLayout;
class IHeadLayoutList;
class IHostControl;
class IHostData;
class IInkChannel;
class IInkChannelTable;
class IInkGroup;
class IInkGroupTable;
class ILayout;
class ILayoutList;
class IMaterial;
class IMaterialList;
class IParamTable;
class IPrintConfig;
class IPrintMode;
class IPrintScheme;
class ISchemeParams;
class IUserScheme;
class IXResolution;
class IXResolutionList;

template <class Scheme>
class ISchemeList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned int GetCount() = 0;
    virtual Scheme* GetAt(unsigned int index) = 0;
    virtual Scheme* AddScheme() = 0;
    virtual void RemoveAt(unsigned int index) = 0;
};

class IActiveSetup
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual unsigned int GetId() = 0;
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual void Other14() {}
    virtual void Other15() {}
    virtual void Other16() {}
    virtual void Other17() {}
    virtual void Other18() {}
    virtual void Other19() {}
    virtual unsigned int GetGroupCount() = 0;
    virtual void Other21() {}
    virtual unsigned short GetGroupId(unsigned int index) = 0;
};

class IChannelList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned int GetCount() = 0;
    virtual IChannelSetup* GetAt(unsigned int index) = 0;
};

class IChannelSetup
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual const char* GetName() = 0;
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual int FindSetup(unsigned int id) = 0;
};

class IConfigList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual unsigned int GetCount() = 0;
    virtual IPrintConfig* GetAt(unsigned int index) = 0;
    virtual void Other16() {}
    virtual void Other17() {}
    virtual bool AddConfig(IPrintConfig* source) = 0;
    virtual void RemoveAt(unsigned int index) = 0;
};

class ICustomEclosion
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual int GetCurrentMode() = 0;
    virtual void SetCurrentMode(int index) = 0;
    virtual bool IsLocked() = 0;
    virtual void SetLocked(bool locked) = 0;
    virtual int GetRange() = 0;
    virtual void SetRange(int range) = 0;
    virtual unsigned int GetModeCount() = 0;
    virtual IEclosionMode* AddMode() = 0;
    virtual IEclosionMode* GetMode(unsigned int index) = 0;
    virtual void DeleteMode(unsigned int index) = 0;
};

class ICustomEclosionSet
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual int GetCurrentIndex() = 0;
    virtual void SetCurrentIndex(int index) = 0;
    virtual unsigned int GetCount() = 0;
    virtual ICustomEclosion* AddEclosion() = 0;
    virtual ICustomEclosion* GetEclosion(unsigned int index) = 0;
};

class IDataMode
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual const char* GetName() = 0;
};

class IDeviceState
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual void Other14() {}
    virtual void Other15() {}
    virtual IActiveSetup* GetActiveSetup() = 0;
};

class IEclosionElement
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual int GetWidth() = 0;
    virtual void SetWidth(int width) = 0;
    virtual int GetHeight() = 0;
    virtual void SetHeight(int height) = 0;
};

class IEclosionMode
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual unsigned int GetElementCount() = 0;
    virtual IEclosionElement* AddElement() = 0;
    virtual IEclosionElement* GetElement(unsigned int index) = 0;
    virtual void DeleteElement(unsigned int index) = 0;
};

class IHeadLayout
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual const char* GetName() = 0;
    virtual unsigned short GetId() = 0;
    virtual void Other5() {}
    virtual unsigned int GetLayoutId() = 0;
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual unsigned int GetDataModeCount() = 0;
    virtual void Other11() {}
    virtual IDataMode* GetDataMode(unsigned int index) = 0;
};

class IHeadLayoutList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned int GetCount() = 0;
    virtual void Other3() {}
    virtual IHeadLayout* GetAt(unsigned int index) = 0;
    virtual void Other5() {}
    virtual IHeadLayout* FindById(unsigned short id) = 0;
    virtual int IndexOfId(unsigned short id) = 0;
};

class IHostControl
{
public:
    virtual void Other0() {}
    virtual void SaveParameters(unsigned int kind) = 0;
    virtual void Other2() {}
    virtual void SaveCustomEclosionSet() = 0;
};

class IHostData
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual ILayoutList* GetLayoutList() = 0;
    virtual IHeadLayoutList* GetHeadLayoutList() = 0;
    virtual void Other16() {}
    virtual void Other17() {}
    virtual void Other18() {}
    virtual IChannelList* GetChannelList() = 0;
    virtual IInkChannelTable* GetInkChannels() = 0;
    virtual IXResolutionList* GetXResolutionList() = 0;
    virtual void Other22() {}
    virtual IInkGroupTable* GetInkGroups() = 0;
    virtual void Other24() {}
    virtual void Other25() {}
    virtual void Other26() {}
    virtual void Other27() {}
    virtual void Other28() {}
    virtual void Other29() {}
    virtual void Other30() {}
    virtual IConfigList* GetConfigList() = 0;
    virtual ISchemeList<IPrintScheme>* GetFactorySchemeList() = 0;
    virtual void Other33() {}
    virtual void Other34() {}
    virtual ISchemeList<IUserScheme>* GetUserSchemeList() = 0;
    virtual void Other36() {}
    virtual void Other37() {}
    virtual void Other38() {}
    virtual IMaterialList* GetMaterialList() = 0;
    virtual ICustomEclosionSet* GetCustomEclosionSet() = 0;
    virtual IDeviceState* GetDeviceState() = 0;
    virtual void Other42() {}
    virtual void Other43() {}
    virtual void Other44() {}
    virtual void Other45() {}
    virtual IParamTable* GetParamTable(unsigned int tableId) = 0;
    virtual void Other47() {}
    virtual void Other48() {}
    virtual void Other49() {}
    virtual void Other50() {}
    virtual void Other51() {}
    virtual void Other52() {}
    virtual void Other53() {}
    virtual void Other54() {}
    virtual void Other55() {}
    virtual void Other56() {}
    virtual void Other57() {}
    virtual void Other58() {}
    virtual void Other59() {}
    virtual IPrintConfig* CreateConfig() = 0;
    virtual void Other61() {}
    virtual void Other62() {}
    virtual void Other63() {}
    virtual void Other64() {}
    virtual void Other65() {}
    virtual void Other66() {}
    virtual void DestroyConfig(IPrintConfig* config) = 0;
};

class IInkChannel
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned short GetId() = 0;
    virtual void Other3() {}
    virtual const char* GetName() = 0;
};

class IInkChannelTable
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual unsigned char GetColorIndex(unsigned short channelId) = 0;
    virtual void Other7() {}
    virtual void GetChannelsOfLayout(unsigned char layoutId, HostArray<IInkChannel*>* channels) = 0;
};

class IInkGroup
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned short GetId() = 0;
    virtual void Other3() {}
    virtual void Other4() {}
    virtual const char* GetName() = 0;
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual unsigned int GetChannelCount() = 0;
    virtual void Other13() {}
    virtual IInkChannel* GetChannel(unsigned int index) = 0;
};

class IInkGroupTable
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual unsigned int GetCount() = 0;
    virtual void Other5() {}
    virtual IInkGroup* GetAt(unsigned int index) = 0;
    virtual void Other7() {}
    virtual IInkGroup* GetGroup(unsigned short groupId) = 0;
    virtual unsigned char GetColorIndex(unsigned short groupId) = 0;
};

class ILayout
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual const char* GetName() = 0;
    virtual unsigned int GetId() = 0;
};

class ILayoutList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned int GetCount() = 0;
    virtual void Other3() {}
    virtual ILayout* GetAt(unsigned int index) = 0;
};

class IMaterial
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual unsigned short GetId() = 0;
    virtual void Other4() {}
    virtual const char* GetName() = 0;
};

class IMaterialList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual void Other14() {}
    virtual void Other15() {}
    virtual void Other16() {}
    virtual void Other17() {}
    virtual void Other18() {}
    virtual void Other19() {}
    virtual void Other20() {}
    virtual void Other21() {}
    virtual void Other22() {}
    virtual void Other23() {}
    virtual void Other24() {}
    virtual unsigned int GetCount() = 0;
    virtual IMaterial* GetAt(unsigned int index) = 0;
};

class IParamTable
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual void Other5() {}
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void Other13() {}
    virtual void Other14() {}
    virtual void Other15() {}
    virtual void Other16() {}
    virtual int GetCount() = 0;
    virtual void Other18() {}
    virtual void Other19() {}
    virtual void Other20() {}
    virtual void GetEntry(void* entry, unsigned int index) = 0;
};

class IPrintConfig
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void SetName(const char* name) = 0;
    virtual void SetXResolution(int dpi) = 0;
    virtual void SetYResolution(int dpi) = 0;
    virtual void SetColorCount(int count) = 0;
    virtual void SetDotBits(int bits) = 0;
    virtual void SetEnabled(int enabled) = 0;
    virtual const char* GetName() = 0;
    virtual unsigned short GetXResolution() = 0;
    virtual unsigned short GetYResolution() = 0;
    virtual unsigned char GetColorCount() = 0;
    virtual unsigned char GetDotBits() = 0;
    virtual int GetEnabled() = 0;
    virtual unsigned int GetModeCount() = 0;
    virtual IPrintMode* GetMode(unsigned int index) = 0;
    virtual IPrintMode* AddMode() = 0;
    virtual void RemoveMode(unsigned int index) = 0;
};

class IPrintMode
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void SetName(const char* name) = 0;
    virtual void SetPassCount(int count) = 0;
    virtual void Other4() {}
    virtual void SetDisabled(bool disabled) = 0;
    virtual void Other6() {}
    virtual void Other7() {}
    virtual void Other8() {}
    virtual void Other9() {}
    virtual void Other10() {}
    virtual void Other11() {}
    virtual void Other12() {}
    virtual void SetXResolutionIndex(int index) = 0;
    virtual void SetHeadDataMode(unsigned char dataMode, unsigned int row) = 0;
    virtual void SetSmallDotCompensation(float value, unsigned int group) = 0;
    virtual void SetMediumDotCompensation(float value, unsigned int group) = 0;
    virtual void SetLargeDotCompensation(float value, unsigned int group) = 0;
    virtual void SetFrontCompensation(bool enabled, unsigned int group) = 0;
    virtual void SetBackCompensation(bool enabled, unsigned int group) = 0;
    virtual void SetResident(unsigned char resident) = 0;
    virtual const char* GetName() = 0;
    virtual unsigned short GetPassCount() = 0;
    virtual void Other23() {}
    virtual unsigned char GetDisabled() = 0;
    virtual void Other25() {}
    virtual void Other26() {}
    virtual void Other27() {}
    virtual void Other28() {}
    virtual void Other29() {}
    virtual void Other30() {}
    virtual void Other31() {}
    virtual int GetXResolutionIndex() = 0;
    virtual unsigned char GetHeadDataMode(unsigned int row) = 0;
    virtual float GetSmallDotCompensation(unsigned int group) = 0;
    virtual float GetMediumDotCompensation(unsigned int group) = 0;
    virtual float GetLargeDotCompensation(unsigned int group) = 0;
    virtual bool GetFrontCompensation(unsigned int group) = 0;
    virtual bool GetBackCompensation(unsigned int group) = 0;
    virtual unsigned char GetResident() = 0;
};

class IPrintScheme
{
public:
    virtual void Other0() {}
    virtual ISchemeParams* GetParams() = 0;
    virtual void SetName(const char* name) = 0;
    virtual void SetConfigIndex(unsigned char index) = 0;
    virtual void SetModeIndex(unsigned char index) = 0;
    virtual void SetWaitStepStop(unsigned char wait) = 0;
    virtual void SetWave(int wave) = 0;
    virtual void SetEnabled(unsigned char enabled) = 0;
    virtual void SetDotMode(unsigned char dotMode) = 0;
    virtual void SetDefaultRangeSS(unsigned char range) = 0;
    virtual void SetDefaultRangeS(unsigned char range) = 0;
    virtual void SetDefaultRangeM(unsigned char range) = 0;
    virtual void SetDefaultRangeL(unsigned char range) = 0;
    virtual void SetEclosionType(unsigned char type) = 0;
    virtual void SetCustomEclosionId(unsigned int id) = 0;
    virtual void SetEclosionLevel(unsigned char level) = 0;
    virtual void SetCustomRange(unsigned char range) = 0;
    virtual void SetHeadEclosionType(unsigned char type) = 0;
    virtual void SetInkMultiple(unsigned short tenths, unsigned char colorIndex) = 0;
    virtual void SetInkCut(unsigned char percent, unsigned char colorIndex) = 0;
    virtual void SetLampLL(unsigned char on) = 0;
    virtual void SetLampLR(unsigned char on) = 0;
    virtual void SetLampRL(unsigned char on) = 0;
    virtual void SetLampRR(unsigned char on) = 0;
    virtual void SetSpeed(unsigned char speed) = 0;
    virtual void SetDirection(unsigned char direction) = 0;
    virtual void SetMaterial(unsigned char materialId) = 0;
    virtual void SetLayoutId(unsigned int layoutId) = 0;
    virtual void SetHeadId(unsigned char headId) = 0;
    virtual void SetChannel(unsigned char channel) = 0;
    virtual void SetSmallFormatMode(unsigned char on) = 0;
    virtual void SetSmallFormatOffset(unsigned short offset) = 0;
    virtual const char* GetName() = 0;
    virtual unsigned char GetConfigIndex() = 0;
    virtual unsigned char GetModeIndex() = 0;
    virtual unsigned char GetWaitStepStop() = 0;
    virtual signed char GetWave() = 0;
    virtual unsigned char GetEnabled() = 0;
    virtual unsigned char GetDotMode() = 0;
    virtual unsigned char GetDefaultRangeSS() = 0;
    virtual unsigned char GetDefaultRangeS() = 0;
    virtual unsigned char GetDefaultRangeM() = 0;
    virtual unsigned char GetDefaultRangeL() = 0;
    virtual unsigned char GetEclosionType() = 0;
    virtual unsigned int GetCustomEclosionId() = 0;
    virtual unsigned char GetEclosionLevel() = 0;
    virtual unsigned char GetCustomRange() = 0;
    virtual unsigned char GetHeadEclosionType() = 0;
    virtual unsigned short GetInkMultiple(unsigned char colorIndex) = 0;
    virtual unsigned char GetInkCut(unsigned char colorIndex) = 0;
    virtual unsigned char GetLampLL() = 0;
    virtual unsigned char GetLampLR() = 0;
    virtual unsigned char GetLampRL() = 0;
    virtual unsigned char GetLampRR() = 0;
    virtual signed char GetSpeed() = 0;
    virtual signed char GetDirection() = 0;
    virtual signed char GetMaterial() = 0;
    virtual unsigned char GetLayoutId() = 0;
    virtual unsigned char GetHeadId() = 0;
    virtual unsigned char GetChannel() = 0;
    virtual unsigned char GetSmallFormatMode() = 0;
    virtual unsigned short GetSmallFormatOffset() = 0;
};

class ISchemeParams
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void CopyFrom(ISchemeParams* source) = 0;
};

class IUserScheme
{
public:
    virtual void Other0() {}
    virtual ISchemeParams* GetParams() = 0;
    virtual void SetName(const char* name) = 0;
    virtual void SetConfigIndex(unsigned char index) = 0;
    virtual void SetBaseScheme(short index) = 0;
    virtual void SetSpeed(unsigned char speed) = 0;
    virtual void SetDirection(unsigned char direction) = 0;
    virtual void SetMaterial(unsigned char materialId) = 0;
    virtual void SetDotMode(unsigned char dotMode) = 0;
    virtual void SetDefaultRangeSS(unsigned char range) = 0;
    virtual void SetDefaultRangeS(unsigned char range) = 0;
    virtual void SetDefaultRangeM(unsigned char range) = 0;
    virtual void SetDefaultRangeL(unsigned char range) = 0;
    virtual void SetEclosionType(unsigned char type) = 0;
    virtual void SetCustomEclosionId(unsigned int id) = 0;
    virtual void SetEclosionLevel(unsigned char level) = 0;
    virtual void SetCustomRange(unsigned char range) = 0;
    virtual void SetHeadEclosionType(unsigned char type) = 0;
    virtual void SetInkMultiple(unsigned short tenths, unsigned char colorIndex) = 0;
    virtual void SetInkCut(unsigned char percent, unsigned char colorIndex) = 0;
    virtual void SetLampLL(unsigned char on) = 0;
    virtual void SetLampLR(unsigned char on) = 0;
    virtual void SetLampRL(unsigned char on) = 0;
    virtual void SetLampRR(unsigned char on) = 0;
    virtual void SetChannel(unsigned char channel) = 0;
    virtual const char* GetName() = 0;
    virtual unsigned char GetConfigIndex() = 0;
    virtual unsigned char GetBaseScheme() = 0;
    virtual signed char GetSpeed() = 0;
    virtual signed char GetDirection() = 0;
    virtual signed char GetMaterial() = 0;
    virtual unsigned char GetDotMode() = 0;
    virtual unsigned char GetDefaultRangeSS() = 0;
    virtual unsigned char GetDefaultRangeS() = 0;
    virtual unsigned char GetDefaultRangeM() = 0;
    virtual unsigned char GetDefaultRangeL() = 0;
    virtual unsigned char GetEclosionType() = 0;
    virtual unsigned int GetCustomEclosionId() = 0;
    virtual unsigned char GetEclosionLevel() = 0;
    virtual unsigned char GetCustomRange() = 0;
    virtual unsigned char GetHeadEclosionType() = 0;
    virtual unsigned short GetInkMultiple(unsigned char colorIndex) = 0;
    virtual unsigned char GetInkCut(unsigned char colorIndex) = 0;
    virtual unsigned char GetLampLL() = 0;
    virtual unsigned char GetLampLR() = 0;
    virtual unsigned char GetLampRL() = 0;
    virtual unsigned char GetLampRR() = 0;
    virtual unsigned char GetChannel() = 0;
};

class IXResolution
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual void Other2() {}
    virtual void Other3() {}
    virtual void Other4() {}
    virtual const char* GetName() = 0;
};

class IXResolutionList
{
public:
    virtual void Other0() {}
    virtual void Other1() {}
    virtual unsigned int GetCount() = 0;
    virtual IXResolution* GetAt(unsigned int index) = 0;
};

class IQuorvane
{
public:
    virtual ~IQuorvane() {}
    virtual int EditPrintModes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0;
    virtual int EditFactorySchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0;
    virtual int EditUserSchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0;
};
