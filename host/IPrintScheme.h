#pragma once

#include <cstdint>

class ISchemeParams;

/// A factory print scheme: everything that a job needs on the machine, prepared by the manufacturer or the service
/// engineer. It belongs to one configuration and uses one of its print modes. Its eclosion values describe the
/// feathering of swath edges; Quorvane.h explains the term.
///
/// Order of calls: a setter takes effect at once. The editor writes all values of a scheme, page by page, when the
/// operator selects another scheme or saves, so a setter may pass the value that is already stored. If nothing is
/// selected in a list, its 8-bit setter receives 255. The setters stand in field order. Each getter stands 30 positions
/// after its setter.
class IPrintScheme
{
public:
    virtual void Reserved0() {} // 0

    /// The block of all values of the scheme, for copying them at once. Owned by the host, with the scheme. Never null.
    virtual ISchemeParams* GetParams() = 0; // 1

    /// Name of the scheme: narrow text in the thread's ANSI code page, zero terminated. The text is the library's: copy
    /// it before you return. It is null if the operator's text cannot be converted to that code page; then keep the old
    /// name or clear it. Names may be empty and may repeat.
    virtual void SetName(const char* name) = 0; // 2

    /// Index of the scheme's configuration in IHostData::GetConfigList.
    virtual void SetConfigIndex(std::uint8_t index) = 0; // 3

    /// Index of the print mode within that configuration.
    virtual void SetModeIndex(std::uint8_t index) = 0; // 4

    /// 1 if printing waits for the step motion to stop, else 0.
    virtual void SetWaitStepStop(std::uint8_t wait) = 0; // 5

    /// Waveform of the heads: from 0 to one less than the count in table 1015. -1 leaves the choice open.
    virtual void SetWave(std::int32_t wave) = 0; // 6

    /// 1 if operators may use the scheme and make user schemes from it, else 0.
    virtual void SetEnabled(std::uint8_t enabled) = 0; // 7

    /// Dot mode, 0 to 3: which drop sizes are used. The meaning of the codes is the host's.
    virtual void SetDotMode(std::uint8_t dotMode) = 0; // 8

    /// Default eclosion range of the level super (column SS), 0 to 200, in the host's unit.
    virtual void SetDefaultRangeSS(std::uint8_t range) = 0; // 9

    /// The same for the level depth (column S), 0 to 200.
    virtual void SetDefaultRangeS(std::uint8_t range) = 0; // 10

    /// The same for the level normal (column M), 0 to 200.
    virtual void SetDefaultRangeM(std::uint8_t range) = 0; // 11

    /// The same for the level light (column L), 0 to 200.
    virtual void SetDefaultRangeL(std::uint8_t range) = 0; // 12

    /// Eclosion type: an entry of parameter table 2055. 19 is the custom type. 255 if none is selected.
    virtual void SetEclosionType(std::uint8_t type) = 0; // 13

    /// The custom eclosion definition that the scheme uses: an index in IHostData::GetCustomEclosionSet.
    virtual void SetCustomEclosionId(std::uint32_t id) = 0; // 14

    /// Eclosion level: 0 close, 1 light, 2 normal, 3 depth, 4 custom, 5 super. 255 if none is selected, as when 4 is
    /// stored and table 2057 does not offer it.
    virtual void SetEclosionLevel(std::uint8_t level) = 0; // 15

    /// Eclosion range of the level custom, 0 to 200.
    virtual void SetCustomRange(std::uint8_t range) = 0; // 16

    /// Eclosion type between heads, 0 to 2.
    virtual void SetHeadEclosionType(std::uint8_t type) = 0; // 17

    /// Ink multiple of a colour in tenths: 10 is once, 80 is eight times. The editors write whole multiples, 10 to 80.
    /// colorIndex: 0 to 15, from IInkChannelTable::GetColorIndex.
    virtual void SetInkMultiple(std::uint16_t tenths, std::uint8_t colorIndex) = 0; // 18

    /// Ink cut of a colour in per cent, 0 to 100. Passed as 16 bits, returned as 8. colorIndex: 0 to 31, from
    /// IInkGroupTable::GetColorIndex.
    virtual void SetInkCut(std::uint16_t percent, std::uint8_t colorIndex) = 0; // 19

    /// UV lamp flag: 1 if the left lamp is lit while the carriage prints to the left, else 0.
    virtual void SetLampLL(std::uint8_t on) = 0; // 20

    /// The right lamp while the carriage prints to the left.
    virtual void SetLampLR(std::uint8_t on) = 0; // 21

    /// The left lamp while the carriage prints to the right.
    virtual void SetLampRL(std::uint8_t on) = 0; // 22

    /// The right lamp while the carriage prints to the right.
    virtual void SetLampRR(std::uint8_t on) = 0; // 23

    /// Carriage speed: 0 low, 1 medium, 2 high. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetSpeed(std::uint8_t speed) = 0; // 24

    /// Print direction: 1 left, 2 right, 3 both. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetDirection(std::uint8_t direction) = 0; // 25

    /// Low 8 bits of the id of the material. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetMaterial(std::uint8_t materialId) = 0; // 26

    /// Id of the print-head layout (ILayout::GetId). The getter returns 8 bits.
    virtual void SetLayoutId(std::uint32_t layoutId) = 0; // 27

    /// Low 8 bits of the id of the head (IHeadLayout::GetId) within the layout.
    virtual void SetHeadId(std::uint8_t headId) = 0; // 28

    /// Colour channel set-up: the selected row among the set-ups of IHostData::GetChannelList that fit the machine's
    /// active set-up. 255 if none is selected.
    virtual void SetChannel(std::uint8_t channel) = 0; // 29

    /// 1 if small-format printing is on, else 0.
    virtual void SetSmallFormatMode(std::uint8_t on) = 0; // 30

    /// Offset of small-format printing in the host's unit: the low 16 bits of the number that the operator typed.
    virtual void SetSmallFormatOffset(std::uint16_t offset) = 0; // 31

    /// See SetName. The host owns the text; it stays valid at least until the next call on this object.
    virtual const char* GetName() = 0; // 32

    /// See SetConfigIndex.
    virtual std::uint8_t GetConfigIndex() = 0; // 33

    /// See SetModeIndex.
    virtual std::uint8_t GetModeIndex() = 0; // 34

    /// See SetWaitStepStop.
    virtual std::uint8_t GetWaitStepStop() = 0; // 35

    /// See SetWave. -1 leaves the choice open.
    virtual std::int8_t GetWave() = 0; // 36

    /// See SetEnabled.
    virtual std::uint8_t GetEnabled() = 0; // 37

    /// See SetDotMode.
    virtual std::uint8_t GetDotMode() = 0; // 38

    /// See SetDefaultRangeSS.
    virtual std::uint8_t GetDefaultRangeSS() = 0; // 39

    /// See SetDefaultRangeS.
    virtual std::uint8_t GetDefaultRangeS() = 0; // 40

    /// See SetDefaultRangeM.
    virtual std::uint8_t GetDefaultRangeM() = 0; // 41

    /// See SetDefaultRangeL.
    virtual std::uint8_t GetDefaultRangeL() = 0; // 42

    /// See SetEclosionType. A type that table 2055 does not offer is shown as no selection.
    virtual std::uint8_t GetEclosionType() = 0; // 43

    /// See SetCustomEclosionId. Read when a factory scheme is copied into a user scheme.
    virtual std::uint32_t GetCustomEclosionId() = 0; // 44

    /// See SetEclosionLevel.
    virtual std::uint8_t GetEclosionLevel() = 0; // 45

    /// See SetCustomRange.
    virtual std::uint8_t GetCustomRange() = 0; // 46

    /// See SetHeadEclosionType.
    virtual std::uint8_t GetHeadEclosionType() = 0; // 47

    /// See SetInkMultiple. Shown as whole multiples, rounded down.
    virtual std::uint16_t GetInkMultiple(std::uint8_t colorIndex) = 0; // 48

    /// See SetInkCut.
    virtual std::uint8_t GetInkCut(std::uint8_t colorIndex) = 0; // 49

    /// See SetLampLL. 1 is on, 0 off.
    virtual std::uint8_t GetLampLL() = 0; // 50

    /// See SetLampLR. 1 is on, 0 off.
    virtual std::uint8_t GetLampLR() = 0; // 51

    /// See SetLampRL. 1 is on, 0 off.
    virtual std::uint8_t GetLampRL() = 0; // 52

    /// See SetLampRR. 1 is on, 0 off.
    virtual std::uint8_t GetLampRR() = 0; // 53

    /// See SetSpeed. Negative leaves the choice open.
    virtual std::int8_t GetSpeed() = 0; // 54

    /// See SetDirection. Negative leaves the choice open.
    virtual std::int8_t GetDirection() = 0; // 55

    /// See SetMaterial. Negative leaves the choice open.
    virtual std::int8_t GetMaterial() = 0; // 56

    /// See SetLayoutId.
    virtual std::uint8_t GetLayoutId() = 0; // 57

    /// See SetHeadId.
    virtual std::uint8_t GetHeadId() = 0; // 58

    /// See SetChannel.
    virtual std::uint8_t GetChannel() = 0; // 59

    /// See SetSmallFormatMode.
    virtual std::uint8_t GetSmallFormatMode() = 0; // 60

    /// See SetSmallFormatOffset.
    virtual std::uint16_t GetSmallFormatOffset() = 0; // 61

protected:
    ~IPrintScheme() = default;
};
