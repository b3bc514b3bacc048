#pragma once

#include <cstdint>

class IInkGroup;

/// The ink groups of the machine. Read only. Print modes refer to a group by its position, schemes by the colour index
/// of its id, and the active set-up by its id.
class IInkGroupTable
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3

    /// Number of groups; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 4

    virtual void Reserved5() {} // 5

    /// The group at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual IInkGroup* GetAt(std::uint32_t index) = 0; // 6

    virtual void Reserved7() {} // 7

    /// The group with an id, or null for none. Owned by the host.
    virtual IInkGroup* GetGroup(std::uint16_t groupId) = 0; // 8

    /// Colour index, 0 to 31, under which schemes keep the ink cut of the group with an id.
    virtual std::uint8_t GetColorIndex(std::uint16_t groupId) = 0; // 9

protected:
    ~IInkGroupTable() = default;
};
