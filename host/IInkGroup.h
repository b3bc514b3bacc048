#pragma once

#include <cstdint>

class IInkChannel;

/// An ink group: the ink channels that carry one colour. Read only.
class IInkGroup
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Id of the group, unique among groups.
    virtual std::uint16_t GetId() = 0; // 2

    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4

    /// Name of the group: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays valid
    /// at least until the next call on this object. Null counts as no name. As the label of an ink cut, it is looked
    /// up: the editors show the text that the language file has under this name as a key, or else the name.
    virtual const char* GetName() = 0; // 5

    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11

    /// Number of ink channels in the group; 0 for none.
    virtual std::uint32_t GetChannelCount() = 0; // 12

    virtual void Reserved13() {} // 13

    /// The ink channel at an index from 0 to GetChannelCount() - 1, or null, which is skipped. Owned by the host.
    virtual IInkChannel* GetChannel(std::uint32_t index) = 0; // 14

protected:
    ~IInkGroup() = default;
};
