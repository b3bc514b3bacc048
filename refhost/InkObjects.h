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

class CInkChannelObject final : public IInkChannel
{
public:
    explicit CInkChannelObject(const InkChannel& channel) : m_channel(channel) {}

    const InkChannel& Values() const { return m_channel; }

    std::uint16_t GetId() override { return m_channel.id; }
    const char* GetName() override { return m_channel.name.c_str(); }

private:
    InkChannel m_channel;
};

class CInkChannelTableObject final : public IInkChannelTable
{
public:
    CInkChannelTableObject(const std::vector<InkChannel>& channels, const std::vector<Layout>& layouts);

    // Null when the machine has no such channel.
    CInkChannelObject* Find(std::uint16_t id) const;

    std::uint8_t GetColorIndex(std::uint16_t channelId) override;
    void GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels) override;

private:
    CHostItems<CInkChannelObject> m_channels;
    std::vector<Layout> m_vecLayouts;
};

class CInkGroupObject final : public IInkGroup
{
public:
    CInkGroupObject(const InkGroup& group, const CInkChannelTableObject& channels);

    const InkGroup& Values() const { return m_group; }

    std::uint16_t GetId() override;
    const char* GetName() override;
    std::uint32_t GetChannelCount() override;
    IInkChannel* GetChannel(std::uint32_t index) override;

private:
    InkGroup m_group;
    const CInkChannelTableObject& m_channels;
};

class CInkGroupTableObject final : public IInkGroupTable
{
public:
    CInkGroupTableObject(const std::vector<InkGroup>& groups, const CInkChannelTableObject& channels);

    std::uint32_t GetCount() override;
    IInkGroup* GetAt(std::uint32_t index) override;
    IInkGroup* GetGroup(std::uint16_t groupId) override;
    std::uint8_t GetColorIndex(std::uint16_t groupId) override;

private:
    CInkGroupObject* Find(std::uint16_t id) const;

    CHostItems<CInkGroupObject> m_groups;
};

} // namespace refhost
