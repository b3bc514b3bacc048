#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxdialogex.h>

#include <cstdint>

class IPrintMode;

// First page of the print-mode editor: the general settings of the attached mode and its feathering compensation.
// General settings reach the host when the editor has the page store them; a compensation value when its field loses
// the focus, a compensation switch when it changes.
class CDlgPrintModeCmmn : public CDialogEx, public CDlgBase
{
public:
    CDlgPrintModeCmmn();

    // The mode stays the host's; null leaves the controls as they are.
    void AttachMode(IPrintMode* mode);
    IPrintMode* GetAttachedMode() const { return m_pMode; }
    void LoadFromMode();
    void StoreToMode();
    // The operator was already told that a text of the fields, as they stand, cannot be used.
    bool IsRefused() const { return EditTexts() == m_strRefused; }

    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    void OnSmallGroupChange() { ShowDot(m_small); }
    void OnMediumGroupChange() { ShowDot(m_medium); }
    void OnLargeGroupChange() { ShowDot(m_large); }
    void OnSmallKillFocus() { WriteDot(m_small); }
    void OnMediumKillFocus() { WriteDot(m_medium); }
    void OnLargeKillFocus() { WriteDot(m_large); }
    void OnFrontGroupChange() { ShowEdge(m_front); }
    void OnBackGroupChange() { ShowEdge(m_back); }
    void OnFrontChange() { WriteEdge(m_front); }
    void OnBackChange() { WriteEdge(m_back); }

    DECLARE_MESSAGE_MAP()

private:
    // The compensation of one dot size: an ink group and the value of that group.
    struct DotRow
    {
        int groupId;
        int valueId;
        float (IPrintMode::*get)(std::uint32_t group);
        void (IPrintMode::*set)(float value, std::uint32_t group);
        CComboBox groups{};
        float value = 0;
    };

    // The compensation of one edge: an ink group and the switch of that group.
    struct EdgeRow
    {
        int groupId;
        int switchId;
        std::uint8_t (IPrintMode::*get)(std::uint32_t group);
        void (IPrintMode::*set)(std::int32_t on, std::uint32_t group);
        CComboBox groups{};
        CComboBox onOff{};
    };

    void FillSwitch(CComboBox& combo, int selectedRow);
    void FillFixedLists();
    void FillXResolutions();
    void FillGroups();
    void SelectPassCount(int passCount);
    int SelectedPassCount() const;
    void ReadDot(DotRow& row);
    void ShowDot(DotRow& row);
    void WriteDot(DotRow& row);
    void ShowEdge(EdgeRow& row);
    void WriteEdge(EdgeRow& row);

    void ReadValues();
    CString EditTexts() const;

    IPrintMode* m_pMode = nullptr;
    CComboBox m_cmbEnable;
    CComboBox m_cmbPass;
    CComboBox m_cmbXDpi;
    CComboBox m_cmbResident;
    DotRow m_small;
    DotRow m_medium;
    DotRow m_large;
    EdgeRow m_front;
    EdgeRow m_back;
    CString m_strName;
    CString m_strRefused; // the edits' texts that the operator was already told of
};
