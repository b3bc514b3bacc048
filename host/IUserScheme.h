#pragma once

#include <cstdint>

class ISchemeParams;

/// A user print scheme: an operator's own variant of a factory scheme. It has its own values for what operators may
/// change. Layout, head, waveform, waiting and small-format printing come from the factory scheme it was made from. Its
/// eclosion values describe the feathering of swath edges; Quorvane.h explains the term.
///
/// Its table differs from that of IPrintScheme, even where operations have the same name. Never pass one for the other.
///
/// Order of calls: a new scheme (IUserSchemeList::AddScheme) gets its values in one of two ways. From another user
/// scheme they are copied as a block, by ISchemeParams::CopyFrom. From a factory scheme they are set one by one, in the
/// order of this table from SetConfigIndex on. The name comes last in both. After that, the order is that of
/// IPrintScheme. Each getter stands 23 positions after its setter.
class IUserScheme
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

    /// Index in IHostData::GetFactorySchemeList of the factory scheme that this one was made from. The getter returns 8
    /// bits.
    virtual void SetBaseScheme(std::int16_t index) = 0; // 4

    /// Carriage speed: 0 low, 1 medium, 2 high. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetSpeed(std::uint8_t speed) = 0; // 5

    /// Print direction: 1 left, 2 right, 3 both. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetDirection(std::uint8_t direction) = 0; // 6

    /// Low 8 bits of the id of the material. 255, which the getter returns as -1, leaves the choice open.
    virtual void SetMaterial(std::uint8_t materialId) = 0; // 7

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

    /// Colour channel set-up: the selected row among the set-ups of IHostData::GetChannelList that fit the machine's
    /// active set-up. 255 if none is selected.
    virtual void SetChannel(std::uint8_t channel) = 0; // 24

    /// See SetName. The host owns the text; it stays valid at least until the next call on this object.
    virtual const char* GetName() = 0; // 25

    /// See SetConfigIndex.
    virtual std::uint8_t GetConfigIndex() = 0; // 26

    /// See SetBaseScheme. A scheme whose index lies outside the factory list has no base.
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

    /// See SetEclosionType. A type that table 2055 does not offer is shown as no selection.
    virtual std::uint8_t GetEclosionType() = 0; // 36

    /// See SetCustomEclosionId. No editor calls it.
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
