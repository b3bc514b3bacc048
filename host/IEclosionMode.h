#pragma once

#include <cstdint>

class IEclosionElement;

/// A mode of a custom eclosion definition: up to two rectangular elements.
class IEclosionMode
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3

    /// Number of elements; the dialog keeps it at 2 or fewer.
    virtual std::uint32_t GetElementCount() = 0; // 4

    /// Appends an element of the host's initial size and returns it; null refuses. Owned by the host.
    virtual IEclosionElement* AddElement() = 0; // 5

    /// The element at an index, or null for none. Owned by the host, valid until DeleteElement of it.
    virtual IEclosionElement* GetElement(std::uint32_t index) = 0; // 6

    /// Removes the element at an index below GetElementCount(). Later ones move down by one.
    virtual void DeleteElement(std::uint32_t index) = 0; // 7

protected:
    ~IEclosionMode() = default;
};
