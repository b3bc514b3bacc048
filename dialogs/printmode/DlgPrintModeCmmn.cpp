#include "dialogs/printmode/DlgPrintModeCmmn.h"

#include "dialogs/base/Controls.h"
#include "dialogs/data/Ink.h"
#include "dialogs/data/Machine.h"
#include "dialogs/data/NumberText.h"
#include "dialogs/data/PrintModes.h"
#include "resources/resource.h"

#include <cwchar>
#include <string>

namespace
{
// Rows of a switch list.
constexpr int SWITCH_OFF = 0;
constexpr int SWITCH_ON = 1;
} // namespace

CDlgPrintModeCmmn::CDlgPrintModeCmmn()
    : CDialogEx(IDD_PRINT_MODE_CMMN), m_small{IDC_CMB_SMALL_GROUP, IDC_EDIT_SMALL, &IPrintMode::GetSmallDotCompensation,
                                              &IPrintMode::SetSmallDotCompensation},
      m_medium{IDC_CMB_MEDIUM_GROUP, IDC_EDIT_MEDIUM, &IPrintMode::GetMediumDotCompensation,
               &IPrintMode::SetMediumDotCompensation},
      m_large{IDC_CMB_LARGE_GROUP, IDC_EDIT_LARGE, &IPrintMode::GetLargeDotCompensation,
              &IPrintMode::SetLargeDotCompensation},
      m_front{IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT, &IPrintMode::GetFrontCompensation, &IPrintMode::SetFrontCompensation},
      m_back{IDC_CMB_BACK_GROUP, IDC_CMB_BACK, &IPrintMode::GetBackCompensation, &IPrintMode::SetBackCompensation}
{
}

void CDlgPrintModeCmmn::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_ENABLE, m_cmbEnable);
    DDX_Control(pDX, IDC_CMB_PASS, m_cmbPass);
    DDX_Control(pDX, IDC_CMB_XDPI, m_cmbXDpi);
    DDX_Control(pDX, IDC_CMB_RESIDENT, m_cmbResident);
    for (EdgeRow* row : {&m_front, &m_back})
    {
        DDX_Control(pDX, row->groupId, row->groups);
        DDX_Control(pDX, row->switchId, row->onOff);
    }
    for (DotRow* row : {&m_small, &m_medium, &m_large})
        DDX_Control(pDX, row->groupId, row->groups);
    DDX_Text(pDX, IDC_EDIT_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, MAX_NAME_CHARS);
    for (DotRow* row : {&m_small, &m_medium, &m_large})
        DDX_Text(pDX, row->valueId, row->value);
}

BEGIN_MESSAGE_MAP(CDlgPrintModeCmmn, CDialogEx)
    ON_CBN_SELCHANGE(IDC_CMB_SMALL_GROUP, &CDlgPrintModeCmmn::OnSmallGroupChange)
    ON_CBN_SELCHANGE(IDC_CMB_MEDIUM_GROUP, &CDlgPrintModeCmmn::OnMediumGroupChange)
    ON_CBN_SELCHANGE(IDC_CMB_LARGE_GROUP, &CDlgPrintModeCmmn::OnLargeGroupChange)
    ON_EN_KILLFOCUS(IDC_EDIT_SMALL, &CDlgPrintModeCmmn::OnSmallKillFocus)
    ON_EN_KILLFOCUS(IDC_EDIT_MEDIUM, &CDlgPrintModeCmmn::OnMediumKillFocus)
    ON_EN_KILLFOCUS(IDC_EDIT_LARGE, &CDlgPrintModeCmmn::OnLargeKillFocus)
    ON_CBN_SELCHANGE(IDC_CMB_FRONT_GROUP, &CDlgPrintModeCmmn::OnFrontGroupChange)
    ON_CBN_SELCHANGE(IDC_CMB_BACK_GROUP, &CDlgPrintModeCmmn::OnBackGroupChange)
    ON_CBN_SELCHANGE(IDC_CMB_FRONT, &CDlgPrintModeCmmn::OnFrontChange)
    ON_CBN_SELCHANGE(IDC_CMB_BACK, &CDlgPrintModeCmmn::OnBackChange)
END_MESSAGE_MAP()

BOOL CDlgPrintModeCmmn::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_MODE", this);
    FillFixedLists();
    return TRUE;
}

int CDlgPrintModeCmmn::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_NAME, L"IDC_STATIC_NAME", L""},
        {IDC_STATIC_XDPI, L"IDC_STATIC_XDPI", L""},
        {IDC_STATIC_PASS, L"IDC_STATIC_PASS", L""},
        {IDC_STATIC_ENABLE, L"IDC_STATIC_ENABLE", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintModeCmmn::AttachMode(IPrintMode* mode)
{
    m_pMode = mode;
    m_strRefused.Empty(); // with each visit of a mode the operator is told again
    LoadFromMode();
}

void CDlgPrintModeCmmn::LoadFromMode()
{
    if (!m_pMode)
        return;
    FillXResolutions();
    FillGroups();
    for (DotRow* row : {&m_small, &m_medium, &m_large})
        ReadDot(*row);
    for (EdgeRow* row : {&m_front, &m_back})
        ShowEdge(*row);
    SelectPassCount(m_pMode->GetPassCount());
    m_strName = HostText(m_pMode->GetName()).c_str();
    m_cmbEnable.SetCurSel(m_pMode->GetDisabled() ? SWITCH_OFF : SWITCH_ON);
    m_cmbResident.SetCurSel(m_pMode->GetResident());
    UpdateData(FALSE);
}

void CDlgPrintModeCmmn::StoreToMode()
{
    if (!m_pMode || !m_hWnd)
        return;
    ReadValues();
    m_pMode->SetPassCount(SelectedPassCount());
    m_pMode->SetXResolutionIndex(m_cmbXDpi.GetCurSel());
    if (m_strName.GetLength() <= MAX_NAME_CHARS) // a longer one was refused
        SetHostName(*m_pMode, m_strName);
    m_pMode->SetDisabled(m_cmbEnable.GetCurSel() == SWITCH_OFF);
    m_pMode->SetResident(static_cast<std::uint8_t>(m_cmbResident.GetCurSel()));
}

void CDlgPrintModeCmmn::FillSwitch(CComboBox& combo, int selectedRow)
{
    combo.AddString(GetLanguageText(L"DISABLE", L""));
    combo.AddString(GetLanguageText(L"ENABLE", L""));
    combo.SetCurSel(selectedRow);
}

void CDlgPrintModeCmmn::FillFixedLists()
{
    FillSwitch(m_cmbEnable, SWITCH_ON);
    for (const wchar_t* passCount : PASS_COUNTS)
        m_cmbPass.AddString(passCount);
    m_cmbPass.SetCurSel(0);
    FillSwitch(m_cmbResident, SWITCH_OFF);
    FillSwitch(m_front.onOff, SWITCH_OFF);
    FillSwitch(m_back.onOff, SWITCH_OFF);
}

void CDlgPrintModeCmmn::FillXResolutions()
{
    FillNames(m_cmbXDpi, HostData().GetXResolutionList());
    const int index = m_pMode->GetXResolutionIndex();
    m_cmbXDpi.SetCurSel(index >= 0 && index < m_cmbXDpi.GetCount() ? index : 0);
}

void CDlgPrintModeCmmn::FillGroups()
{
    for (CComboBox* combo : {&m_front.groups, &m_back.groups, &m_small.groups, &m_medium.groups, &m_large.groups})
    {
        FillNames(*combo, HostData().GetInkGroups());
        combo->SetCurSel(0);
    }
}

// A count that is no row's is shown by the first row that begins with it.
void CDlgPrintModeCmmn::SelectPassCount(int passCount)
{
    if (m_cmbPass.SelectString(-1, NumberText(passCount).c_str()) == CB_ERR)
        m_cmbPass.SetCurSel(0);
}

int CDlgPrintModeCmmn::SelectedPassCount() const
{
    CString text;
    m_cmbPass.GetLBText(m_cmbPass.GetCurSel(), text);
    return static_cast<int>(std::wcstol(text, nullptr, 10));
}

void CDlgPrintModeCmmn::ReadDot(DotRow& row)
{
    const int group = row.groups.GetCurSel();
    row.value = group >= 0 ? (m_pMode->*row.get)(static_cast<std::uint32_t>(group)) : 0;
}

void CDlgPrintModeCmmn::ShowDot(DotRow& row)
{
    if (!m_pMode)
        return;
    ReadDot(row);
    UpdateData(FALSE);
}

void CDlgPrintModeCmmn::WriteDot(DotRow& row)
{
    if (!m_pMode)
        return;
    if (!UpdateData(TRUE))
        m_strRefused = EditTexts();
    const int group = row.groups.GetCurSel();
    if (group >= 0)
        (m_pMode->*row.set)(row.value, static_cast<std::uint32_t>(group));
}

void CDlgPrintModeCmmn::ShowEdge(EdgeRow& row)
{
    const int group = row.groups.GetCurSel();
    if (!m_pMode)
        return;
    const bool on = group >= 0 && (m_pMode->*row.get)(static_cast<std::uint32_t>(group)) != 0;
    row.onOff.SetCurSel(on ? SWITCH_ON : SWITCH_OFF);
}

void CDlgPrintModeCmmn::WriteEdge(EdgeRow& row)
{
    const int group = row.groups.GetCurSel();
    if (m_pMode && group >= 0)
        (m_pMode->*row.set)(row.onOff.GetCurSel() == SWITCH_ON, static_cast<std::uint32_t>(group));
}

// The operator hears of a refused text once: the field that lost the focus has said it already when the same texts
// are stored.
void CDlgPrintModeCmmn::ReadValues()
{
    if (!IsRefused())
        UpdateData(TRUE);
    else
        GetDlgItem(IDC_EDIT_NAME)->GetWindowText(m_strName);
}

CString CDlgPrintModeCmmn::EditTexts() const
{
    CString all;
    for (int id : {IDC_EDIT_NAME, IDC_EDIT_SMALL, IDC_EDIT_MEDIUM, IDC_EDIT_LARGE})
    {
        CString text;
        GetDlgItem(id)->GetWindowText(text);
        all += text;
        all += L"\n";
    }
    return all;
}
