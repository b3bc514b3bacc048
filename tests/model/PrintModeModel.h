#pragma once

#include "tests/model/ConfigFields.h"
#include "tests/model/PrintModePageModel.h"

// The print-mode editor.
class PrintModeModel : public EditorModel
{
public:
    explicit PrintModeModel(const refhost::Machine& machine);

    void Hear(const Notice& notice) override;
    std::vector<Shown> Display() const override;

    // What the dialog for a configuration shows when it opens.
    ConfigFields OpenedConfig() const;
    // The operator has ended it by OK with this in its fields. False where it must stay open, with a prompt.
    bool ConfirmConfig(const ConfigFields& fields);
    void CancelConfig() { Closed(); }

    // The rows of the data page, while it shows a mode.
    struct DataRow
    {
        std::uint32_t row;
        std::uint16_t headId;
        std::wstring value;
        Texts options;
    };
    const std::vector<DataRow>& DataRows() const { return m_dataRows; }
    void ChooseDataMode(std::size_t dataRow, const std::wstring& option);
    bool ShowsMode() { return Attached() != nullptr; }

private:
    int Configs() const { return static_cast<int>(m_configRows.size()); }
    int Modes() const { return static_cast<int>(m_modeRows.size()); }

    // A mode keeps its number wherever it goes in its configuration.
    using ModeNumber = int;
    static constexpr ModeNumber kNoMode = -1;

    struct ModeRow
    {
        ModeNumber number;
        std::wstring text;
    };

    void HearCommand(int control, int code, int state);
    void Press(int button);
    void HearPage(const Notice& notice);
    void LeaveValue(int edit);
    void LeaveFocusedValue();

    void FillConfigs(int selection);
    void FillModes(bool skipStore);
    void SelectMode(bool storeFirst);
    void Attach();
    void RebuildDataRows();
    DataRow MakeDataRow(std::uint32_t row, refhost::PrintMode& mode) const;

    void AddConfig(const ConfigValues& values);
    void Rename(const std::wstring& name);
    void DeleteConfig();
    void AddMode();
    void DeleteMode();
    void MoveMode(int step);
    void Store();

    refhost::PrintConfig* SelectedConfig();
    refhost::PrintMode* FindMode(ModeNumber number);
    refhost::PrintMode* Attached() { return FindMode(m_attached); }
    std::wstring ConfigRow(const refhost::PrintConfig& config, const std::wstring& name) const;

    std::vector<std::vector<ModeNumber>> m_numbers; // of the modes of each configuration
    ModeNumber m_nextNumber = 0;
    Texts m_configRows;
    int m_config = -1;
    std::vector<ModeRow> m_modeRows;
    int m_mode = -1;
    ModeNumber m_attached = kNoMode;
    PrintModePageModel m_page;
    std::vector<DataRow> m_dataRows;
    bool m_isRenaming = false;
    int m_focusedField = 0;
};
