// Ink channels and the groups that they form.
#pragma once

#include "host/IInkChannel.h"
#include "host/IInkChannelTable.h"
#include "host/IInkGroup.h"
#include "host/IInkGroupTable.h"
#include "refhost/HostItems.h"
#include "refhost/Machine.h"

namespace refhost
{

class InkChannelObject : public IInkChannel
{
public:
    explicit InkChannelObject(const InkChannel& channel) : m_channel(channel) {}

    const InkChannel& Values() const { return m_channel; }

    std::uint16_t GetId() override { return m_channel.id; }
    const char* GetName() override { return m_channel.name.c_str(); }

private:
    InkChannel m_channel;
};

class InkChannelTableObject : public IInkChannelTable
{
public:
    InkChannelTableObject(const std::vector<InkChannel>& channels, const std::vector<Layout>& layouts);

    /// Null when the machine has no such channel.
    InkChannelObject* Find(std::uint16_t id) const;

    std::uint8_t GetColorIndex(std::uint16_t channelId) override;
    void GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels) override;

private:
    HostItems<InkChannelObject> m_channels;
    std::vector<Layout> m_layouts;
};

class InkGroupObject : public IInkGroup
{
public:
    InkGroupObject(const InkGroup& group, const InkChannelTableObject& channels);

    const InkGroup& Values() const { return m_group; }

    std::uint16_t GetId() override;
    const char* GetName() override;
    std::uint32_t GetChannelCount() override;
    IInkChannel* GetChannel(std::uint32_t index) override;

private:
    InkGroup m_group;
    const InkChannelTableObject& m_channels;
};

class InkGroupTableObject : public IInkGroupTable
{
public:
    InkGroupTableObject(const std::vector<InkGroup>& groups, const InkChannelTableObject& channels);

    std::uint32_t GetCount() override;
    IInkGroup* GetAt(std::uint32_t index) override;
    IInkGroup* GetGroup(std::uint16_t groupId) override;
    std::uint8_t GetColorIndex(std::uint16_t groupId) override;

private:
    InkGroupObject* Find(std::uint16_t id) const;

    HostItems<InkGroupObject> m_groups;
};

} // namespace refhost
