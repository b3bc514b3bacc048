#pragma once

#include <cstdint>

/// A print mode of a configuration: number of passes, horizontal resolution, feathering compensation per ink group, and
/// data processing per head.
///
/// A group is a position from 0 to GetCount() - 1 in IHostData::GetInkGroups. A row is a position in
/// IHostData::GetHeadLayoutList, counting heads without a data processing mode as well.
///
/// Order of calls: passes, resolution index, name, disabled and resident are written together when the operator selects
/// another mode or saves. Compensation and data processing modes are written as soon as they are changed.
class IPrintMode
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Name of the mode: narrow text in the thread's ANSI code page, zero terminated. The text is the library's: copy
    /// it before you return. It is null if the operator's text cannot be converted to that code page; then keep the old
    /// name or clear it. Names may be empty and may repeat.
    virtual void SetName(const char* name) = 0; // 2

    /// Number of passes per swath: 1, 2, 3, 4, 6, 8, 12 or 16.
    virtual void SetPassCount(std::int32_t count) = 0; // 3

    virtual void Reserved4() {} // 4

    /// 1 if the mode is switched off, 0 if it may be used.
    virtual void SetDisabled(std::int32_t disabled) = 0; // 5

    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12

    /// Index in IHostData::GetXResolutionList; -1 if that list offers nothing.
    virtual void SetXResolutionIndex(std::int32_t index) = 0; // 13

    /// Data processing mode of a head: an index for IHeadLayout::GetDataMode, 255 for none. row: position of the head.
    /// If 0 is stored, which is not offered, the editor replaces it with 255 when it shows the mode.
    virtual void SetHeadDataMode(std::uint8_t dataMode, std::uint32_t row) = 0; // 14

    /// Feathering compensation of small dots: a factor as the operator typed it, in no fixed range. group: position of
    /// the ink group.
    virtual void SetSmallDotCompensation(float value, std::uint32_t group) = 0; // 15

    /// The same for medium dots.
    virtual void SetMediumDotCompensation(float value, std::uint32_t group) = 0; // 16

    /// The same for large dots.
    virtual void SetLargeDotCompensation(float value, std::uint32_t group) = 0; // 17

    /// Feathering compensation at the front edge of the swath: 1 on, 0 off. group: position of the ink group.
    virtual void SetFrontCompensation(std::int32_t enabled, std::uint32_t group) = 0; // 18

    /// Feathering compensation at the back edge of the swath: 1 on, 0 off. group: position of the ink group.
    virtual void SetBackCompensation(std::int32_t enabled, std::uint32_t group) = 0; // 19

    /// 1 if the mode stays loaded in the machine, else 0. If the stored value is neither and the operator makes no
    /// choice, 255.
    virtual void SetResident(std::uint8_t resident) = 0; // 20

    /// See SetName. The host owns the text; it stays valid at least until the next call on this object.
    virtual const char* GetName() = 0; // 21

    /// Number of passes. For a value that SetPassCount does not take, the editor shows the first of those values that
    /// begins with its digits, else 1.
    virtual std::uint16_t GetPassCount() = 0; // 22

    virtual void Reserved23() {} // 23

    /// Non-zero if the mode is switched off. One byte is read.
    virtual std::uint8_t GetDisabled() = 0; // 24

    virtual void Reserved25() {} // 25
    virtual void Reserved26() {} // 26
    virtual void Reserved27() {} // 27
    virtual void Reserved28() {} // 28
    virtual void Reserved29() {} // 29
    virtual void Reserved30() {} // 30
    virtual void Reserved31() {} // 31

    /// See SetXResolutionIndex. For an index outside the list, the editor shows the first entry.
    virtual std::int32_t GetXResolutionIndex() = 0; // 32

    /// See SetHeadDataMode. An index that the head does not offer is shown as none and left as it is.
    virtual std::uint8_t GetHeadDataMode(std::uint32_t row) = 0; // 33

    /// Feathering compensation of small dots for an ink group.
    virtual float GetSmallDotCompensation(std::uint32_t group) = 0; // 34

    /// Feathering compensation of medium dots for an ink group.
    virtual float GetMediumDotCompensation(std::uint32_t group) = 0; // 35

    /// Feathering compensation of large dots for an ink group.
    virtual float GetLargeDotCompensation(std::uint32_t group) = 0; // 36

    /// Non-zero if the front edge is compensated for an ink group. One byte is read.
    virtual std::uint8_t GetFrontCompensation(std::uint32_t group) = 0; // 37

    /// Non-zero if the back edge is compensated for an ink group. One byte is read.
    virtual std::uint8_t GetBackCompensation(std::uint32_t group) = 0; // 38

    /// 0 off, 1 on. For any other value, the editor shows neither.
    virtual std::uint8_t GetResident() = 0; // 39

protected:
    ~IPrintMode() = default;
};
