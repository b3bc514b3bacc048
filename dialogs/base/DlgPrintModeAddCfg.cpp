#include "dialogs/base/DlgPrintModeAddCfg.h"

#include "dialogs/data/HostText.h"
#include "resources/resource.h"

CDlgPrintModeAddCfg::CDlgPrintModeAddCfg() : CDialogEx(IDD_PRINT_MODE_ADD_CFG)
{
    SetValues(ConfigValues());
}

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

void CDlgPrintModeAddCfg::SetValues(const ConfigValues& values)
{
    m_nXResolution = values.xResolution;
    m_nYResolution = values.yResolution;
    m_nColorCount = values.colorCount;
    m_nDotBits = values.dotBits;
    m_nEnabled = values.enabled ? BST_CHECKED : BST_UNCHECKED;
    m_strName = values.name.c_str();
}

ConfigValues CDlgPrintModeAddCfg::GetValues() const
{
    ConfigValues values;
    values.xResolution = m_nXResolution;
    values.yResolution = m_nYResolution;
    values.colorCount = m_nColorCount;
    values.dotBits = m_nDotBits;
    values.enabled = m_nEnabled == BST_CHECKED;
    values.name = m_strName.GetString();
    return values;
}

void CDlgPrintModeAddCfg::OnOK()
{
    if (!m_bNameLocked)
    {
        if (!UpdateData(TRUE))
            return; // putting the old values back would lose what the operator typed
        m_strName.Trim();
        if (m_strName.IsEmpty())
            m_strName = NameFromValues(GetValues()).c_str();
        UpdateData(FALSE);
    }
    CDialogEx::OnOK();
}

void CDlgPrintModeAddCfg::EnableFields()
{
    GetDlgItem(IDC_EDIT_CFG_NAME)->EnableWindow(!m_bNameLocked);
    for (int id :
         {IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS, IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
        GetDlgItem(id)->EnableWindow(!m_bParamsLocked);
}
