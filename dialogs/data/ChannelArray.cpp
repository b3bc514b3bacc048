#include "dialogs/data/ChannelArray.h"

#include <algorithm>
#include <cstddef>

namespace
{
constexpr std::ptrdiff_t ROOM = 65536;
// What a host takes for a proxy are the first two items: none.
constexpr std::ptrdiff_t PROXY_FIELDS = 2;
} // namespace

// The rooms are left as they are: to clear them would be most of the work.
CChannelArray::CChannelArray() : m_rooms(new IInkChannel*[2 * ROOM])
{
    IInkChannel** const first = m_rooms.get();
    std::fill(first, first + PROXY_FIELDS, nullptr);
    m_fields = {first, first, first + ROOM, first + 2 * ROOM};
}

// A host that grew the array has freed ours.
CChannelArray::~CChannelArray()
{
    if (IsGrown())
        m_rooms.release();
}

std::vector<IInkChannel*> CChannelArray::First(std::size_t most) const
{
    IInkChannel* const* const secondRoom = m_rooms.get() + ROOM;
    IInkChannel* const* first = m_fields.first;
    IInkChannel* const* last = m_fields.last;
    if (!IsGrown() && m_fields.end != secondRoom)
    {
        last = m_fields.end;
        if (last > secondRoom)
            first = secondRoom;
    }
    return {first, first + std::min(static_cast<std::size_t>(last - first), most)};
}

bool CChannelArray::IsGrown() const
{
    return m_fields.first != m_rooms.get();
}
