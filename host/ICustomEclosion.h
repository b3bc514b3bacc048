#pragma once

#include <cstdint>

class IEclosionMode;

/// A custom eclosion (feathering) definition: a range and up to three modes.
class ICustomEclosion
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3

    /// Index of the mode that the dialog shows when it opens.
    virtual std::int32_t GetCurrentMode() = 0; // 4

    /// Stores the index of the mode that is shown, from 0 to GetModeCount() - 1.
    virtual void SetCurrentMode(std::int32_t index) = 0; // 5

    /// Non-zero marks a protected definition. One byte is read.
    virtual std::uint8_t IsLocked() = 0; // 6

    /// 1 protects the definition, 0 removes the protection.
    virtual void SetLocked(std::int32_t locked) = 0; // 7

    /// Eclosion range, 0 to 200, in the host's unit.
    virtual std::int32_t GetRange() = 0; // 8

    /// See GetRange. Called while the operator moves the slider.
    virtual void SetRange(std::int32_t range) = 0; // 9

    /// Number of modes; the dialog keeps it at 3 or fewer.
    virtual std::uint32_t GetModeCount() = 0; // 10

    /// Appends a mode without elements and returns it; null refuses. Owned by the host.
    virtual IEclosionMode* AddMode() = 0; // 11

    /// The mode at an index, or null for none. Owned by the host, valid until DeleteMode of it.
    virtual IEclosionMode* GetMode(std::uint32_t index) = 0; // 12

    /// Removes the mode at an index below GetModeCount(). Later ones move down by one.
    virtual void DeleteMode(std::uint32_t index) = 0; // 13

protected:
    ~ICustomEclosion() = default;
};
