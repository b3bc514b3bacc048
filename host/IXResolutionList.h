#pragma once

#include <cstdint>

class IXResolution;

/// The horizontal resolutions that a print mode can choose from, in the host's order. Read only; print modes store the
/// index.
class IXResolutionList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of resolutions; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    /// The resolution at an index from 0 to GetCount() - 1. Owned by the host. Null where there is none.
    virtual IXResolution* GetAt(std::uint32_t index) = 0; // 3

protected:
    ~IXResolutionList() = default;
};
