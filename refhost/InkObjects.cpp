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

InkChannelTableObject::InkChannelTableObject(HostContext& context, const std::vector<InkChannel>& channels,
                                             const std::vector<Layout>& layouts)
    : HostObject(context, "IInkChannelTable"), m_channels(context, std::string()), m_layouts(layouts)
{
    for (const InkChannel& channel : channels)
        m_channels.Add(channel);
}

InkChannelObject* InkChannelTableObject::Find(std::uint16_t id) const
{
    return FindById(m_channels, id);
}

std::uint8_t InkChannelTableObject::GetColorIndex(std::uint16_t channelId)
{
    Read("GetColorIndex", channelId);
    return ColorIndexOf(Find(channelId));
}

void InkChannelTableObject::GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels)
{
    Read("GetChannelsOfLayout", layoutId);
    for (const Layout& layout : m_layouts)
        if (layout.id == layoutId)
        {
            for (std::uint16_t id : layout.channels)
                if (InkChannelObject* channel = Find(id))
                    channels->push_back(channel);
            return;
        }
}

InkGroupObject::InkGroupObject(HostContext& context, const std::string& place, const InkGroup& group,
                               const InkChannelTableObject& channels)
    : HostObject(context, "IInkGroup", place), m_group(group), m_channels(channels)
{
}

std::uint16_t InkGroupObject::GetId()
{
    return Get("GetId", m_group.id);
}

const char* InkGroupObject::GetName()
{
    return GetText("GetName", m_group.name);
}

std::uint32_t InkGroupObject::GetChannelCount()
{
    return Get("GetChannelCount", static_cast<std::uint32_t>(m_group.channels.size()));
}

IInkChannel* InkGroupObject::GetChannel(std::uint32_t index)
{
    const bool found = Read("GetChannel", index) && index < m_group.channels.size();
    return found ? m_channels.Find(m_group.channels[index]) : nullptr;
}

InkGroupTableObject::InkGroupTableObject(HostContext& context, const std::vector<InkGroup>& groups,
                                         const InkChannelTableObject& channels)
    : HostObject(context, "IInkGroupTable"), m_groups(context, std::string())
{
    for (const InkGroup& group : groups)
        m_groups.Add(group, channels);
}

std::uint32_t InkGroupTableObject::GetCount()
{
    return Get("GetCount", m_groups.Count());
}

IInkGroup* InkGroupTableObject::GetAt(std::uint32_t index)
{
    return Read("GetAt", index) ? m_groups.At(index) : nullptr;
}

IInkGroup* InkGroupTableObject::GetGroup(std::uint16_t groupId)
{
    return Read("GetGroup", groupId) ? Find(groupId) : nullptr;
}

std::uint8_t InkGroupTableObject::GetColorIndex(std::uint16_t groupId)
{
    Read("GetColorIndex", groupId);
    return ColorIndexOf(Find(groupId));
}

InkGroupObject* InkGroupTableObject::Find(std::uint16_t id) const
{
    return FindById(m_groups, id);
}

} // namespace refhost
