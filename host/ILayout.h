#pragma once

#include <cstdint>

/// A print-head layout: an arrangement of heads on the carriage. Read only.
class ILayout
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2

    /// Name of the layout: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays
    /// valid at least until the next call on this object. Null counts as no name.
    virtual const char* GetName() = 0; // 3

    /// Id of the layout, unique among layouts. Schemes store 8 bits of it: use 0 to 255.
    virtual std::uint32_t GetId() = 0; // 4

protected:
    ~ILayout() = default;
};
