#pragma once

#include <cstdint>

/// The set-up that the machine uses now. It decides which channel set-ups are offered and which ink groups have an ink
/// cut. Read only.
class IActiveSetup
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3

    /// Id of the set-up. The library passes it to IChannelSetup::FindSetup.
    virtual std::uint32_t GetId() = 0; // 4

    virtual void Reserved5() {}  // 5
    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12
    virtual void Reserved13() {} // 13
    virtual void Reserved14() {} // 14
    virtual void Reserved15() {} // 15
    virtual void Reserved16() {} // 16
    virtual void Reserved17() {} // 17
    virtual void Reserved18() {} // 18
    virtual void Reserved19() {} // 19

    /// Number of ink groups in use; 0 for none.
    virtual std::uint32_t GetGroupCount() = 0; // 20

    virtual void Reserved21() {} // 21

    /// Id (IInkGroup::GetId) of the ink group at an index from 0 to GetGroupCount() - 1.
    virtual std::uint16_t GetGroupId(std::uint32_t index) = 0; // 22

protected:
    ~IActiveSetup() = default;
};
