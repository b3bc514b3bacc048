#include "refhost/InkObjects.h"

namespace refhost
{
namespace
{

template <class Object>
Object* FindById(const HostItems<Object>& objects, std::uint16_t id)
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

InkChannelTableObject::InkChannelTableObject(const std::vector<InkChannel>& channels,
                                             const std::vector<Layout>& layouts)
    : m_channels(channels), m_layouts(layouts)
{
}

InkChannelObject* InkChannelTableObject::Find(std::uint16_t id) const
{
    return FindById(m_channels, id);
}

std::uint8_t InkChannelTableObject::GetColorIndex(std::uint16_t channelId)
{
    return ColorIndexOf(Find(channelId));
}

void InkChannelTableObject::GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels)
{
    for (const Layout& layout : m_layouts)
        if (layout.id == layoutId)
        {
            for (std::uint16_t id : layout.channels)
                if (InkChannelObject* channel = Find(id))
                    channels->push_back(channel);
            return;
        }
}

InkGroupObject::InkGroupObject(const InkGroup& group, const InkChannelTableObject& channels)
    : m_group(group), m_channels(channels)
{
}

std::uint16_t InkGroupObject::GetId()
{
    return m_group.id;
}

const char* InkGroupObject::GetName()
{
    return m_group.name.c_str();
}

std::uint32_t InkGroupObject::GetChannelCount()
{
    return static_cast<std::uint32_t>(m_group.channels.size());
}

IInkChannel* InkGroupObject::GetChannel(std::uint32_t index)
{
    return index < m_group.channels.size() ? m_channels.Find(m_group.channels[index]) : nullptr;
}

InkGroupTableObject::InkGroupTableObject(const std::vector<InkGroup>& groups, const InkChannelTableObject& channels)

{
    for (const InkGroup& group : groups)
        m_groups.Add(group, channels);
}

std::uint32_t InkGroupTableObject::GetCount()
{
    return m_groups.Count();
}

IInkGroup* InkGroupTableObject::GetAt(std::uint32_t index)
{
    return m_groups.At(index);
}

IInkGroup* InkGroupTableObject::GetGroup(std::uint16_t groupId)
{
    return Find(groupId);
}

std::uint8_t InkGroupTableObject::GetColorIndex(std::uint16_t groupId)
{
    return ColorIndexOf(Find(groupId));
}

InkGroupObject* InkGroupTableObject::Find(std::uint16_t id) const
{
    return FindById(m_groups, id);
}

} // namespace refhost
