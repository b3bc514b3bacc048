#include "tests/model/EclosionPageModel.h"

#include "resources/resource.h"
#include "tests/machines/CustomEclosionType.h"
#include "tests/model/HostText.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr std::uint32_t kTypeTable = 2055;
constexpr std::uint32_t kCustomLevelTable = 2057;
constexpr int kMostRange = 200;
constexpr std::size_t kDotModes = 4;
constexpr std::size_t kHeadTypes = 3;

// Super and custom change places, either way.
int Swapped(int level)
{
    return level == 4 ? 5 : level == 5 ? 4 : level;
}
} // namespace

EclosionPageModel::EclosionPageModel(ShownScheme& scheme)
    : SchemePageModel(scheme, IDD_SCHEME_ELC), m_ranges{{{IDC_EDIT_RANGE_L, &refhost::SchemeValues::defaultRangeL},
                                                         {IDC_EDIT_RANGE_M, &refhost::SchemeValues::defaultRangeM},
                                                         {IDC_EDIT_RANGE_S, &refhost::SchemeValues::defaultRangeS},
                                                         {IDC_EDIT_RANGE_SS, &refhost::SchemeValues::defaultRangeSS},
                                                         {IDC_EDIT_CUSTOM_RANGE, &refhost::SchemeValues::customRange}}}
{
}

void EclosionPageModel::Load()
{
    if (Scheme().Id() < 0)
        return;
    const refhost::SchemeValues* const values = Scheme().Values();
    FillTypes(values);
    FillLevels(values);
    if (values)
    {
        for (Range& range : m_ranges)
            range.member = values->*range.stored;
        m_dotRow = RowWithin(values->dotMode, kDotModes);
        m_headTypeRow = RowWithin(values->headEclosionType, kHeadTypes);
    }
    m_position = std::min(m_ranges.back().member, kMostRange);
    ShowMembers();
}

void EclosionPageModel::FillTypes(const refhost::SchemeValues* values)
{
    m_types.clear();
    if (const refhost::ParamTable* const table = Table(kTypeTable))
        for (std::size_t i = 0; i < table->entries.size(); ++i)
            if (table->entries[i] != 0)
                m_types.push_back(static_cast<int>(i));
    const auto type = std::find(m_types.begin(), m_types.end(), values ? values->eclosionType : 0);
    m_typeRow = type == m_types.end() ? -1 : static_cast<int>(type - m_types.begin());
}

void EclosionPageModel::FillLevels(const refhost::SchemeValues* values)
{
    const refhost::ParamTable* const table = Table(kCustomLevelTable);
    const std::size_t count = table && table->entries[0] != 0 ? 6 : 5;
    m_levelRow = values ? RowWithin(Swapped(values->eclosionLevel), count) : 0;
}

bool EclosionPageModel::Save()
{
    if (!Scheme().IsEditable())
        return true;
    if (!TakeMembers())
        return false;
    if (refhost::SchemeValues* const values = Scheme().Values())
    {
        for (const Range& range : m_ranges)
            values->*range.stored = LowByte(range.member);
        values->eclosionType = LowByte(m_typeRow < 0 ? -1 : m_types[static_cast<std::size_t>(m_typeRow)]);
        values->eclosionLevel = LowByte(Swapped(m_levelRow));
        values->dotMode = LowByte(m_dotRow);
        values->headEclosionType = LowByte(m_headTypeRow);
    }
    ShowMembers();
    return true;
}

void EclosionPageModel::ShowMembers()
{
    for (Range& range : m_ranges)
        range.text = std::to_wstring(range.member);
}

// A number that is out of range has arrived all the same; the fields behind a refused one have not.
bool EclosionPageModel::TakeMembers()
{
    for (Range& range : m_ranges)
    {
        const std::optional<int> number = ParseInteger(range.text);
        if (!number)
            return false;
        range.member = *number;
        if (range.member < 0 || range.member > kMostRange)
            return false;
    }
    return true;
}

void EclosionPageModel::Change(const Notice& notice)
{
    if (notice.message == WM_HSCROLL)
    {
        m_position = notice.state;
        m_ranges.back().member = notice.state;
        return ShowMembers();
    }
    if (notice.code == CBN_SELCHANGE)
        ChangeRow(notice.control, notice.state);
    for (Range& range : m_ranges)
        if (notice.control == range.edit && notice.code == EN_CHANGE)
            range.text = notice.text;
}

void EclosionPageModel::ChangeRow(int combo, int row)
{
    for (auto [control, kept] :
         {std::pair{IDC_CMB_ELC_TYPE, &m_typeRow}, std::pair{IDC_CMB_ELC_LEVEL, &m_levelRow},
          std::pair{IDC_CMB_DOT_MODE, &m_dotRow}, std::pair{IDC_CMB_HEAD_ELC_TYPE, &m_headTypeRow}})
        if (combo == control)
            *kept = row;
    m_asks = combo == IDC_CMB_ELC_TYPE && row >= 0 && m_types[static_cast<std::size_t>(row)] == kCustomEclosionType &&
             Scheme().IsEditable();
}

bool EclosionPageModel::AsksForCustomEclosion()
{
    return std::exchange(m_asks, false);
}

void EclosionPageModel::AddTo(std::vector<Shown>& display) const
{
    display.insert(display.end(), {Row(IDC_CMB_ELC_TYPE, m_typeRow), Row(IDC_CMB_ELC_LEVEL, m_levelRow),
                                   Row(IDC_CMB_DOT_MODE, m_dotRow), Row(IDC_CMB_HEAD_ELC_TYPE, m_headTypeRow),
                                   Number(IDC_SLIDER_CUSTOM_RANGE, Aspect::Position, m_position)});
    for (const Range& range : m_ranges)
        display.push_back(Text(range.edit, range.text));
}
