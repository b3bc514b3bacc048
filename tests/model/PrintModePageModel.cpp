#include "tests/model/PrintModePageModel.h"

#include "resources/resource.h"
#include "tests/model/HostText.h"

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr std::size_t kLongestName = 60;
const std::array<const char*, 8> kPassCounts = {"1", "2", "3", "4", "6", "8", "12", "16"};

int PassRow(int count)
{
    const std::string text = std::to_string(count);
    const auto found = std::find_if(kPassCounts.begin(), kPassCounts.end(),
                                    [&](const std::string& line) { return line.compare(0, text.size(), text) == 0; });
    return found == kPassCounts.end() ? 0 : static_cast<int>(found - kPassCounts.begin());
}

template <class T>
T ValueAt(const std::vector<T>& values, int index)
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < values.size() ? T(values[at]) : T();
}

// The host makes room for an index that it knows; -1 of an empty selection names nothing.
template <class T>
void PutAt(std::vector<T>& values, int index, T value)
{
    if (index < 0)
        return;
    const auto at = static_cast<std::size_t>(index);
    if (at >= values.size())
        values.resize(at + 1);
    values[at] = value;
}
} // namespace

PrintModePageModel::PrintModePageModel(const refhost::Machine& machine)
    : m_machine(machine), m_values{{{IDC_CMB_SMALL_GROUP, IDC_EDIT_SMALL, &refhost::PrintMode::smallDotCompensation},
                                    {IDC_CMB_MEDIUM_GROUP, IDC_EDIT_MEDIUM, &refhost::PrintMode::mediumDotCompensation},
                                    {IDC_CMB_LARGE_GROUP, IDC_EDIT_LARGE, &refhost::PrintMode::largeDotCompensation}}},
      m_switches{{{IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT, &refhost::PrintMode::frontCompensation},
                  {IDC_CMB_BACK_GROUP, IDC_CMB_BACK, &refhost::PrintMode::backCompensation}}}
{
}

void PrintModePageModel::Load(const refhost::PrintMode* mode)
{
    if (!mode)
        return;
    const int resolutions = static_cast<int>(m_machine.xResolutions.size());
    m_resolutionRow = mode->xResolutionIndex >= 0 && mode->xResolutionIndex < resolutions ? mode->xResolutionIndex
                      : resolutions > 0                                                   ? 0
                                                                                          : -1;
    for (Value& value : m_values)
    {
        value.groupRow = FirstGroup();
        value.member = ValueAt(mode->*value.stored, value.groupRow);
    }
    for (Switch& each : m_switches)
    {
        each.groupRow = FirstGroup();
        each.row = ValueAt(mode->*each.stored, each.groupRow) ? 1 : 0;
    }
    m_passRow = PassRow(mode->passCount);
    m_name = ToWide(mode->name, m_machine.codePage);
    m_enabledRow = mode->disabled ? 0 : 1;
    m_residentRow = mode->resident <= 1 ? mode->resident : -1;
    ShowMembers();
}

bool PrintModePageModel::Store(refhost::PrintMode* mode)
{
    if (!mode)
        return true;
    const bool taken = IsRefused() || TakeMembers();
    m_name = m_nameText;
    mode->passCount = static_cast<std::uint16_t>(std::atoi(kPassCounts[static_cast<std::size_t>(m_passRow)]));
    mode->xResolutionIndex = m_resolutionRow;
    if (IsNameTaken())
        mode->name = ToNarrow(m_name, m_machine.codePage);
    mode->disabled = m_enabledRow == 0;
    mode->resident = static_cast<std::uint8_t>(m_residentRow);
    return taken;
}

bool PrintModePageModel::LeaveValue(int editId, refhost::PrintMode* mode)
{
    const auto value =
        std::find_if(m_values.begin(), m_values.end(), [=](const Value& each) { return each.edit == editId; });
    if (!mode || value == m_values.end())
        return true;
    const bool taken = TakeMembers();
    if (!taken)
        m_refused = AllTexts();
    PutAt(mode->*value->stored, value->groupRow, value->member);
    return taken;
}

void PrintModePageModel::ChangeSelection(int comboId, int row, refhost::PrintMode* mode)
{
    for (auto [id, kept] : {std::pair{IDC_CMB_ENABLE, &m_enabledRow}, std::pair{IDC_CMB_PASS, &m_passRow},
                            std::pair{IDC_CMB_XDPI, &m_resolutionRow}, std::pair{IDC_CMB_RESIDENT, &m_residentRow}})
        if (comboId == id)
            *kept = row;
    for (Value& value : m_values)
        if (comboId == value.group)
            ShowGroup(value, row, mode);
    for (Switch& each : m_switches)
        if (comboId == each.group)
            ShowGroup(each, row, mode);
        else if (comboId == each.combo)
            TurnSwitch(each, row, mode);
}

void PrintModePageModel::ShowGroup(Value& value, int row, const refhost::PrintMode* mode)
{
    value.groupRow = row;
    if (!mode)
        return;
    value.member = ValueAt(mode->*value.stored, row);
    ShowMembers();
}

void PrintModePageModel::ShowGroup(Switch& each, int row, const refhost::PrintMode* mode)
{
    each.groupRow = row;
    if (mode)
        each.row = ValueAt(mode->*each.stored, row) ? 1 : 0;
}

void PrintModePageModel::TurnSwitch(Switch& each, int row, refhost::PrintMode* mode)
{
    each.row = row;
    if (mode)
        PutAt(mode->*each.stored, each.groupRow, row == 1);
}

void PrintModePageModel::ChangeText(int editId, const std::wstring& text)
{
    if (editId == IDC_EDIT_NAME)
        m_nameText = text;
    for (Value& value : m_values)
        if (editId == value.edit)
            value.text = text;
}

int PrintModePageModel::FirstGroup() const
{
    return m_machine.inkGroups.empty() ? -1 : 0;
}

void PrintModePageModel::ShowMembers()
{
    m_nameText = m_name;
    for (Value& value : m_values)
        value.text = FormatFloat(value.member);
}

// The first text that is refused ends it: the fields behind keep their members.
bool PrintModePageModel::TakeMembers()
{
    m_name = m_nameText;
    if (!IsNameTaken())
        return false;
    for (Value& value : m_values)
    {
        const std::optional<float> number = ParseFloat(value.text);
        if (!number)
            return false;
        value.member = *number;
    }
    return true;
}

// What was refused when a field was left is not asked for again when the same texts are stored.
bool PrintModePageModel::IsRefused() const
{
    return m_refused == AllTexts();
}

std::wstring PrintModePageModel::AllTexts() const
{
    Texts texts = {m_nameText};
    for (const Value& value : m_values)
        texts.push_back(value.text);
    return Joined(texts);
}

bool PrintModePageModel::IsNameTaken() const
{
    return m_name.size() <= kLongestName;
}

void PrintModePageModel::AddTo(std::vector<Shown>& display) const
{
    const int page = IDD_PRINT_MODE_CMMN;
    display.insert(display.end(),
                   {ShownRow(page, IDC_CMB_ENABLE, m_enabledRow), ShownRow(page, IDC_CMB_PASS, m_passRow),
                    ShownRow(page, IDC_CMB_XDPI, m_resolutionRow), ShownRow(page, IDC_CMB_RESIDENT, m_residentRow),
                    ShownText(page, IDC_EDIT_NAME, m_nameText)});
    for (const Value& value : m_values)
        display.insert(display.end(),
                       {ShownRow(page, value.group, value.groupRow), ShownText(page, value.edit, value.text)});
    for (const Switch& each : m_switches)
        display.insert(display.end(),
                       {ShownRow(page, each.group, each.groupRow), ShownRow(page, each.combo, each.row)});
}
