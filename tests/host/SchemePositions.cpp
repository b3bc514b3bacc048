#include "PositionTest.h"

#include "host/Quorvane.h"

namespace
{

#define POSITIONS_OF_IFactorySchemeList(OP0, OP1, OP2, OP3)                                                            \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(3, IPrintScheme*, GetAt, std::uint32_t)                                                                        \
    OP0(4, IPrintScheme*, AddScheme)                                                                                   \
    OP1(5, void, RemoveAt, std::uint32_t)

POSITION_TEST(IFactorySchemeList, 4)

#define POSITIONS_OF_IUserSchemeList(OP0, OP1, OP2, OP3)                                                               \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(3, IUserScheme*, GetAt, std::uint32_t)                                                                         \
    OP0(4, IUserScheme*, AddScheme)                                                                                    \
    OP1(5, void, RemoveAt, std::uint32_t)

POSITION_TEST(IUserSchemeList, 4)

#define POSITIONS_OF_IPrintScheme(OP0, OP1, OP2, OP3)                                                                  \
    OP0(1, ISchemeParams*, GetParams)                                                                                  \
    OP1(2, void, SetName, const char*)                                                                                 \
    OP1(3, void, SetConfigIndex, std::uint8_t)                                                                         \
    OP1(4, void, SetModeIndex, std::uint8_t)                                                                           \
    OP1(5, void, SetWaitStepStop, std::uint8_t)                                                                        \
    OP1(6, void, SetWave, std::int32_t)                                                                                \
    OP1(7, void, SetEnabled, std::uint8_t)                                                                             \
    OP1(8, void, SetDotMode, std::uint8_t)                                                                             \
    OP1(9, void, SetDefaultRangeSS, std::uint8_t)                                                                      \
    OP1(10, void, SetDefaultRangeS, std::uint8_t)                                                                      \
    OP1(11, void, SetDefaultRangeM, std::uint8_t)                                                                      \
    OP1(12, void, SetDefaultRangeL, std::uint8_t)                                                                      \
    OP1(13, void, SetEclosionType, std::uint8_t)                                                                       \
    OP1(14, void, SetCustomEclosionId, std::uint32_t)                                                                  \
    OP1(15, void, SetEclosionLevel, std::uint8_t)                                                                      \
    OP1(16, void, SetCustomRange, std::uint8_t)                                                                        \
    OP1(17, void, SetHeadEclosionType, std::uint8_t)                                                                   \
    OP2(18, void, SetInkMultiple, std::uint16_t, std::uint8_t)                                                         \
    OP2(19, void, SetInkCut, std::uint16_t, std::uint8_t)                                                              \
    OP1(20, void, SetLampLL, std::uint8_t)                                                                             \
    OP1(21, void, SetLampLR, std::uint8_t)                                                                             \
    OP1(22, void, SetLampRL, std::uint8_t)                                                                             \
    OP1(23, void, SetLampRR, std::uint8_t)                                                                             \
    OP1(24, void, SetSpeed, std::uint8_t)                                                                              \
    OP1(25, void, SetDirection, std::uint8_t)                                                                          \
    OP1(26, void, SetMaterial, std::uint8_t)                                                                           \
    OP1(27, void, SetLayoutId, std::uint32_t)                                                                          \
    OP1(28, void, SetHeadId, std::uint8_t)                                                                             \
    OP1(29, void, SetChannel, std::uint8_t)                                                                            \
    OP1(30, void, SetSmallFormatMode, std::uint8_t)                                                                    \
    OP1(31, void, SetSmallFormatOffset, std::uint16_t)                                                                 \
    OP0(32, const char*, GetName)                                                                                      \
    OP0(33, std::uint8_t, GetConfigIndex)                                                                              \
    OP0(34, std::uint8_t, GetModeIndex)                                                                                \
    OP0(35, std::uint8_t, GetWaitStepStop)                                                                             \
    OP0(36, std::int8_t, GetWave)                                                                                      \
    OP0(37, std::uint8_t, GetEnabled)                                                                                  \
    OP0(38, std::uint8_t, GetDotMode)                                                                                  \
    OP0(39, std::uint8_t, GetDefaultRangeSS)                                                                           \
    OP0(40, std::uint8_t, GetDefaultRangeS)                                                                            \
    OP0(41, std::uint8_t, GetDefaultRangeM)                                                                            \
    OP0(42, std::uint8_t, GetDefaultRangeL)                                                                            \
    OP0(43, std::uint8_t, GetEclosionType)                                                                             \
    OP0(44, std::uint32_t, GetCustomEclosionId)                                                                        \
    OP0(45, std::uint8_t, GetEclosionLevel)                                                                            \
    OP0(46, std::uint8_t, GetCustomRange)                                                                              \
    OP0(47, std::uint8_t, GetHeadEclosionType)                                                                         \
    OP1(48, std::uint16_t, GetInkMultiple, std::uint8_t)                                                               \
    OP1(49, std::uint8_t, GetInkCut, std::uint8_t)                                                                     \
    OP0(50, std::uint8_t, GetLampLL)                                                                                   \
    OP0(51, std::uint8_t, GetLampLR)                                                                                   \
    OP0(52, std::uint8_t, GetLampRL)                                                                                   \
    OP0(53, std::uint8_t, GetLampRR)                                                                                   \
    OP0(54, std::int8_t, GetSpeed)                                                                                     \
    OP0(55, std::int8_t, GetDirection)                                                                                 \
    OP0(56, std::int8_t, GetMaterial)                                                                                  \
    OP0(57, std::uint8_t, GetLayoutId)                                                                                 \
    OP0(58, std::uint8_t, GetHeadId)                                                                                   \
    OP0(59, std::uint8_t, GetChannel)                                                                                  \
    OP0(60, std::uint8_t, GetSmallFormatMode)                                                                          \
    OP0(61, std::uint16_t, GetSmallFormatOffset)

POSITION_TEST(IPrintScheme, 61)

#define POSITIONS_OF_IUserScheme(OP0, OP1, OP2, OP3)                                                                   \
    OP0(1, ISchemeParams*, GetParams)                                                                                  \
    OP1(2, void, SetName, const char*)                                                                                 \
    OP1(3, void, SetConfigIndex, std::uint8_t)                                                                         \
    OP1(4, void, SetBaseScheme, std::int16_t)                                                                          \
    OP1(5, void, SetSpeed, std::uint8_t)                                                                               \
    OP1(6, void, SetDirection, std::uint8_t)                                                                           \
    OP1(7, void, SetMaterial, std::uint8_t)                                                                            \
    OP1(8, void, SetDotMode, std::uint8_t)                                                                             \
    OP1(9, void, SetDefaultRangeSS, std::uint8_t)                                                                      \
    OP1(10, void, SetDefaultRangeS, std::uint8_t)                                                                      \
    OP1(11, void, SetDefaultRangeM, std::uint8_t)                                                                      \
    OP1(12, void, SetDefaultRangeL, std::uint8_t)                                                                      \
    OP1(13, void, SetEclosionType, std::uint8_t)                                                                       \
    OP1(14, void, SetCustomEclosionId, std::uint32_t)                                                                  \
    OP1(15, void, SetEclosionLevel, std::uint8_t)                                                                      \
    OP1(16, void, SetCustomRange, std::uint8_t)                                                                        \
    OP1(17, void, SetHeadEclosionType, std::uint8_t)                                                                   \
    OP2(18, void, SetInkMultiple, std::uint16_t, std::uint8_t)                                                         \
    OP2(19, void, SetInkCut, std::uint16_t, std::uint8_t)                                                              \
    OP1(20, void, SetLampLL, std::uint8_t)                                                                             \
    OP1(21, void, SetLampLR, std::uint8_t)                                                                             \
    OP1(22, void, SetLampRL, std::uint8_t)                                                                             \
    OP1(23, void, SetLampRR, std::uint8_t)                                                                             \
    OP1(24, void, SetChannel, std::uint8_t)                                                                            \
    OP0(25, const char*, GetName)                                                                                      \
    OP0(26, std::uint8_t, GetConfigIndex)                                                                              \
    OP0(27, std::uint8_t, GetBaseScheme)                                                                               \
    OP0(28, std::int8_t, GetSpeed)                                                                                     \
    OP0(29, std::int8_t, GetDirection)                                                                                 \
    OP0(30, std::int8_t, GetMaterial)                                                                                  \
    OP0(31, std::uint8_t, GetDotMode)                                                                                  \
    OP0(32, std::uint8_t, GetDefaultRangeSS)                                                                           \
    OP0(33, std::uint8_t, GetDefaultRangeS)                                                                            \
    OP0(34, std::uint8_t, GetDefaultRangeM)                                                                            \
    OP0(35, std::uint8_t, GetDefaultRangeL)                                                                            \
    OP0(36, std::uint8_t, GetEclosionType)                                                                             \
    OP0(37, std::uint32_t, GetCustomEclosionId)                                                                        \
    OP0(38, std::uint8_t, GetEclosionLevel)                                                                            \
    OP0(39, std::uint8_t, GetCustomRange)                                                                              \
    OP0(40, std::uint8_t, GetHeadEclosionType)                                                                         \
    OP1(41, std::uint16_t, GetInkMultiple, std::uint8_t)                                                               \
    OP1(42, std::uint8_t, GetInkCut, std::uint8_t)                                                                     \
    OP0(43, std::uint8_t, GetLampLL)                                                                                   \
    OP0(44, std::uint8_t, GetLampLR)                                                                                   \
    OP0(45, std::uint8_t, GetLampRL)                                                                                   \
    OP0(46, std::uint8_t, GetLampRR)                                                                                   \
    OP0(47, std::uint8_t, GetChannel)

POSITION_TEST(IUserScheme, 47)

#define POSITIONS_OF_ISchemeParams(OP0, OP1, OP2, OP3) OP1(2, void, CopyFrom, ISchemeParams*)

POSITION_TEST(ISchemeParams, 1)

} // namespace
