#include "tests/model/CommonPageModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"

#include <algorithm>

namespace
{
constexpr std::size_t kLongestName = 60;
constexpr std::uint32_t kWaveTable = 1015;
const std::vector<int> kSpeeds = {-1, 0, 1, 2};
const std::vector<int> kDirections = {-1, 1, 2, 3};
constexpr std::size_t kSwitchRows = 2;

int RowOf(const std::vector<int>& data, int value)
{
    const auto found = std::find(data.begin(), data.end(), value);
    return found == data.end() ? RowWithin(0, data.size()) : static_cast<int>(found - data.begin());
}
} // namespace

CommonPageModel::CommonPageModel(ShownScheme& scheme) : SchemePageModel(scheme, IDD_SCHEME_CMMN) {}

void CommonPageModel::Load()
{
    if (Scheme().Id() < 0)
        return;
    if (const refhost::SchemeValues* const values = Scheme().Values())
    {
        m_nameText = ToWide(values->name, Machine().codePage);
        m_speedRow = values->speed < 0 ? 0 : RowWithin(values->speed + 1, kSpeeds.size());
        m_directionRow = values->direction < 0 ? 0 : RowWithin(values->direction, kDirections.size());
    }
    if (const refhost::FactoryScheme* const own = Scheme().Factory())
        m_enabledRow = own->enabled ? 1 : 0;
    if (const refhost::FactoryScheme* const behind = Scheme().FactoryBehind())
        m_waitRow = RowWithin(behind->waitStepStop, kSwitchRows);
    FillMaterials();
    FillWaves();
    FillChannels();
    FillLayouts();
    FillHeads();
}

void CommonPageModel::FillMaterials()
{
    m_materials = {-1};
    for (const refhost::Material& material : Machine().materials)
        m_materials.push_back(material.id);
    const refhost::SchemeValues* const values = Scheme().Values();
    m_materialRow = RowOf(m_materials, values ? values->material : 0);
}

void CommonPageModel::FillWaves()
{
    const refhost::ParamTable* const table = Table(kWaveTable);
    const int count = table ? table->entries[0] : 0;
    const refhost::FactoryScheme* const behind = Scheme().FactoryBehind();
    const int wave = behind ? behind->wave : -1;
    m_waveRow = wave >= 0 && wave < count ? wave + 1 : 0;
}

// The number of the set-up in the host's list is taken for its row, although set-ups that do not fit have none.
void CommonPageModel::FillChannels()
{
    std::vector<int> listed;
    for (std::size_t i = 0; i < Machine().channelSetups.size(); ++i)
    {
        const std::vector<std::uint32_t>& fits = Machine().channelSetups[i].fits;
        if (std::find(fits.begin(), fits.end(), Machine().activeSetup.id) != fits.end())
            listed.push_back(static_cast<int>(i));
    }
    const refhost::SchemeValues* const values = Scheme().Values();
    const int channel = values ? values->channel : 0;
    const bool isListed = std::find(listed.begin(), listed.end(), channel) != listed.end();
    m_channelRow = isListed ? RowWithin(channel, listed.size()) : -1;
}

void CommonPageModel::FillLayouts()
{
    const refhost::FactoryScheme* const behind = Scheme().FactoryBehind();
    std::vector<int> ids;
    if (behind)
        for (const refhost::Layout& layout : Machine().layouts)
            ids.push_back(static_cast<int>(layout.id));
    m_layoutRow = behind ? RowOf(ids, behind->layoutId) : -1;
}

void CommonPageModel::FillHeads()
{
    m_heads.clear();
    m_headRow = -1;
    const refhost::FactoryScheme* const behind = Scheme().FactoryBehind();
    if (!behind || m_layoutRow < 0)
        return;
    for (const refhost::HeadLayout& head : Machine().headLayouts)
        if (static_cast<int>(head.layoutId) == LayoutId())
            m_heads.push_back(head.id);
    m_headRow = RowOf(m_heads, behind->headId);
}

int CommonPageModel::LayoutId() const
{
    return static_cast<int>(Machine().layouts[static_cast<std::size_t>(m_layoutRow)].id);
}

int CommonPageModel::DataOf(const std::vector<int>& data, int row)
{
    return row < 0 ? -1 : data[static_cast<std::size_t>(row)];
}

bool CommonPageModel::Save()
{
    if (!Scheme().IsEditable())
        return true;
    const bool isNameTaken = m_nameText.size() <= kLongestName;
    refhost::SchemeValues* const values = Scheme().Values();
    if (!values)
        return isNameTaken;
    if (isNameTaken)
        values->name = ToNarrow(m_nameText, Machine().codePage);
    values->speed = static_cast<std::int8_t>(DataOf(kSpeeds, m_speedRow));
    values->direction = static_cast<std::int8_t>(DataOf(kDirections, m_directionRow));
    values->material = static_cast<std::int8_t>(DataOf(m_materials, m_materialRow));
    values->channel = LowByte(m_channelRow);
    if (refhost::FactoryScheme* const own = Scheme().Factory())
        SaveFactoryOnly(*own);
    return isNameTaken;
}

void CommonPageModel::SaveFactoryOnly(refhost::FactoryScheme& scheme) const
{
    scheme.enabled = m_enabledRow != 0;
    scheme.waitStepStop = LowByte(m_waitRow);
    scheme.wave = static_cast<std::int8_t>(m_waveRow - 1);
    if (m_layoutRow >= 0)
        scheme.layoutId = LowByte(LayoutId());
    scheme.headId = LowByte(DataOf(m_heads, m_headRow));
}

void CommonPageModel::Change(const Notice& notice)
{
    if (notice.control == IDC_EDIT_NAME && notice.code == EN_CHANGE)
        m_nameText = notice.text;
    if (notice.code != CBN_SELCHANGE)
        return;
    for (auto [control, row] : {std::pair{IDC_CMB_ENABLE, &m_enabledRow}, std::pair{IDC_CMB_SPEED, &m_speedRow},
                                std::pair{IDC_CMB_DIRECTION, &m_directionRow}, std::pair{IDC_CMB_WAIT_STEP, &m_waitRow},
                                std::pair{IDC_CMB_WAVE, &m_waveRow}, std::pair{IDC_CMB_CHANNEL, &m_channelRow},
                                std::pair{IDC_CMB_MATERIAL, &m_materialRow}, std::pair{IDC_CMB_HEAD, &m_headRow}})
        if (notice.control == control)
            *row = notice.state;
    if (notice.control == IDC_CMB_LAYOUT)
        ChangeLayout(notice.state);
}

void CommonPageModel::ChangeLayout(int row)
{
    m_layoutRow = row;
    FillHeads();
    refhost::FactoryScheme* const own = Scheme().Factory();
    if (own && row >= 0)
        own->layoutId = LowByte(LayoutId());
}

void CommonPageModel::AddTo(std::vector<Shown>& display) const
{
    display.insert(display.end(), {Row(IDC_CMB_ENABLE, m_enabledRow), Row(IDC_CMB_SPEED, m_speedRow),
                                   Row(IDC_CMB_DIRECTION, m_directionRow), Row(IDC_CMB_WAIT_STEP, m_waitRow),
                                   Row(IDC_CMB_WAVE, m_waveRow), Row(IDC_CMB_CHANNEL, m_channelRow),
                                   Row(IDC_CMB_MATERIAL, m_materialRow), Row(IDC_CMB_LAYOUT, m_layoutRow),
                                   Row(IDC_CMB_HEAD, m_headRow), Text(IDC_EDIT_NAME, m_nameText)});
}
