#pragma once

#include <cstdint>

/// An ink channel: one supply of ink to the heads. Read only.
class IInkChannel
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Id of the channel, unique among channels. Row k of the ink cut page stands for the group that holds the channel
    /// with id k.
    virtual std::uint16_t GetId() = 0; // 2

    virtual void Reserved3() {} // 3

    /// Name of the channel: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays
    /// valid at least until the next call on this object. Null counts as no name. The editors show the text that the
    /// language file has under this name as a key, or else the name.
    virtual const char* GetName() = 0; // 4

protected:
    ~IInkChannel() = default;
};
