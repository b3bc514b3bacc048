#include "refhost/TableObjects.h"

#include <algorithm>
#include <cstring>

namespace refhost
{

HeadLayoutObject::HeadLayoutObject(const HeadLayout& head) : m_head(head), m_dataModes(head.dataModes) {}

const char* HeadLayoutObject::GetName()
{
    return m_head.name.c_str();
}

std::uint16_t HeadLayoutObject::GetId()
{
    return m_head.id;
}

std::uint32_t HeadLayoutObject::GetLayoutId()
{
    return m_head.layoutId;
}

std::uint32_t HeadLayoutObject::GetDataModeCount()
{
    return m_dataModes.Count();
}

IDataMode* HeadLayoutObject::GetDataMode(std::uint32_t index)
{
    return m_dataModes.At(index);
}

IHeadLayout* HeadLayoutListObject::FindById(std::uint16_t id)
{
    return Items().At(static_cast<std::uint32_t>(Find(id)));
}

std::int32_t HeadLayoutListObject::IndexOfId(std::uint16_t id)
{
    return Find(id);
}

std::int32_t HeadLayoutListObject::Find(std::uint16_t id) const
{
    for (std::uint32_t i = 0; i < Items().Count(); ++i)
        if (Items().At(i)->Id() == id)
            return static_cast<std::int32_t>(i);
    return -1;
}

ChannelSetupObject::ChannelSetupObject(const ChannelSetup& setup) : m_setup(setup) {}

const char* ChannelSetupObject::GetName()
{
    return m_setup.name.c_str();
}

std::int32_t ChannelSetupObject::FindSetup(std::uint32_t id)
{
    const auto found = std::find(m_setup.fits.begin(), m_setup.fits.end(), id);
    return found == m_setup.fits.end() ? -1 : static_cast<std::int32_t>(found - m_setup.fits.begin());
}

ActiveSetupObject::ActiveSetupObject(const ActiveSetup& setup) : m_setup(setup) {}

std::uint32_t ActiveSetupObject::GetId()
{
    return m_setup.id;
}

std::uint32_t ActiveSetupObject::GetGroupCount()
{
    return static_cast<std::uint32_t>(m_setup.groups.size());
}

std::uint16_t ActiveSetupObject::GetGroupId(std::uint32_t index)
{
    return index < m_setup.groups.size() ? m_setup.groups[index] : std::uint16_t();
}

ParamTableObject::ParamTableObject(const ParamTable& table) : m_table(table) {}

std::int32_t ParamTableObject::GetCount()
{
    return static_cast<std::int32_t>(m_table.entries.size());
}

void ParamTableObject::GetEntry(void* entry, std::uint32_t index)
{
    if (entry == nullptr || index >= m_table.entries.size())
        return;
    std::memcpy(entry, &m_table.entries[index], sizeof m_table.entries[index]);
}

} // namespace refhost
