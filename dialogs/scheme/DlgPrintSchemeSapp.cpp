#include "dialogs/scheme/DlgPrintSchemeSapp.h"

#include "resources/resource.h"

#include <cwchar>

CDlgPrintSchemeSapp::CDlgPrintSchemeSapp() : CSchemePage(IDD_SCHEME_SAPP) {}

void CDlgPrintSchemeSapp::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_SMALL_MODE, m_cmbSmallMode);
    DDX_Text(pDX, IDC_EDIT_SMALL_OFFSET, m_nSmallOffset);
}

void CDlgPrintSchemeSapp::InitControls()
{
    FillSwitch(m_cmbSmallMode, L"", L"");
    m_cmbSmallMode.SetCurSel(m_nShownMode);
    UpdateCtrlState();
}

int CDlgPrintSchemeSapp::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_SMALL_MODE, L"IDC_STATIC_SMALL_MODE", L""},
        {IDC_STATIC_SMALL_OFFSET, L"IDC_STATIC_SMALL_OFFSET", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeSapp::UpdateCtrlState()
{
    if (!m_cmbSmallMode.GetSafeHwnd())
        return;
    EnableControl(m_cmbSmallMode, m_nSchemeId >= 0 && !m_bUserEditor);
    EnableControl(*GetDlgItem(IDC_EDIT_SMALL_OFFSET), IsEditable());
}

void CDlgPrintSchemeSapp::LoadFromScheme()
{
    if (m_nSchemeId < 0)
    {
        DropRefusedOffset();
        return;
    }
    if (IPrintScheme* scheme = FactorySchemeOf(m_nSchemeId))
    {
        m_nShownMode = GetField(*scheme, SchemeField::SmallFormatMode);
        m_cmbSmallMode.SetCurSel(m_nShownMode);
        m_nSmallOffset = GetField(*scheme, SchemeField::SmallFormatOffset);
    }
    UpdateData(FALSE);
}

// Alone among the pages this one writes a preset too, as required: what it showed goes back unchanged.
void CDlgPrintSchemeSapp::SaveToScheme()
{
    if (!UpdateData(TRUE))
        UpdateData(FALSE); // the value stays as it was, and shows again: a locked field must not ask a second time
    IPrintScheme* scheme = m_nSchemeId >= 0 ? FactorySchemeOf(m_nSchemeId) : nullptr;
    if (!scheme)
        return;
    SetField(*scheme, SchemeField::SmallFormatMode, m_bUserEditor ? m_nShownMode : m_cmbSmallMode.GetCurSel());
    SetField(*scheme, SchemeField::SmallFormatOffset, m_nSmallOffset);
}

// A scheme that is deleted takes the unsaved text of its offset along, but the field stays: now locked, it must not ask
// for a number.
void CDlgPrintSchemeSapp::DropRefusedOffset()
{
    CString text;
    GetDlgItem(IDC_EDIT_SMALL_OFFSET)->GetWindowText(text);
    wchar_t* end = nullptr;
    std::wcstol(text.Trim(), &end, 10);
    if (end == text.GetString() || *end != L'\0')
        UpdateData(FALSE);
}
