#include "tests/model/FactoryModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"
#include "tests/model/ModePageModel.h"

namespace
{
constexpr std::size_t kLongestMadeName = 62;
constexpr std::size_t kModePage = 1;

std::string Cut(const std::string& name)
{
    return name.substr(0, kLongestMadeName);
}
} // namespace

FactoryModel::FactoryModel(const refhost::Machine& machine) : SchemeEditorModel(machine, false)
{
    InsertPage(kModePage, std::make_unique<ModePageModel>(m_scheme));
    FillConfigs();
    FillSchemes();
}

void FactoryModel::FillSchemes()
{
    m_rows.clear();
    m_row = -1;
    if (m_config < 0)
        return;
    for (std::size_t i = 0; i < m_machine.factorySchemes.size(); ++i)
        if (m_machine.factorySchemes[i].configIndex == m_config)
            m_rows.push_back({Wide(m_machine.factorySchemes[i].name), static_cast<int>(i)});
    SelectRow(m_rows.empty() ? -1 : 0, true);
}

void FactoryModel::AddScheme()
{
    if (m_config < 0)
        return;
    std::vector<refhost::FactoryScheme>& schemes = m_machine.factorySchemes;
    refhost::FactoryScheme scheme;
    scheme.name = Cut(ReadAsNarrow(Wide(SelectedConfig()->name)) + "-" + std::to_string(schemes.size() + 1));
    scheme.configIndex = LowByte(m_config);
    schemes.push_back(scheme);
    AppendAndSelect({Wide(scheme.name), static_cast<int>(schemes.size()) - 1});
}

void FactoryModel::RemoveDeleted(const std::set<int>& ids)
{
    for (auto id = ids.rbegin(); id != ids.rend(); ++id)
        m_machine.factorySchemes.erase(m_machine.factorySchemes.begin() + *id);
}

// In an empty list, too: its first row has a height all the same.
void FactoryModel::PointAt(int row)
{
    SelectRow(RowWithin(row, m_rows.size()), true);
}

void FactoryModel::Command(int id)
{
    if (id == IDM_COPY_SCHEME)
        Open(IDD_SCHEME_COPY);
}

Texts FactoryModel::OfferedConfigs() const
{
    Texts names;
    for (const refhost::PrintConfig& config : m_machine.configurations)
        names.push_back(ConfigName(config));
    return names;
}

// A copy into the configuration that is shown fills the list anew, which stores the pages: the next copy has that too.
void FactoryModel::CopyTo(const std::vector<int>& configs)
{
    Closed();
    const int source = Id();
    if (source < 0)
        return;
    for (int config : configs)
    {
        const refhost::PrintConfig& target = m_machine.configurations[static_cast<std::size_t>(config)];
        refhost::FactoryScheme copy = m_machine.factorySchemes[static_cast<std::size_t>(source)];
        copy.configIndex = LowByte(config);
        copy.name = std::to_string(target.xResolution) + "X" + std::to_string(target.yResolution) + "_Copy";
        m_machine.factorySchemes.push_back(copy);
        if (config == m_config)
            FillSchemes();
    }
}
