#pragma once

#include <cstdint>

class IHeadLayout;

/// The heads of all layouts in the host's order. Read only. A print mode stores the data processing mode of a head
/// under the head's position in this list (IPrintMode::SetHeadDataMode), so positions must not change while print modes
/// refer to them.
class IHeadLayoutList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of heads; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    virtual void Reserved3() {} // 3

    /// The head at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual IHeadLayout* GetAt(std::uint32_t index) = 0; // 4

    virtual void Reserved5() {} // 5

    /// The head with an id, or null for none. Owned by the host.
    virtual IHeadLayout* FindById(std::uint16_t id) = 0; // 6

    /// Position of the head with an id, or a negative value for none.
    virtual std::int32_t IndexOfId(std::uint16_t id) = 0; // 7

protected:
    ~IHeadLayoutList() = default;
};
