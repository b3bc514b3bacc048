#pragma once

#include <cstdint>

class ILayout;

/// The print-head layouts of the machine, in the order in which they are offered. Read only.
class ILayoutList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of layouts; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    virtual void Reserved3() {} // 3

    /// The layout at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual ILayout* GetAt(std::uint32_t index) = 0; // 4

protected:
    ~ILayoutList() = default;
};
