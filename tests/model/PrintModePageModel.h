#pragma once

#include "refhost/Machine.h"
#include "tests/model/EditorModel.h"

#include <array>

// The common page of the print-mode editor: what its controls show and what they make of the attached mode.
class PrintModePageModel
{
public:
    explicit PrintModePageModel(const refhost::Machine& machine);

    // With a null mode nothing changes.
    void Load(const refhost::PrintMode* mode);
    // False where a value was refused; the others are stored all the same.
    [[nodiscard]] bool Store(refhost::PrintMode* mode);

    bool IsRefused() const;

    // The following do nothing to a null mode.
    [[nodiscard]] bool LeaveValue(int editId, refhost::PrintMode* mode);
    void ChangeSelection(int comboId, int row, refhost::PrintMode* mode);
    void ChangeText(int editId, const std::wstring& text);

    void AddTo(std::vector<Shown>& display) const;

private:
    using Values = std::vector<float> refhost::PrintMode::*;
    using Switches = std::vector<bool> refhost::PrintMode::*;

    // A compensation value: its field shows the value for the group in its combo box.
    struct Value
    {
        int group;
        int edit;
        Values stored;
        int groupRow = -1;
        std::wstring text = L"0";
        float member = 0;
    };

    struct Switch
    {
        int group;
        int combo;
        Switches stored;
        int groupRow = -1;
        int row = 0;
    };

    void ShowGroup(Value& value, int row, const refhost::PrintMode* mode);
    void ShowGroup(Switch& each, int row, const refhost::PrintMode* mode);
    void TurnSwitch(Switch& each, int row, refhost::PrintMode* mode);
    int FirstGroup() const;
    void ShowMembers();
    bool TakeMembers();
    std::wstring AllTexts() const;
    bool IsNameTaken() const;

    const refhost::Machine& m_machine;
    int m_enabledRow = 1;
    int m_passRow = 0;
    int m_resolutionRow = -1;
    int m_residentRow = 0;
    std::wstring m_nameText;
    std::wstring m_name;
    std::wstring m_refused = L"nothing";
    std::array<Value, 3> m_values;
    std::array<Switch, 2> m_switches;
};
