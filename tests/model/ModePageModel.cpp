#include "tests/model/ModePageModel.h"

#include "resources/resource.h"

#include <algorithm>

ModePageModel::ModePageModel(ShownScheme& scheme) : SchemePageModel(scheme, IDD_SCHEME_MODE) {}

// Null where the page may neither load nor save.
const refhost::PrintConfig* ModePageModel::Config() const
{
    const refhost::FactoryScheme* const scheme = Scheme().Factory();
    const int config = Scheme().Config();
    const bool exists = config >= 0 && static_cast<std::size_t>(config) < Machine().configurations.size();
    return scheme && exists && scheme->configIndex == config
               ? &Machine().configurations[static_cast<std::size_t>(config)]
               : nullptr;
}

// The number of the scheme's mode is taken for its row, although modes that are off have none.
void ModePageModel::Load()
{
    const refhost::PrintConfig* const config = Config();
    if (!config)
        return;
    refhost::FactoryScheme& scheme = *Scheme().Factory();
    m_modes.clear();
    m_row = -1;
    for (std::size_t i = 0; i < config->modes.size(); ++i)
        if (!config->modes[i].disabled)
            m_modes.push_back(static_cast<int>(i));
    if (m_modes.empty())
        return;
    const bool isListed = std::find(m_modes.begin(), m_modes.end(), scheme.modeIndex) != m_modes.end();
    if (!isListed)
        scheme.modeIndex = LowByte(m_modes[0]);
    m_row = isListed ? RowWithin(scheme.modeIndex, m_modes.size()) : 0;
    ShowDetails();
}

void ModePageModel::ShowDetails()
{
    static const std::vector<int> kPassCounts = {1, 2, 3, 4, 6, 8, 12, 16};
    const refhost::PrintConfig* const config = Config();
    if (!config || m_row < 0 || static_cast<std::size_t>(m_row) >= config->modes.size())
        return;
    const refhost::PrintMode& mode = config->modes[static_cast<std::size_t>(m_row)];
    const auto pass = std::find(kPassCounts.begin(), kPassCounts.end(), mode.passCount);
    m_passRow = pass == kPassCounts.end() ? -1 : static_cast<int>(pass - kPassCounts.begin());
    m_residentRow = RowWithin(mode.resident, 2);
}

bool ModePageModel::Save()
{
    if (Config() && m_row >= 0)
        Scheme().Factory()->modeIndex = LowByte(m_modes[static_cast<std::size_t>(m_row)]);
    return true;
}

void ModePageModel::Change(const Notice& notice)
{
    if (notice.control != IDC_CMB_PRINT_MODE || notice.code != CBN_SELCHANGE)
        return;
    m_row = notice.state;
    ShowDetails();
}

void ModePageModel::AddTo(std::vector<Shown>& display) const
{
    display.insert(display.end(), {Row(IDC_CMB_PRINT_MODE, m_row), Row(IDC_CMB_PASS, m_passRow),
                                   Row(IDC_CMB_RESIDENT, m_residentRow)});
}
