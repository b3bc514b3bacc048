#include "tests/model/UserModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"

#include <algorithm>

namespace
{
// As they are without a language file.
constexpr wchar_t kPreset[] = L"\u9884\u8BBE";
constexpr wchar_t kScheme[] = L"\u65B9\u6848";
constexpr wchar_t kDivider[] = L"----------------------";
} // namespace

UserModel::UserModel(const refhost::Machine& machine) : SchemeEditorModel(machine, true)
{
    FillConfigs();
    FillSchemes();
}

std::vector<SchemeEditorModel::SchemeRow> UserModel::Presets() const
{
    std::vector<SchemeRow> rows;
    for (std::size_t i = 0; i < m_machine.factorySchemes.size(); ++i)
    {
        const refhost::FactoryScheme& scheme = m_machine.factorySchemes[i];
        if (scheme.configIndex == m_config && scheme.enabled)
            rows.push_back({ReadAsWide(scheme.name) + L"(" + kPreset + L")", static_cast<int>(i)});
    }
    return rows;
}

void UserModel::FillSchemes()
{
    m_rows.clear();
    m_row = -1;
    if (m_config < 0)
        return;
    m_rows = Presets();
    if (!m_rows.empty())
        m_rows.push_back({kDivider, kNoScheme});
    for (std::size_t i = 0; i < m_machine.userSchemes.size(); ++i)
        if (m_machine.userSchemes[i].configIndex == m_config)
            m_rows.push_back({ReadAsWide(m_machine.userSchemes[i].name), kFirstUserScheme + static_cast<int>(i)});
    SelectRow(-1, true);
}

void UserModel::AddScheme()
{
    if (m_config >= 0)
        Open(IDD_USER_ADD_SCHEME);
}

std::wstring UserModel::ProposedName() const
{
    return std::wstring(kScheme) + L"-" + std::to_wstring(m_machine.userSchemes.size() + 1);
}

std::vector<SchemeEditorModel::SchemeRow> UserModel::Sources() const
{
    std::vector<SchemeRow> rows = Presets();
    for (std::size_t i = 0; i < m_machine.userSchemes.size(); ++i)
        if (m_machine.userSchemes[i].configIndex == m_config)
            rows.push_back({Wide(m_machine.userSchemes[i].name), kFirstUserScheme + static_cast<int>(i)});
    return rows;
}

Texts UserModel::OfferedSources() const
{
    Texts texts;
    for (const SchemeRow& row : Sources())
        texts.push_back(row.text);
    return texts;
}

int UserModel::ProposedSource() const
{
    const std::vector<SchemeRow> rows = Sources();
    const auto found = std::find_if(rows.begin(), rows.end(), [this](const SchemeRow& row) { return row.id == Id(); });
    return found == rows.end() ? RowWithin(0, rows.size()) : static_cast<int>(found - rows.begin());
}

void UserModel::MakeScheme(const std::wstring& name, int sourceRow)
{
    Closed();
    const int source = sourceRow < 0 ? kNoScheme : Sources()[static_cast<std::size_t>(sourceRow)].id;
    std::vector<refhost::UserScheme>& schemes = m_machine.userSchemes;
    refhost::UserScheme scheme;
    if (source >= kFirstUserScheme)
        scheme = schemes[static_cast<std::size_t>(source - kFirstUserScheme)];
    else if (source >= 0)
        CopyPreset(scheme, source);
    scheme.name = Narrow(name);
    schemes.push_back(scheme);
    AppendAndSelect({Wide(scheme.name), kFirstUserScheme - 1 + static_cast<int>(schemes.size())});
}

// Everything that both kinds of schemes have, but for the name.
void UserModel::CopyPreset(refhost::UserScheme& scheme, int preset) const
{
    static_cast<refhost::SchemeValues&>(scheme) = m_machine.factorySchemes[static_cast<std::size_t>(preset)];
    scheme.baseScheme = LowByte(preset);
}

void UserModel::RemoveDeleted(const std::set<int>& ids)
{
    for (auto id = ids.rbegin(); id != ids.rend(); ++id)
        m_machine.userSchemes.erase(m_machine.userSchemes.begin() + (*id - kFirstUserScheme));
}
