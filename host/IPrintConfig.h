#pragma once

#include <cstdint>

class IPrintMode;

/// A print configuration: a resolution with its number of colours and dot bits, and the print modes that can be used
/// with it.
///
/// Order of calls: for a new configuration (IHostData::CreateConfig) SetXResolution, SetYResolution, SetColorCount,
/// SetDotBits, SetEnabled, SetName. In an existing one the editors change the name and the print modes only.
class IPrintConfig
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Name of the configuration, at most 60 characters: narrow text in the thread's ANSI code page, zero terminated.
    /// The text is the library's: copy it before you return. It is null if the operator's text cannot be converted to
    /// that code page; then keep the old name or clear it. Names may be empty and may repeat.
    virtual void SetName(const char* name) = 0; // 2

    /// Horizontal resolution in dots per inch. The number is passed as the operator typed it, so it may be zero,
    /// negative or large. The getter returns 16 bits.
    virtual void SetXResolution(std::int32_t dpi) = 0; // 3

    /// Vertical resolution in dots per inch, as typed; see SetXResolution.
    virtual void SetYResolution(std::int32_t dpi) = 0; // 4

    /// Number of colours, as typed; 0 means unspecified. The getter returns 8 bits.
    virtual void SetColorCount(std::int32_t count) = 0; // 5

    /// Bits per dot (grey levels of a drop), as typed; 0 means unspecified. The getter returns 8 bits.
    virtual void SetDotBits(std::int32_t bits) = 0; // 6

    /// 1 if the configuration may be used for printing, else 0.
    virtual void SetEnabled(std::int32_t enabled) = 0; // 7

    /// See SetName. The host owns the text; it stays valid at least until the next call on this object.
    virtual const char* GetName() = 0; // 8

    /// Horizontal resolution in dots per inch.
    virtual std::uint16_t GetXResolution() = 0; // 9

    /// Vertical resolution in dots per inch.
    virtual std::uint16_t GetYResolution() = 0; // 10

    /// Number of colours.
    virtual std::uint8_t GetColorCount() = 0; // 11

    /// Bits per dot.
    virtual std::uint8_t GetDotBits() = 0; // 12

    /// Non-zero if the configuration may be used. All 32 bits are read.
    virtual std::int32_t GetEnabled() = 0; // 13

    /// Number of print modes; 0 for none.
    virtual std::uint32_t GetModeCount() = 0; // 14

    /// The print mode at an index from 0 to GetModeCount() - 1, or null, which is not listed. The print-mode editor
    /// keeps the pointer while it runs. So the object must stay at its address, even when other modes come and go,
    /// until RemoveMode of it, RemoveAt of its configuration, or the end of the editor operation.
    virtual IPrintMode* GetMode(std::uint32_t index) = 0; // 15

    /// Appends a mode with the host's defaults and returns it; the library then names it. Null refuses: nothing
    /// happens. It lives as long as a mode of GetMode.
    virtual IPrintMode* AddMode() = 0; // 16

    /// Removes the mode at an index below GetModeCount(). Later ones move down by one.
    virtual void RemoveMode(std::uint32_t index) = 0; // 17

protected:
    ~IPrintConfig() = default;
};
