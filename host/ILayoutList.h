#pragma once

#include <cstdint>

class ILayout;

/// The print-head layouts of the machine in the host's order. Read only; the order is the one in which they are
/// offered.
class ILayoutList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of layouts; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    virtual void Reserved3() {} // 3

    /// The layout at an index from 0 to GetCount() - 1. Owned by the host. Null where there is none.
    virtual ILayout* GetAt(std::uint32_t index) = 0; // 4

protected:
    ~ILayoutList() = default;
};
