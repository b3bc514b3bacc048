#pragma once

#include <cstdint>

/// A colour channel set-up: which inks print which colours. Read only.
class IChannelSetup
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4

    /// Name of the set-up: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays
    /// valid at least until the next call on this object. Null counts as no name. The editors show the text that the
    /// language file has under this name as a key, or else the name.
    virtual const char* GetName() = 0; // 5

    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12
    virtual void Reserved13() {} // 13

    /// Tells whether this set-up fits the machine set-up with an id (IActiveSetup::GetId). Return a negative value to
    /// hide the set-up, any other to offer it.
    virtual std::int32_t FindSetup(std::uint32_t id) = 0; // 14

protected:
    ~IChannelSetup() = default;
};
