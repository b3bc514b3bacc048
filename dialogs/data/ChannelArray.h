#pragma once

#include <memory>
#include <vector>

class IInkChannel;

// An empty array that a host fills with ink channels as if it were a std::vector of the host's own compiler. It has
// room for as many channels as there are channel ids, because the host must never grow it with its own heap.
//
// A vector is three pointers: to the first item, behind the last one, and behind the room. Some compilers have a fourth
// field. Behind the pointers (an allocator) it does no harm. Before them (an allocator, or a proxy for iterator
// debugging) it moves them by one: such a host takes the pointer behind our room for the one behind the last item. So
// there is a second room of the same size behind the first, and a fourth pointer behind that.
class CChannelArray
{
public:
    CChannelArray();
    ~CChannelArray();
    CChannelArray(const CChannelArray&) = delete;
    CChannelArray& operator=(const CChannelArray&) = delete;

    std::vector<IInkChannel*>* AsVector() { return reinterpret_cast<std::vector<IInkChannel*>*>(&m_fields); }
    // What the host appended, cut after so many.
    std::vector<IInkChannel*> First(std::size_t most) const;

private:
    struct Fields
    {
        IInkChannel** first;
        IInkChannel** last;
        IInkChannel** end;
        IInkChannel** endOfSecondRoom;
    };

    bool IsGrown() const;

    std::unique_ptr<IInkChannel*[]> m_rooms;
    Fields m_fields;
};
