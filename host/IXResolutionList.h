#pragma once

#include <cstdint>

class IXResolution;

/// The horizontal resolutions that a print mode can have, in the host's order. Print modes store an index in this list.
/// Read only.
class IXResolutionList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of resolutions; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    /// The resolution at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual IXResolution* GetAt(std::uint32_t index) = 0; // 3

protected:
    ~IXResolutionList() = default;
};
