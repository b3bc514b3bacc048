#pragma once

#include <cstdint>

/// A print material. Read only.
class IMaterial
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2

    /// Id of the material, unique among materials. Schemes return it as 8 bits, signed: use 0 to 127.
    virtual std::uint16_t GetId() = 0; // 3

    virtual void Reserved4() {} // 4

    /// Name of the material: narrow text in the thread's ANSI code page, zero terminated. The host owns it; it stays
    /// valid at least until the next call on this object. Null counts as no name.
    virtual const char* GetName() = 0; // 5

protected:
    ~IMaterial() = default;
};
