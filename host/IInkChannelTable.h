#pragma once

#include <cstdint>
#include <vector>

class IInkChannel;

// The library's array has three pointers and one field of a pointer's size more. See docs/abi.md.
static_assert(sizeof(std::vector<IInkChannel*>) == 3 * sizeof(void*) ||
                  sizeof(std::vector<IInkChannel*>) == 4 * sizeof(void*),
              "This compiler's std::vector cannot be filled with the library's channels");

/// The ink channels of the machine, by layout and by id. Read only.
class IInkChannelTable
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4
    virtual void Reserved5() {} // 5

    /// Colour index, 0 to 15, under which schemes keep the ink multiple of the channel with an id.
    virtual std::uint8_t GetColorIndex(std::uint16_t channelId) = 0; // 6

    virtual void Reserved7() {} // 7

    /// Appends the channels of a layout to the library's array, in the order in which they are to be shown. The first
    /// twelve are shown. For an unknown layout, append nothing. The array is empty and has room for 65,536 channels:
    /// append by push_back, and not beyond that room, because growing the array would mix the memory of two run-time
    /// libraries. Do not rely on size() or on the items before yours: where the compiler keeps a field before the three
    /// pointers of a vector, the array looks full of something else. The channels stay the host's and must live until
    /// the editor operation returns.
    virtual void GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels) = 0; // 8

protected:
    ~IInkChannelTable() = default;
};
