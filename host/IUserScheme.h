#pragma once

#include <cstdint>

class ISchemeParams;

/// A user print scheme: an operator's own variant of a factory scheme. It has values of its own for what operators may
/// vary; layout, head, waveform, waiting and small-format printing come from the factory scheme that it was made from.
///
/// The table differs from IPrintScheme's even where operations agree in name: never hand one for the other.
///
/// Order of calls: a new scheme (IUserSchemeList::AddScheme) takes its values either whole, through CopyFrom of another
/// user scheme's GetParams, or setter by setter from a factory scheme: SetConfigIndex, SetBaseScheme and so on in the
/// order of this table; the name comes last. After that as in IPrintScheme. Getters stand 23 positions after their
/// setter.
class IUserScheme
{
public:
    virtual void Reserved0() {} // 0

    /// The scheme's whole parameter block, for copying all values of a scheme at once. Owned by the host with the
    /// scheme. Never null.
    virtual ISchemeParams* GetParams() = 0; // 1

    /// Name of the scheme: narrow text in the thread's ANSI code page, zero terminated, the library's own. Copy it
    /// before returning. It is null when the operator's text has no form in that code page: then keep the old name or
    /// clear it. Names may be empty and may repeat.
    virtual void SetName(const char* name) = 0; // 2

    /// Index of the configuration (IHostData::GetConfigList) that the scheme belongs to.
    virtual void SetConfigIndex(std::uint8_t index) = 0; // 3

    /// Index in IHostData::GetFactorySchemeList of the factory scheme that this one was made from. The getter gives 8
    /// bits.
    virtual void SetBaseScheme(std::int16_t index) = 0; // 4

    /// Carriage speed: 0 low, 1 medium, 2 high; 255 (-1 as the getter reads it) leaves the choice open.
    virtual void SetSpeed(std::uint8_t speed) = 0; // 5

    /// Print direction: 1 left, 2 right, 3 both; 255 (-1 as the getter reads it) leaves the choice open.
    virtual void SetDirection(std::uint8_t direction) = 0; // 6

    /// Low 8 bits of the id of the material; 255 (-1 as the getter reads it) leaves the choice open.
    virtual void SetMaterial(std::uint8_t materialId) = 0; // 7

    /// Dot mode 0 to 3, a code of the host's: which drop sizes are used.
    virtual void SetDotMode(std::uint8_t dotMode) = 0; // 8

    /// Feathering range used by default for the strongest level (column SS), 0 to 200, in the host's unit.
    virtual void SetDefaultRangeSS(std::uint8_t range) = 0; // 9

    /// The same for the strong level (column S), 0 to 200.
    virtual void SetDefaultRangeS(std::uint8_t range) = 0; // 10

    /// The same for the medium level (column M), 0 to 200.
    virtual void SetDefaultRangeM(std::uint8_t range) = 0; // 11

    /// The same for the light level (column L), 0 to 200.
    virtual void SetDefaultRangeL(std::uint8_t range) = 0; // 12

    /// Feathering pattern: an entry of parameter table 2055; 19 is the custom pattern; 255 when none is selected.
    virtual void SetEclosionType(std::uint8_t type) = 0; // 13

    /// Which custom feathering definition the scheme uses: an index of IHostData::GetCustomEclosionSet.
    virtual void SetCustomEclosionId(std::uint32_t id) = 0; // 14

    /// Feathering level: 0 close, 1 light, 2 normal, 3 depth, 4 custom, 5 super; 255 when a stored 4 could not be shown
    /// because table 2057 does not offer it.
    virtual void SetEclosionLevel(std::uint8_t level) = 0; // 15

    /// Feathering range of the custom level, 0 to 200.
    virtual void SetCustomRange(std::uint8_t range) = 0; // 16

    /// Feathering type between heads, 0 to 2.
    virtual void SetHeadEclosionType(std::uint8_t type) = 0; // 17

    /// Ink multiple of a colour in tenths: 10 is once, 80 eight times. The editors write whole multiples, 10 to 80.
    /// colorIndex: 0 to 15, from IInkChannelTable::GetColorIndex.
    virtual void SetInkMultiple(std::uint16_t tenths, std::uint8_t colorIndex) = 0; // 18

    /// Ink cut of a colour in per cent, 0 to 100. It is passed as 16 bits and stored as 8.
    /// colorIndex: 0 to 31, from IInkGroupTable::GetColorIndex.
    virtual void SetInkCut(std::uint16_t percent, std::uint8_t colorIndex) = 0; // 19

    /// UV lamp flag: 1 when the left lamp burns while the carriage prints to the left, else 0.
    virtual void SetLampLL(std::uint8_t on) = 0; // 20

    /// The same for printing to the left, right lamp.
    virtual void SetLampLR(std::uint8_t on) = 0; // 21

    /// The same for printing to the right, left lamp.
    virtual void SetLampRL(std::uint8_t on) = 0; // 22

    /// The same for printing to the right, right lamp.
    virtual void SetLampRR(std::uint8_t on) = 0; // 23

    /// Colour channel set-up: the chosen row among the set-ups of IHostData::GetChannelList that fit the machine's
    /// active set-up. 255 when none is selected.
    virtual void SetChannel(std::uint8_t channel) = 0; // 24

    /// See SetName. The host owns the text; it stays valid at least until the next call on this object.
    virtual const char* GetName() = 0; // 25

    /// See SetConfigIndex.
    virtual std::uint8_t GetConfigIndex() = 0; // 26

    /// See SetBaseScheme. An index outside of the factory list leaves the scheme without a base.
    virtual std::uint8_t GetBaseScheme() = 0; // 27

    /// See SetSpeed. Negative leaves the choice open.
    virtual std::int8_t GetSpeed() = 0; // 28

    /// See SetDirection. Negative leaves the choice open.
    virtual std::int8_t GetDirection() = 0; // 29

    /// See SetMaterial. Negative leaves the choice open.
    virtual std::int8_t GetMaterial() = 0; // 30

    /// See SetDotMode.
    virtual std::uint8_t GetDotMode() = 0; // 31

    /// See SetDefaultRangeSS.
    virtual std::uint8_t GetDefaultRangeSS() = 0; // 32

    /// See SetDefaultRangeS.
    virtual std::uint8_t GetDefaultRangeS() = 0; // 33

    /// See SetDefaultRangeM.
    virtual std::uint8_t GetDefaultRangeM() = 0; // 34

    /// See SetDefaultRangeL.
    virtual std::uint8_t GetDefaultRangeL() = 0; // 35

    /// See SetEclosionType. A type that table 2055 does not offer shows no selection.
    virtual std::uint8_t GetEclosionType() = 0; // 36

    /// See SetCustomEclosionId. Read when a factory scheme is copied into a user scheme.
    virtual std::uint32_t GetCustomEclosionId() = 0; // 37

    /// See SetEclosionLevel.
    virtual std::uint8_t GetEclosionLevel() = 0; // 38

    /// See SetCustomRange.
    virtual std::uint8_t GetCustomRange() = 0; // 39

    /// See SetHeadEclosionType.
    virtual std::uint8_t GetHeadEclosionType() = 0; // 40

    /// See SetInkMultiple. Shown as whole multiples, rounded down.
    virtual std::uint16_t GetInkMultiple(std::uint8_t colorIndex) = 0; // 41

    /// See SetInkCut.
    virtual std::uint8_t GetInkCut(std::uint8_t colorIndex) = 0; // 42

    /// See SetLampLL. 1 is on, 0 off.
    virtual std::uint8_t GetLampLL() = 0; // 43

    /// See SetLampLR. 1 is on, 0 off.
    virtual std::uint8_t GetLampLR() = 0; // 44

    /// See SetLampRL. 1 is on, 0 off.
    virtual std::uint8_t GetLampRL() = 0; // 45

    /// See SetLampRR. 1 is on, 0 off.
    virtual std::uint8_t GetLampRR() = 0; // 46

    /// See SetChannel.
    virtual std::uint8_t GetChannel() = 0; // 47

protected:
    ~IUserScheme() = default;
};
