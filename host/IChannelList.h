#pragma once

#include <cstdint>

class IChannelSetup;

/// The colour channel set-ups in the host's order. Read only.
class IChannelList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of set-ups; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    /// The set-up at an index from 0 to GetCount() - 1, or null for none, which is not offered. Owned by the host.
    virtual IChannelSetup* GetAt(std::uint32_t index) = 0; // 3

protected:
    ~IChannelList() = default;
};
