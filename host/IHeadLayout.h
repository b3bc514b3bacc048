#pragma once

#include <cstdint>

class IDataMode;

/// A print head in a layout, with its data processing modes. Read only.
class IHeadLayout
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2

    /// Name of the head: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays valid
    /// at least until the next call on this object. Null counts as no name.
    virtual const char* GetName() = 0; // 3

    /// Id of the head, unique in the list. Schemes store 8 bits of it: use 0 to 255.
    virtual std::uint16_t GetId() = 0; // 4

    virtual void Reserved5() {} // 5

    /// Id of the layout (ILayout::GetId) that the head belongs to.
    virtual std::uint32_t GetLayoutId() = 0; // 6

    virtual void Reserved7() {} // 7
    virtual void Reserved8() {} // 8
    virtual void Reserved9() {} // 9

    /// Number of data processing modes. The data page leaves out a head that has none.
    virtual std::uint32_t GetDataModeCount() = 0; // 10

    virtual void Reserved11() {} // 11

    /// The data processing mode at an index from 0 to GetDataModeCount() - 1. Index 0 stands for "none". Index 0 and
    /// null are not offered. Owned by the host.
    virtual IDataMode* GetDataMode(std::uint32_t index) = 0; // 12

protected:
    ~IHeadLayout() = default;
};
