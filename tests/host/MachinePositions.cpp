#include "PositionTest.h"

#include "host/Quorvane.h"

namespace
{

#define POSITIONS_OF_ILayoutList(OP0, OP1, OP2, OP3)                                                                   \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(4, ILayout*, GetAt, std::uint32_t)

POSITION_TEST(ILayoutList, 2)

#define POSITIONS_OF_ILayout(OP0, OP1, OP2, OP3)                                                                       \
    OP0(3, const char*, GetName)                                                                                       \
    OP0(4, std::uint32_t, GetId)

POSITION_TEST(ILayout, 2)

#define POSITIONS_OF_IHeadLayoutList(OP0, OP1, OP2, OP3)                                                               \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(4, IHeadLayout*, GetAt, std::uint32_t)                                                                         \
    OP1(6, IHeadLayout*, FindById, std::uint16_t)                                                                      \
    OP1(7, std::int32_t, IndexOfId, std::uint16_t)

POSITION_TEST(IHeadLayoutList, 4)

#define POSITIONS_OF_IHeadLayout(OP0, OP1, OP2, OP3)                                                                   \
    OP0(3, const char*, GetName)                                                                                       \
    OP0(4, std::uint16_t, GetId)                                                                                       \
    OP0(6, std::uint32_t, GetLayoutId)                                                                                 \
    OP0(10, std::uint32_t, GetDataModeCount)                                                                           \
    OP1(12, IDataMode*, GetDataMode, std::uint32_t)

POSITION_TEST(IHeadLayout, 5)

#define POSITIONS_OF_IDataMode(OP0, OP1, OP2, OP3) OP0(5, const char*, GetName)

POSITION_TEST(IDataMode, 1)

#define POSITIONS_OF_IXResolutionList(OP0, OP1, OP2, OP3)                                                              \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(3, IXResolution*, GetAt, std::uint32_t)

POSITION_TEST(IXResolutionList, 2)

#define POSITIONS_OF_IXResolution(OP0, OP1, OP2, OP3) OP0(5, const char*, GetName)

POSITION_TEST(IXResolution, 1)

#define POSITIONS_OF_IInkGroupTable(OP0, OP1, OP2, OP3)                                                                \
    OP0(4, std::uint32_t, GetCount)                                                                                    \
    OP1(6, IInkGroup*, GetAt, std::uint32_t)                                                                           \
    OP1(8, IInkGroup*, GetGroup, std::uint16_t)                                                                        \
    OP1(9, std::uint8_t, GetColorIndex, std::uint16_t)

POSITION_TEST(IInkGroupTable, 4)

#define POSITIONS_OF_IInkGroup(OP0, OP1, OP2, OP3)                                                                     \
    OP0(2, std::uint16_t, GetId)                                                                                       \
    OP0(5, const char*, GetName)                                                                                       \
    OP0(12, std::uint32_t, GetChannelCount)                                                                            \
    OP1(14, IInkChannel*, GetChannel, std::uint32_t)

POSITION_TEST(IInkGroup, 4)

#define POSITIONS_OF_IInkChannelTable(OP0, OP1, OP2, OP3)                                                              \
    OP1(6, std::uint8_t, GetColorIndex, std::uint16_t)                                                                 \
    OP2(8, void, GetChannelsOfLayout, std::uint8_t, std::vector<IInkChannel*>*)

POSITION_TEST(IInkChannelTable, 2)

#define POSITIONS_OF_IInkChannel(OP0, OP1, OP2, OP3)                                                                   \
    OP0(2, std::uint16_t, GetId)                                                                                       \
    OP0(4, const char*, GetName)

POSITION_TEST(IInkChannel, 2)

#define POSITIONS_OF_IChannelList(OP0, OP1, OP2, OP3)                                                                  \
    OP0(2, std::uint32_t, GetCount)                                                                                    \
    OP1(3, IChannelSetup*, GetAt, std::uint32_t)

POSITION_TEST(IChannelList, 2)

#define POSITIONS_OF_IChannelSetup(OP0, OP1, OP2, OP3)                                                                 \
    OP0(5, const char*, GetName)                                                                                       \
    OP1(14, std::int32_t, FindSetup, std::uint32_t)

POSITION_TEST(IChannelSetup, 2)

#define POSITIONS_OF_IMaterialList(OP0, OP1, OP2, OP3)                                                                 \
    OP0(25, std::uint32_t, GetCount)                                                                                   \
    OP1(26, IMaterial*, GetAt, std::uint32_t)

POSITION_TEST(IMaterialList, 2)

#define POSITIONS_OF_IMaterial(OP0, OP1, OP2, OP3)                                                                     \
    OP0(3, std::uint16_t, GetId)                                                                                       \
    OP0(5, const char*, GetName)

POSITION_TEST(IMaterial, 2)

#define POSITIONS_OF_IDeviceState(OP0, OP1, OP2, OP3) OP0(16, IActiveSetup*, GetActiveSetup)

POSITION_TEST(IDeviceState, 1)

#define POSITIONS_OF_IActiveSetup(OP0, OP1, OP2, OP3)                                                                  \
    OP0(4, std::uint32_t, GetId)                                                                                       \
    OP0(20, std::uint32_t, GetGroupCount)                                                                              \
    OP1(22, std::uint16_t, GetGroupId, std::uint32_t)

POSITION_TEST(IActiveSetup, 3)

#define POSITIONS_OF_IParamTable(OP0, OP1, OP2, OP3)                                                                   \
    OP0(17, std::int32_t, GetCount)                                                                                    \
    OP2(21, void, GetEntry, void*, std::uint32_t)

POSITION_TEST(IParamTable, 2)

} // namespace
