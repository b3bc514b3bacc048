#include "refhost/InkObjects.h"

namespace refhost
{
namespace
{

template <class Object>
Object* FindById(const CHostItems<Object>& objects, std::uint16_t id)
{
    for (const auto& object : objects)
        if (object->Values().id == id)
            return object.get();
    return nullptr;
}

// 0 for an id that the machine has not: the interface has no value for "none".
template <class Object>
std::uint8_t ColorIndexOf(const Object* object)
{
    return object == nullptr ? std::uint8_t() : object->Values().colorIndex;
}

} // namespace

CInkChannelTableObject::CInkChannelTableObject(const std::vector<InkChannel>& channels,
                                               const std::vector<Layout>& layouts)
    : m_channels(channels), m_vecLayouts(layouts)
{
}

CInkChannelObject* CInkChannelTableObject::Find(std::uint16_t id) const
{
    return FindById(m_channels, id);
}

std::uint8_t CInkChannelTableObject::GetColorIndex(std::uint16_t channelId)
{
    return ColorIndexOf(Find(channelId));
}

void CInkChannelTableObject::GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels)
{
    for (const Layout& layout : m_vecLayouts)
        if (layout.id == layoutId)
        {
            for (std::uint16_t id : layout.channels)
                if (CInkChannelObject* channel = Find(id))
                    channels->push_back(channel);
            return;
        }
}

CInkGroupObject::CInkGroupObject(const InkGroup& group, const CInkChannelTableObject& channels)
    : m_group(group), m_channels(channels)
{
}

std::uint16_t CInkGroupObject::GetId()
{
    return m_group.id;
}

const char* CInkGroupObject::GetName()
{
    return m_group.name.c_str();
}

std::uint32_t CInkGroupObject::GetChannelCount()
{
    return static_cast<std::uint32_t>(m_group.channels.size());
}

IInkChannel* CInkGroupObject::GetChannel(std::uint32_t index)
{
    return index < m_group.channels.size() ? m_channels.Find(m_group.channels[index]) : nullptr;
}

CInkGroupTableObject::CInkGroupTableObject(const std::vector<InkGroup>& groups, const CInkChannelTableObject& channels)

{
    for (const InkGroup& group : groups)
        m_groups.Add(group, channels);
}

std::uint32_t CInkGroupTableObject::GetCount()
{
    return m_groups.Count();
}

IInkGroup* CInkGroupTableObject::GetAt(std::uint32_t index)
{
    return m_groups.At(index);
}

IInkGroup* CInkGroupTableObject::GetGroup(std::uint16_t groupId)
{
    return Find(groupId);
}

std::uint8_t CInkGroupTableObject::GetColorIndex(std::uint16_t groupId)
{
    return ColorIndexOf(Find(groupId));
}

CInkGroupObject* CInkGroupTableObject::Find(std::uint16_t id) const
{
    return FindById(m_groups, id);
}

} // namespace refhost
