#pragma once

#include <cstdint>

/// A rectangular element of an eclosion mode. The setters are called while the operator moves the sliders.
class IEclosionElement
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3

    /// Width, 1 to 8, in the host's unit. One byte is read.
    virtual std::uint8_t GetWidth() = 0; // 4

    /// See GetWidth.
    virtual void SetWidth(std::int32_t width) = 0; // 5

    /// Height, 1 to 8, in the host's unit. One byte is read.
    virtual std::uint8_t GetHeight() = 0; // 6

    /// See GetHeight.
    virtual void SetHeight(std::int32_t height) = 0; // 7

protected:
    ~IEclosionElement() = default;
};
