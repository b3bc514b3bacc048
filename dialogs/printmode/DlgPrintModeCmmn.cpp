#include "dialogs/printmode/DlgPrintModeCmmn.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/PassCounts.h"
#include "dialogs/base/Rows.h"
#include "host/IHostData.h"
#include "host/IInkGroup.h"
#include "host/IInkGroupTable.h"
#include "host/IPrintMode.h"
#include "host/IXResolution.h"
#include "host/IXResolutionList.h"
#include "resources/resource.h"

#include <cwchar>

namespace
{
constexpr int MAX_NAME_CHARS = 60;

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
    for (EdgeRow* pRow : {&m_front, &m_back})
    {
        DDX_Control(pDX, pRow->nGroupId, pRow->cmbGroup);
        DDX_Control(pDX, pRow->nSwitchId, pRow->cmbSwitch);
    }
    for (DotRow* pRow : {&m_small, &m_medium, &m_large})
        DDX_Control(pDX, pRow->nGroupId, pRow->cmbGroup);
    DDX_Text(pDX, IDC_EDIT_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, MAX_NAME_CHARS);
    for (DotRow* pRow : {&m_small, &m_medium, &m_large})
        DDX_Text(pDX, pRow->nValueId, pRow->fValue);
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

void CDlgPrintModeCmmn::AttachMode(IPrintMode* pMode)
{
    m_pMode = pMode;
    m_strRefused.Empty(); // with each visit of a mode the operator is told again
    LoadFromMode();
}

void CDlgPrintModeCmmn::LoadFromMode()
{
    if (!m_pMode)
        return;
    FillXResolutions();
    FillGroups();
    for (DotRow* pRow : {&m_small, &m_medium, &m_large})
        ReadDot(*pRow);
    for (EdgeRow* pRow : {&m_front, &m_back})
        ShowEdge(*pRow);
    SelectPassCount(m_pMode->GetPassCount());
    m_strName = HostText(m_pMode->GetName());
    m_cmbEnable.SetCurSel(m_pMode->GetDisabled() ? SWITCH_OFF : SWITCH_ON);
    m_cmbResident.SetCurSel(m_pMode->GetResident());
    UpdateData(FALSE);
}

void CDlgPrintModeCmmn::StoreToMode()
{
    if (!m_pMode || !m_hWnd)
        return;
    ReadValues();
    CString strPass;
    m_cmbPass.GetLBText(m_cmbPass.GetCurSel(), strPass);
    m_pMode->SetPassCount(static_cast<std::int32_t>(std::wcstol(strPass, nullptr, 10)));
    m_pMode->SetXResolutionIndex(m_cmbXDpi.GetCurSel());
    if (m_strName.GetLength() <= MAX_NAME_CHARS) // a longer one was refused
        SetHostName(*m_pMode, m_strName);
    m_pMode->SetDisabled(m_cmbEnable.GetCurSel() == SWITCH_OFF);
    m_pMode->SetResident(static_cast<std::uint8_t>(m_cmbResident.GetCurSel()));
}

void CDlgPrintModeCmmn::FillSwitch(CComboBox& combo, int nSelect)
{
    combo.AddString(GetLanguageText(L"DISABLE", L""));
    combo.AddString(GetLanguageText(L"ENABLE", L""));
    combo.SetCurSel(nSelect);
}

void CDlgPrintModeCmmn::FillFixedLists()
{
    FillSwitch(m_cmbEnable, SWITCH_ON);
    for (LPCTSTR pszPassCount : PASS_COUNTS)
        m_cmbPass.AddString(pszPassCount);
    m_cmbPass.SetCurSel(0);
    FillSwitch(m_cmbResident, SWITCH_OFF);
    FillSwitch(m_front.cmbSwitch, SWITCH_OFF);
    FillSwitch(m_back.cmbSwitch, SWITCH_OFF);
}

void CDlgPrintModeCmmn::FillXResolutions()
{
    FillNames(m_cmbXDpi, GetHostContext().pData->GetXResolutionList());
    const int nIndex = m_pMode->GetXResolutionIndex();
    m_cmbXDpi.SetCurSel(nIndex >= 0 && nIndex < m_cmbXDpi.GetCount() ? nIndex : 0);
}

void CDlgPrintModeCmmn::FillGroups()
{
    for (CComboBox* pCombo :
         {&m_front.cmbGroup, &m_back.cmbGroup, &m_small.cmbGroup, &m_medium.cmbGroup, &m_large.cmbGroup})
    {
        FillNames(*pCombo, GetHostContext().pData->GetInkGroups());
        pCombo->SetCurSel(0);
    }
}

void CDlgPrintModeCmmn::SelectPassCount(int nPassCount)
{
    CString strPass;
    strPass.Format(L"%d", nPassCount);
    if (m_cmbPass.SelectString(-1, strPass) == CB_ERR)
        m_cmbPass.SetCurSel(0);
}

void CDlgPrintModeCmmn::ReadDot(DotRow& row)
{
    const int nGroup = row.cmbGroup.GetCurSel();
    row.fValue = nGroup >= 0 ? (m_pMode->*row.pfnGet)(static_cast<std::uint32_t>(nGroup)) : 0;
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
    const int nGroup = row.cmbGroup.GetCurSel();
    if (nGroup >= 0)
        (m_pMode->*row.pfnSet)(row.fValue, static_cast<std::uint32_t>(nGroup));
}

void CDlgPrintModeCmmn::ShowEdge(EdgeRow& row)
{
    const int nGroup = row.cmbGroup.GetCurSel();
    if (!m_pMode)
        return;
    const bool bOn = nGroup >= 0 && (m_pMode->*row.pfnGet)(static_cast<std::uint32_t>(nGroup)) != 0;
    row.cmbSwitch.SetCurSel(bOn ? SWITCH_ON : SWITCH_OFF);
}

void CDlgPrintModeCmmn::WriteEdge(EdgeRow& row)
{
    const int nGroup = row.cmbGroup.GetCurSel();
    if (m_pMode && nGroup >= 0)
        (m_pMode->*row.pfnSet)(row.cmbSwitch.GetCurSel() == SWITCH_ON, static_cast<std::uint32_t>(nGroup));
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
    CString strAll;
    for (int nId : {IDC_EDIT_NAME, IDC_EDIT_SMALL, IDC_EDIT_MEDIUM, IDC_EDIT_LARGE})
    {
        CString strText;
        GetDlgItem(nId)->GetWindowText(strText);
        strAll += strText;
        strAll += L"\n";
    }
    return strAll;
}
