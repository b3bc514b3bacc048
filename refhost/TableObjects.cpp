#include "refhost/TableObjects.h"

#include <algorithm>
#include <cstring>

namespace refhost
{

HeadLayoutObject::HeadLayoutObject(HostContext& context, const std::string& place, const HeadLayout& head)
    : HostObject(context, "IHeadLayout", place), m_head(head), m_dataModes(context, place)
{
    for (const std::string& mode : head.dataModes)
        m_dataModes.Add(mode);
}

const char* HeadLayoutObject::GetName()
{
    return GetText("GetName", m_head.name);
}

std::uint16_t HeadLayoutObject::GetId()
{
    return Get("GetId", m_head.id);
}

std::uint32_t HeadLayoutObject::GetLayoutId()
{
    return Get("GetLayoutId", m_head.layoutId);
}

std::uint32_t HeadLayoutObject::GetDataModeCount()
{
    return Get("GetDataModeCount", m_dataModes.Count());
}

IDataMode* HeadLayoutObject::GetDataMode(std::uint32_t index)
{
    return Read("GetDataMode", index) ? m_dataModes.At(index) : nullptr;
}

IHeadLayout* HeadLayoutListObject::FindById(std::uint16_t id)
{
    return Read("FindById", id) ? Items().At(static_cast<std::uint32_t>(Find(id))) : nullptr;
}

std::int32_t HeadLayoutListObject::IndexOfId(std::uint16_t id)
{
    Read("IndexOfId", id);
    return Find(id);
}

std::int32_t HeadLayoutListObject::Find(std::uint16_t id) const
{
    for (std::uint32_t i = 0; i < Items().Count(); ++i)
        if (Items().At(i)->Id() == id)
            return static_cast<std::int32_t>(i);
    return -1;
}

ChannelSetupObject::ChannelSetupObject(HostContext& context, const std::string& place, const ChannelSetup& setup)
    : HostObject(context, "IChannelSetup", place), m_setup(setup)
{
}

const char* ChannelSetupObject::GetName()
{
    return GetText("GetName", m_setup.name);
}

std::int32_t ChannelSetupObject::FindSetup(std::uint32_t id)
{
    Read("FindSetup", id);
    const auto found = std::find(m_setup.fits.begin(), m_setup.fits.end(), id);
    return found == m_setup.fits.end() ? -1 : static_cast<std::int32_t>(found - m_setup.fits.begin());
}

ActiveSetupObject::ActiveSetupObject(HostContext& context, const ActiveSetup& setup)
    : HostObject(context, "IActiveSetup"), m_setup(setup)
{
}

std::uint32_t ActiveSetupObject::GetId()
{
    return Get("GetId", m_setup.id);
}

std::uint32_t ActiveSetupObject::GetGroupCount()
{
    return Get("GetGroupCount", static_cast<std::uint32_t>(m_setup.groups.size()));
}

std::uint16_t ActiveSetupObject::GetGroupId(std::uint32_t index)
{
    Read("GetGroupId", index);
    return index < m_setup.groups.size() ? m_setup.groups[index] : std::uint16_t();
}

ParamTableObject::ParamTableObject(HostContext& context, const std::string& place, const ParamTable& table)
    : HostObject(context, "IParamTable", place), m_table(table)
{
}

std::int32_t ParamTableObject::GetCount()
{
    return Get("GetCount", static_cast<std::int32_t>(m_table.entries.size()));
}

void ParamTableObject::GetEntry(void* entry, std::uint32_t index)
{
    Read("GetEntry", index);
    if (entry == nullptr || index >= m_table.entries.size())
        return;
    std::memset(entry, 0xA5, Context().faults.paramEntryBytes);
    std::memcpy(entry, &m_table.entries[index], sizeof m_table.entries[index]);
}

} // namespace refhost
