#include "tests/model/PrintModeModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"

#include <algorithm>

namespace
{
template <class Scheme>
void RemoveSchemesOf(std::vector<Scheme>& schemes, int config)
{
    const auto belongs = [=](const Scheme& scheme) { return scheme.configIndex == config; };
    schemes.erase(std::remove_if(schemes.begin(), schemes.end(), belongs), schemes.end());
}
} // namespace

PrintModeModel::PrintModeModel(const refhost::Machine& machine) : EditorModel(machine), m_page(m_machine)
{
    for (const refhost::PrintConfig& config : m_machine.configurations)
    {
        m_numbers.emplace_back();
        for (std::size_t i = 0; i < config.modes.size(); ++i)
            m_numbers.back().push_back(m_nextNumber++);
    }
    FillConfigs(0);
}

void PrintModeModel::Hear(const Notice& notice)
{
    if (notice.message != WM_COMMAND)
        return;
    if (notice.dialog == IDD_PRINT_MODE)
        HearCommand(notice.control, notice.code, notice.state);
    else if (notice.dialog == IDD_PRINT_MODE_CMMN)
        HearPage(notice);
}

void PrintModeModel::HearCommand(int control, int code, int state)
{
    if (control == IDC_LIST_CFG && code == LBN_SELCHANGE)
    {
        m_config = state;
        FillModes(false);
    }
    else if (control == IDC_LIST_CFG && code == LBN_DBLCLK)
    {
        m_isRenaming = true;
        if (SelectedConfig())
            Open(IDD_PRINT_MODE_ADD_CFG);
    }
    else if (control == IDC_LIST_MODE && code == LBN_SELCHANGE)
    {
        m_mode = state;
        SelectMode(true);
    }
    else if (code == BN_CLICKED)
        Press(control);
}

void PrintModeModel::Press(int button)
{
    switch (button)
    {
    case IDC_BTN_ADD_CFG:
        m_isRenaming = false;
        return Open(IDD_PRINT_MODE_ADD_CFG);
    case IDC_BTN_DEL_CFG:
        return DeleteConfig();
    case IDC_BTN_ADD_MODE:
        return AddMode();
    case IDC_BTN_DEL_MODE:
        return DeleteMode();
    case IDC_BTN_MODE_UP:
        return MoveMode(-1);
    case IDC_BTN_MODE_DOWN:
        return MoveMode(1);
    case IDOK:
        LeaveFocusedValue();
        Store();
        Save("SaveParameters(2)");
        return End();
    case IDCANCEL:
        return End();
    }
}

// While a prompt is up, the page hears nothing; and it shows the operator's own changes of a text only between two
// notifications.
void PrintModeModel::HearPage(const Notice& notice)
{
    if (notice.code == EN_SETFOCUS)
        m_focusedField = notice.control;
    else if (notice.code == EN_KILLFOCUS)
        m_focusedField = 0;
    if (notice.isNested)
        return;
    const bool isEdit = notice.control == IDC_EDIT_NAME || notice.control == IDC_EDIT_SMALL ||
                        notice.control == IDC_EDIT_MEDIUM || notice.control == IDC_EDIT_LARGE;
    if (isEdit && notice.code == EN_CHANGE)
        m_page.ChangeText(notice.control, notice.text);
    else if (isEdit && notice.code == EN_KILLFOCUS)
        LeaveValue(notice.control);
    else if (!isEdit && notice.code == CBN_SELCHANGE)
        m_page.ChangeSelection(notice.control, notice.state, Attached());
}

void PrintModeModel::LeaveValue(int edit)
{
    if (!m_page.LeaveValue(edit, Attached()))
        Prompt();
}

// Enter ends the editor with the focus still in a field.
void PrintModeModel::LeaveFocusedValue()
{
    if (m_focusedField != 0 && !m_page.IsRefused())
        LeaveValue(m_focusedField);
}

void PrintModeModel::FillConfigs(int selection)
{
    m_configRows.clear();
    for (const refhost::PrintConfig& config : m_machine.configurations)
        m_configRows.push_back(ConfigRow(config, Wide(config.name)));
    if (m_configRows.empty())
        return;
    m_config = selection;
    FillModes(false);
}

void PrintModeModel::FillModes(bool skipStore)
{
    m_modeRows.clear();
    m_mode = -1;
    const refhost::PrintConfig* const config = SelectedConfig();
    if (!config || config->modes.empty())
        return;
    const std::vector<ModeNumber>& numbers = m_numbers[static_cast<std::size_t>(m_config)];
    for (std::size_t i = 0; i < config->modes.size(); ++i)
        m_modeRows.push_back({numbers[i], Wide(config->modes[i].name)});
    m_mode = 0;
    SelectMode(!skipStore);
}

void PrintModeModel::SelectMode(bool storeFirst)
{
    if (storeFirst)
        Store();
    Attach();
}

void PrintModeModel::Attach()
{
    m_attached = m_mode < 0 ? kNoMode : m_modeRows[static_cast<std::size_t>(m_mode)].number;
    RebuildDataRows();
    m_page.Load(Attached());
}

void PrintModeModel::Store()
{
    if (!m_page.Store(Attached()))
        Prompt();
}

void PrintModeModel::RebuildDataRows()
{
    m_dataRows.clear();
    refhost::PrintMode* const mode = Attached();
    if (!mode)
        return;
    for (std::uint32_t row = 0; row < m_machine.headLayouts.size(); ++row)
        if (!m_machine.headLayouts[row].dataModes.empty())
            m_dataRows.push_back(MakeDataRow(row, *mode));
}

PrintModeModel::DataRow PrintModeModel::MakeDataRow(std::uint32_t row, refhost::PrintMode& mode) const
{
    const refhost::HeadLayout& head = m_machine.headLayouts[row];
    std::vector<std::uint8_t>& stored = mode.headDataModes;
    if (row < stored.size() && stored[row] == 0)
        stored[row] = refhost::NO_DATA_MODE;
    DataRow result{row, head.id, L"No", {L"No"}};
    for (std::size_t k = 1; k < head.dataModes.size(); ++k)
    {
        const std::wstring name = Wide(head.dataModes[k]);
        if (std::find(result.options.begin(), result.options.end(), name) == result.options.end())
            result.options.push_back(name);
        if (row < stored.size() && stored[row] == k)
            result.value = name;
    }
    return result;
}

void PrintModeModel::ChooseDataMode(std::size_t dataRow, const std::wstring& option)
{
    m_dataRows[dataRow].value = option;
    const std::uint16_t id = m_dataRows[dataRow].headId;
    const auto head = std::find_if(m_machine.headLayouts.begin(), m_machine.headLayouts.end(),
                                   [=](const refhost::HeadLayout& each) { return each.id == id; });
    const auto mode = std::find_if(head->dataModes.begin(), head->dataModes.end(),
                                   [&](const std::string& name) { return EqualsIgnoringCase(Wide(name), option); });
    const bool isNone = EqualsIgnoringCase(option, L"No");
    if (!isNone && mode == head->dataModes.end())
        return;
    const auto row = static_cast<std::size_t>(head - m_machine.headLayouts.begin());
    std::vector<std::uint8_t>& stored = Attached()->headDataModes;
    if (row >= stored.size())
        stored.resize(row + 1, refhost::NO_DATA_MODE);
    stored[row] = isNone ? refhost::NO_DATA_MODE : static_cast<std::uint8_t>(mode - head->dataModes.begin());
}

ConfigFields PrintModeModel::OpenedConfig() const
{
    if (!m_isRenaming)
        return {L"[720 X 720]", L"720", L"720", L"0", L"0", true};
    return FieldsOf(m_machine.configurations[static_cast<std::size_t>(m_config)], m_machine.codePage);
}

bool PrintModeModel::ConfirmConfig(const ConfigFields& fields)
{
    const std::optional<ConfigValues> values = AcceptedConfig(fields);
    if (!values)
    {
        Prompt();
        return false;
    }
    Closed();
    if (m_isRenaming)
        Rename(values->name);
    else
        AddConfig(*values);
    return true;
}

void PrintModeModel::AddConfig(const ConfigValues& values)
{
    refhost::PrintConfig config;
    config.name = Narrow(values.name);
    config.xResolution = static_cast<std::uint16_t>(values.xResolution);
    config.yResolution = static_cast<std::uint16_t>(values.yResolution);
    config.colorCount = static_cast<std::uint8_t>(values.colorCount);
    config.dotBits = static_cast<std::uint8_t>(values.dotBits);
    config.enabled = values.enabled;
    m_machine.configurations.push_back(config);
    m_numbers.emplace_back();
    m_configRows.push_back(ConfigRow(config, ReadAsWide(config.name)));
    m_config = Configs() - 1;
    FillModes(false);
}

void PrintModeModel::Rename(const std::wstring& name)
{
    refhost::PrintConfig& config = *SelectedConfig();
    if (name == Wide(config.name))
        return;
    config.name = Narrow(name);
    FillConfigs(m_config);
}

void PrintModeModel::DeleteConfig()
{
    if (m_config < 0)
        return;
    const int index = m_config;
    m_machine.configurations.erase(m_machine.configurations.begin() + index);
    m_numbers.erase(m_numbers.begin() + index);
    m_configRows.erase(m_configRows.begin() + index);
    RemoveSchemesOf(m_machine.factorySchemes, index);
    RemoveSchemesOf(m_machine.userSchemes, index);
    m_config = std::min(index, Configs() - 1);
    FillModes(true);
}

void PrintModeModel::AddMode()
{
    refhost::PrintConfig* const config = SelectedConfig();
    if (!config)
        return;
    refhost::PrintMode mode;
    mode.name = config->name + "-" + std::to_string(config->modes.size() + 1);
    config->modes.push_back(mode);
    m_numbers[static_cast<std::size_t>(m_config)].push_back(m_nextNumber);
    m_modeRows.push_back({m_nextNumber++, Wide(mode.name)});
    m_mode = Modes() - 1;
    SelectMode(true);
}

void PrintModeModel::DeleteMode()
{
    refhost::PrintConfig* const config = SelectedConfig();
    if (!config || m_mode < 0)
        return;
    std::vector<ModeNumber>& numbers = m_numbers[static_cast<std::size_t>(m_config)];
    const auto number = std::find(numbers.begin(), numbers.end(), m_modeRows[static_cast<std::size_t>(m_mode)].number);
    config->modes.erase(config->modes.begin() + (number - numbers.begin()));
    numbers.erase(number);
    m_modeRows.erase(m_modeRows.begin() + m_mode);
    m_mode = std::min(m_mode, Modes() - 1);
    Attach();
}

// A moved line shows the mode's name as it is now.
void PrintModeModel::MoveMode(int step)
{
    const int target = m_mode + step;
    if (m_mode < 0 || target < 0 || target >= Modes())
        return;
    ModeRow& selected = m_modeRows[static_cast<std::size_t>(m_mode)];
    ModeRow& other = m_modeRows[static_cast<std::size_t>(target)];
    ModeRow& moved = step < 0 ? selected : other;
    moved.text = Wide(FindMode(moved.number)->name);
    std::swap(selected, other);
    m_mode = target;
    SelectMode(true);
}

refhost::PrintConfig* PrintModeModel::SelectedConfig()
{
    return m_config < 0 ? nullptr : &m_machine.configurations[static_cast<std::size_t>(m_config)];
}

refhost::PrintMode* PrintModeModel::FindMode(ModeNumber number)
{
    for (std::size_t config = 0; config < m_numbers.size(); ++config)
        for (std::size_t mode = 0; mode < m_numbers[config].size(); ++mode)
            if (m_numbers[config][mode] == number)
                return &m_machine.configurations[config].modes[mode];
    return nullptr;
}

std::wstring PrintModeModel::ConfigRow(const refhost::PrintConfig& config, const std::wstring& name) const
{
    return name + L" [" + std::to_wstring(config.xResolution) + L"X" + std::to_wstring(config.yResolution) + L"][" +
           std::to_wstring(config.colorCount) + L"C][" + std::to_wstring(config.dotBits) + L"B]";
}

std::vector<Shown> PrintModeModel::Display() const
{
    Texts modes;
    for (const ModeRow& row : m_modeRows)
        modes.push_back(row.text);
    std::vector<Shown> display = {
        ShownRows(IDD_PRINT_MODE, IDC_LIST_CFG, m_configRows), ShownRow(IDD_PRINT_MODE, IDC_LIST_CFG, m_config),
        ShownRows(IDD_PRINT_MODE, IDC_LIST_MODE, modes), ShownRow(IDD_PRINT_MODE, IDC_LIST_MODE, m_mode)};
    m_page.AddTo(display);
    return display;
}
