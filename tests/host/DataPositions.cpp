#include "PositionTest.h"

#include "host/Quorvane.h"

namespace
{

#define POSITIONS_OF_IQuorvane(OP0, OP1, OP2, OP3)                                                                     \
    OP1(0, void*, Destroy, std::uint32_t)                                                                              \
    OP3(1, std::int32_t, EditPrintModes, IHostData*, IHostControl*, const wchar_t*)                                    \
    OP3(2, std::int32_t, EditFactorySchemes, IHostData*, IHostControl*, const wchar_t*)                                \
    OP3(3, std::int32_t, EditUserSchemes, IHostData*, IHostControl*, const wchar_t*)

POSITION_TEST(IQuorvane, 4)

#define POSITIONS_OF_IHostData(OP0, OP1, OP2, OP3)                                                                     \
    OP0(14, ILayoutList*, GetLayoutList)                                                                               \
    OP0(15, IHeadLayoutList*, GetHeadLayoutList)                                                                       \
    OP0(19, IChannelList*, GetChannelList)                                                                             \
    OP0(20, IInkChannelTable*, GetInkChannels)                                                                         \
    OP0(21, IXResolutionList*, GetXResolutionList)                                                                     \
    OP0(23, IInkGroupTable*, GetInkGroups)                                                                             \
    OP0(31, IConfigList*, GetConfigList)                                                                               \
    OP0(32, IFactorySchemeList*, GetFactorySchemeList)                                                                 \
    OP0(35, IUserSchemeList*, GetUserSchemeList)                                                                       \
    OP0(39, IMaterialList*, GetMaterialList)                                                                           \
    OP0(40, ICustomEclosionSet*, GetCustomEclosionSet)                                                                 \
    OP0(41, IDeviceState*, GetDeviceState)                                                                             \
    OP1(46, IParamTable*, GetParamTable, std::uint32_t)                                                                \
    OP0(60, IPrintConfig*, CreateConfig)                                                                               \
    OP1(67, void, DestroyConfig, IPrintConfig*)

POSITION_TEST(IHostData, 15)

#define POSITIONS_OF_IHostControl(OP0, OP1, OP2, OP3)                                                                  \
    OP1(1, void, SaveParameters, std::uint32_t)                                                                        \
    OP0(3, void, SaveCustomEclosionSet)

POSITION_TEST(IHostControl, 2)

#define POSITIONS_OF_IConfigList(OP0, OP1, OP2, OP3)                                                                   \
    OP0(14, std::uint32_t, GetCount)                                                                                   \
    OP1(15, IPrintConfig*, GetAt, std::uint32_t)                                                                       \
    OP1(18, std::uint8_t, AddConfig, IPrintConfig*)                                                                    \
    OP1(19, void, RemoveAt, std::uint32_t)

POSITION_TEST(IConfigList, 4)

#define POSITIONS_OF_IPrintConfig(OP0, OP1, OP2, OP3)                                                                  \
    OP1(2, void, SetName, const char*)                                                                                 \
    OP1(3, void, SetXResolution, std::int32_t)                                                                         \
    OP1(4, void, SetYResolution, std::int32_t)                                                                         \
    OP1(5, void, SetColorCount, std::int32_t)                                                                          \
    OP1(6, void, SetDotBits, std::int32_t)                                                                             \
    OP1(7, void, SetEnabled, std::int32_t)                                                                             \
    OP0(8, const char*, GetName)                                                                                       \
    OP0(9, std::uint16_t, GetXResolution)                                                                              \
    OP0(10, std::uint16_t, GetYResolution)                                                                             \
    OP0(11, std::uint8_t, GetColorCount)                                                                               \
    OP0(12, std::uint8_t, GetDotBits)                                                                                  \
    OP0(13, std::int32_t, GetEnabled)                                                                                  \
    OP0(14, std::uint32_t, GetModeCount)                                                                               \
    OP1(15, IPrintMode*, GetMode, std::uint32_t)                                                                       \
    OP0(16, IPrintMode*, AddMode)                                                                                      \
    OP1(17, void, RemoveMode, std::uint32_t)

POSITION_TEST(IPrintConfig, 16)

#define POSITIONS_OF_IPrintMode(OP0, OP1, OP2, OP3)                                                                    \
    OP1(2, void, SetName, const char*)                                                                                 \
    OP1(3, void, SetPassCount, std::int32_t)                                                                           \
    OP1(5, void, SetDisabled, std::int32_t)                                                                            \
    OP1(13, void, SetXResolutionIndex, std::int32_t)                                                                   \
    OP2(14, void, SetHeadDataMode, std::uint8_t, std::uint32_t)                                                        \
    OP2(15, void, SetSmallDotCompensation, float, std::uint32_t)                                                       \
    OP2(16, void, SetMediumDotCompensation, float, std::uint32_t)                                                      \
    OP2(17, void, SetLargeDotCompensation, float, std::uint32_t)                                                       \
    OP2(18, void, SetFrontCompensation, std::int32_t, std::uint32_t)                                                   \
    OP2(19, void, SetBackCompensation, std::int32_t, std::uint32_t)                                                    \
    OP1(20, void, SetResident, std::uint8_t)                                                                           \
    OP0(21, const char*, GetName)                                                                                      \
    OP0(22, std::uint16_t, GetPassCount)                                                                               \
    OP0(24, std::uint8_t, GetDisabled)                                                                                 \
    OP0(32, std::int32_t, GetXResolutionIndex)                                                                         \
    OP1(33, std::uint8_t, GetHeadDataMode, std::uint32_t)                                                              \
    OP1(34, float, GetSmallDotCompensation, std::uint32_t)                                                             \
    OP1(35, float, GetMediumDotCompensation, std::uint32_t)                                                            \
    OP1(36, float, GetLargeDotCompensation, std::uint32_t)                                                             \
    OP1(37, std::uint8_t, GetFrontCompensation, std::uint32_t)                                                         \
    OP1(38, std::uint8_t, GetBackCompensation, std::uint32_t)                                                          \
    OP0(39, std::uint8_t, GetResident)

POSITION_TEST(IPrintMode, 22)

#define POSITIONS_OF_ICustomEclosionSet(OP0, OP1, OP2, OP3)                                                            \
    OP0(2, std::int32_t, GetCurrentIndex)                                                                              \
    OP1(3, void, SetCurrentIndex, std::int32_t)                                                                        \
    OP0(4, std::uint32_t, GetCount)                                                                                    \
    OP0(5, ICustomEclosion*, AddEclosion)                                                                              \
    OP1(6, ICustomEclosion*, GetEclosion, std::uint32_t)

POSITION_TEST(ICustomEclosionSet, 5)

#define POSITIONS_OF_ICustomEclosion(OP0, OP1, OP2, OP3)                                                               \
    OP0(4, std::int32_t, GetCurrentMode)                                                                               \
    OP1(5, void, SetCurrentMode, std::int32_t)                                                                         \
    OP0(6, std::uint8_t, IsLocked)                                                                                     \
    OP1(7, void, SetLocked, std::int32_t)                                                                              \
    OP0(8, std::int32_t, GetRange)                                                                                     \
    OP1(9, void, SetRange, std::int32_t)                                                                               \
    OP0(10, std::uint32_t, GetModeCount)                                                                               \
    OP0(11, IEclosionMode*, AddMode)                                                                                   \
    OP1(12, IEclosionMode*, GetMode, std::uint32_t)                                                                    \
    OP1(13, void, DeleteMode, std::uint32_t)

POSITION_TEST(ICustomEclosion, 10)

#define POSITIONS_OF_IEclosionMode(OP0, OP1, OP2, OP3)                                                                 \
    OP0(4, std::uint32_t, GetElementCount)                                                                             \
    OP0(5, IEclosionElement*, AddElement)                                                                              \
    OP1(6, IEclosionElement*, GetElement, std::uint32_t)                                                               \
    OP1(7, void, DeleteElement, std::uint32_t)

POSITION_TEST(IEclosionMode, 4)

#define POSITIONS_OF_IEclosionElement(OP0, OP1, OP2, OP3)                                                              \
    OP0(4, std::uint8_t, GetWidth)                                                                                     \
    OP1(5, void, SetWidth, std::int32_t)                                                                               \
    OP0(6, std::uint8_t, GetHeight)                                                                                    \
    OP1(7, void, SetHeight, std::int32_t)

POSITION_TEST(IEclosionElement, 4)

} // namespace
