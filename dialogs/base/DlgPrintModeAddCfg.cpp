#include "dialogs/base/DlgPrintModeAddCfg.h"

#include "dialogs/base/HostText.h"
#include "host/IPrintConfig.h"
#include "resources/resource.h"

namespace
{
constexpr int MAX_NAME_CHARS = 60;
} // namespace

CDlgPrintModeAddCfg::CDlgPrintModeAddCfg() : CDialogEx(IDD_PRINT_MODE_ADD_CFG), m_strName(L"[720 X 720]") {}

void CDlgPrintModeAddCfg::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_EDIT_CFG_COLORS, m_nColorCount);
    DDX_Text(pDX, IDC_EDIT_CFG_DOT_BITS, m_nDotBits);
    DDX_Text(pDX, IDC_EDIT_CFG_XDPI, m_nXResolution);
    DDX_Text(pDX, IDC_EDIT_CFG_YDPI, m_nYResolution);
    DDX_Text(pDX, IDC_EDIT_CFG_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, MAX_NAME_CHARS);
    DDX_Check(pDX, IDC_CHECK_CFG_ENABLE, m_nEnabled);
}

BOOL CDlgPrintModeAddCfg::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    EnableFields();
    UpdateData(FALSE);
    return TRUE;
}

void CDlgPrintModeAddCfg::ReadFrom(IPrintConfig& config)
{
    m_nXResolution = config.GetXResolution();
    m_nYResolution = config.GetYResolution();
    m_nColorCount = config.GetColorCount();
    m_nDotBits = config.GetDotBits();
    m_nEnabled = config.GetEnabled() != 0 ? BST_CHECKED : BST_UNCHECKED;
    m_strName = HostText(config.GetName());
}

void CDlgPrintModeAddCfg::WriteTo(IPrintConfig& config) const
{
    config.SetXResolution(m_nXResolution);
    config.SetYResolution(m_nYResolution);
    config.SetColorCount(m_nColorCount);
    config.SetDotBits(m_nDotBits);
    config.SetEnabled(m_nEnabled);
    SetHostName(config, m_strName);
}

void CDlgPrintModeAddCfg::OnOK()
{
    if (!m_bNameLocked)
    {
        if (!UpdateData(TRUE))
            return; // putting the old values back would lose what the operator typed
        m_strName.Trim();
        if (m_strName.IsEmpty())
            m_strName = NameFromValues();
        UpdateData(FALSE);
    }
    CDialogEx::OnOK();
}

void CDlgPrintModeAddCfg::EnableFields()
{
    if (CWnd* pName = GetDlgItem(IDC_EDIT_CFG_NAME))
        pName->EnableWindow(!m_bNameLocked);
    for (int nId :
         {IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS, IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
        if (CWnd* pField = GetDlgItem(nId))
            pField->EnableWindow(!m_bParamsLocked);
}

CString CDlgPrintModeAddCfg::NameFromValues() const
{
    CString strName;
    strName.Format(L"[%d X %d]", m_nXResolution, m_nYResolution);
    if (m_nColorCount != 0)
        strName.AppendFormat(L"[%d C]", m_nColorCount);
    if (m_nDotBits != 0)
        strName.AppendFormat(L"[%d B]", m_nDotBits);
    return strName;
}
