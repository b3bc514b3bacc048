#include "refhost/TableObjects.h"

#include <algorithm>
#include <cstring>

namespace refhost
{

CHeadLayoutObject::CHeadLayoutObject(const HeadLayout& head) : m_head(head), m_dataModes(head.dataModes) {}

const char* CHeadLayoutObject::GetName()
{
    return m_head.name.c_str();
}

std::uint16_t CHeadLayoutObject::GetId()
{
    return m_head.id;
}

std::uint32_t CHeadLayoutObject::GetLayoutId()
{
    return m_head.layoutId;
}

std::uint32_t CHeadLayoutObject::GetDataModeCount()
{
    return m_dataModes.Count();
}

IDataMode* CHeadLayoutObject::GetDataMode(std::uint32_t index)
{
    return m_dataModes.At(index);
}

IHeadLayout* CHeadLayoutListObject::FindById(std::uint16_t id)
{
    return Items().At(static_cast<std::uint32_t>(Find(id)));
}

std::int32_t CHeadLayoutListObject::IndexOfId(std::uint16_t id)
{
    return Find(id);
}

std::int32_t CHeadLayoutListObject::Find(std::uint16_t id) const
{
    for (std::uint32_t i = 0; i < Items().Count(); ++i)
        if (Items().At(i)->Id() == id)
            return static_cast<std::int32_t>(i);
    return -1;
}

CChannelSetupObject::CChannelSetupObject(const ChannelSetup& setup) : m_setup(setup) {}

const char* CChannelSetupObject::GetName()
{
    return m_setup.name.c_str();
}

std::int32_t CChannelSetupObject::FindSetup(std::uint32_t id)
{
    const auto found = std::find(m_setup.fits.begin(), m_setup.fits.end(), id);
    return found == m_setup.fits.end() ? -1 : static_cast<std::int32_t>(found - m_setup.fits.begin());
}

CActiveSetupObject::CActiveSetupObject(const ActiveSetup& setup) : m_setup(setup) {}

std::uint32_t CActiveSetupObject::GetId()
{
    return m_setup.id;
}

std::uint32_t CActiveSetupObject::GetGroupCount()
{
    return static_cast<std::uint32_t>(m_setup.groups.size());
}

std::uint16_t CActiveSetupObject::GetGroupId(std::uint32_t index)
{
    return index < m_setup.groups.size() ? m_setup.groups[index] : std::uint16_t();
}

CParamTableObject::CParamTableObject(const ParamTable& table) : m_table(table) {}

std::int32_t CParamTableObject::GetCount()
{
    return static_cast<std::int32_t>(m_table.entries.size());
}

void CParamTableObject::GetEntry(void* entry, std::uint32_t index)
{
    if (entry == nullptr || index >= m_table.entries.size())
        return;
    std::memcpy(entry, &m_table.entries[index], sizeof m_table.entries[index]);
}

} // namespace refhost
