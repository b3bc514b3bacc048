#include "dialogs/scheme/DlgPrintSchemeElc.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/Rows.h"
#include "dialogs/scheme/DlgPrintSchemeCustomEclosion.h"
#include "dialogs/scheme/EclosionLevel.h"
#include "frame/ModalRunner.h"
#include "host/ICustomEclosionSet.h"
#include "host/IHostData.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int MAX_RANGE = 200;
constexpr int CUSTOM_ECLOSION_TYPE = 19;

// Types are stored in a byte; a table cannot offer more.
constexpr int MAX_TYPES = 255;

constexpr int RANGE_LABELS[] = {IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS, IDC_STATIC_RD_S, IDC_STATIC_RD_M,
                                IDC_STATIC_RD_L};
constexpr int RANGE_EDITS[] = {IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L};
constexpr int OTHER_CONTROLS[] = {IDC_CMB_DOT_MODE,   IDC_CMB_ELC_TYPE,        IDC_CMB_ELC_LEVEL,
                                  IDC_BTN_CUSTOM_ELC, IDC_SLIDER_CUSTOM_RANGE, IDC_CMB_HEAD_ELC_TYPE};
} // namespace

CDlgPrintSchemeElc::CDlgPrintSchemeElc() : CSchemePage(IDD_SCHEME_ELC) {}

void CDlgPrintSchemeElc::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_DOT_MODE, m_cmbDotMode);
    DDX_Control(pDX, IDC_CMB_CUSTOM_TYPE, m_cmbCustomType);
    DDX_Control(pDX, IDC_CMB_HEAD_ELC_TYPE, m_cmbHeadEclosionType);
    DDX_Control(pDX, IDC_CMB_ELC_LEVEL, m_cmbEclosionLevel);
    DDX_Control(pDX, IDC_CMB_ELC_TYPE, m_cmbEclosionType);
    DDX_Control(pDX, IDC_BTN_CUSTOM_ELC, m_btnCustomEclosion);
    DDX_Control(pDX, IDC_EDIT_CUSTOM_RANGE, m_editCustomRange);
    DDX_Control(pDX, IDC_SLIDER_CUSTOM_RANGE, m_sliderCustomRange);
    struct
    {
        int nId;
        int& nValue;
    } const ranges[] = {{IDC_EDIT_RANGE_L, m_nRangeL},
                        {IDC_EDIT_RANGE_M, m_nRangeM},
                        {IDC_EDIT_RANGE_S, m_nRangeS},
                        {IDC_EDIT_RANGE_SS, m_nRangeSS},
                        {IDC_EDIT_CUSTOM_RANGE, m_nCustomRange}};
    for (const auto& range : ranges)
    {
        DDX_Text(pDX, range.nId, range.nValue);
        DDV_MinMaxInt(pDX, range.nValue, 0, MAX_RANGE);
    }
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeElc, CSchemePage)
    ON_WM_HSCROLL()
    ON_BN_CLICKED(IDC_BTN_CUSTOM_ELC, &CDlgPrintSchemeElc::OnCustomEclosion)
    ON_CBN_SELCHANGE(IDC_CMB_ELC_TYPE, &CDlgPrintSchemeElc::OnTypeChange)
    ON_CBN_SELCHANGE(IDC_CMB_ELC_LEVEL, &CDlgPrintSchemeElc::OnLevelChange)
END_MESSAGE_MAP()

BOOL CDlgPrintSchemeElc::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    FillFixedLists();
    UpdateCtrlState();
    LoadFromScheme();
    // The custom dialog is reached through the eclosion type alone.
    ShowControls(std::initializer_list<int>{IDC_STATIC_TYPE_CUSTOM, IDC_CMB_CUSTOM_TYPE, IDC_BTN_CUSTOM_ELC}, false);
    return TRUE;
}

int CDlgPrintSchemeElc::ApplyLanguage()
{
    // This template has none of the first four.
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_NAME, L"IDC_STATIC_NAME", L""},
        {IDC_STATIC_XDPI, L"IDC_STATIC_XDPI", L""},
        {IDC_STATIC_PASS, L"IDC_STATIC_PASS", L""},
        {IDC_STATIC_ENABLE, L"IDC_STATIC_ENABLE", L""},
        {IDC_STATIC_DOT_MODE, L"IDC_STATIC_DOT_MODE", L""},
        {IDC_STATIC_RANGE_DEFAULT, L"IDC_STATIC_RANGE_DEFAULT", L""},
        {IDC_STATIC_RD_SS, L"IDC_STATIC_RD_SS", L""},
        {IDC_STATIC_RD_S, L"IDC_STATIC_RD_S", L""},
        {IDC_STATIC_RD_M, L"IDC_STATIC_RD_M", L""},
        {IDC_STATIC_RD_L, L"IDC_STATIC_RD_L", L""},
        {IDC_STATIC_TYPE, L"IDC_STATIC_TYPE", L""},
        {IDC_STATIC_RANGE_SELECT, L"IDC_STATIC_RANGE_SELECT", L""},
        {IDC_STATIC_RANGE_CUSTOM, L"IDC_STATIC_RANGE_CUSTOM", L""},
        {IDC_STATIC_HEAD_ELC_TYPE, L"IDC_STATIC_HEAD_ELC_TYPE", L""},
        {IDC_STATIC_TYPE_CUSTOM, L"IDC_STATIC_TYPE_CUSTOM", L""},
        {IDC_BTN_CUSTOM_ELC, L"IDC_BTN_CUSTOM_ELC", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeElc::UpdateCtrlState()
{
    if (!m_cmbDotMode.GetSafeHwnd())
        return;
    EnableControls(OTHER_CONTROLS, IsEditable());
    EnableControls(RANGE_EDITS, IsEditable());
    const bool bShowRanges = m_nSchemeId >= 0 && !m_bUserEditor;
    ShowControls(RANGE_LABELS, bShowRanges);
    ShowControls(RANGE_EDITS, bShowRanges);
}

void CDlgPrintSchemeElc::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    FillTypes();
    FillLevels();
    WithScheme([this](auto& scheme) {
        m_nCustomRange = scheme.GetCustomRange();
        m_nRangeSS = scheme.GetDefaultRangeSS();
        m_nRangeS = scheme.GetDefaultRangeS();
        m_nRangeM = scheme.GetDefaultRangeM();
        m_nRangeL = scheme.GetDefaultRangeL();
        m_cmbDotMode.SetCurSel(scheme.GetDotMode());
        m_cmbHeadEclosionType.SetCurSel(scheme.GetHeadEclosionType());
    });
    m_sliderCustomRange.SetPos(m_nCustomRange);
    m_bOpenCustomOnType = false;
    OnTypeChange();
    m_bOpenCustomOnType = true;
    OnLevelChange();
    UpdateData(FALSE);
}

void CDlgPrintSchemeElc::SaveToScheme()
{
    if (!IsEditable() || !UpdateData(TRUE))
        return;
    const auto byteOf = [](int nValue) { return static_cast<std::uint8_t>(nValue); };
    WithScheme([&](auto& scheme) {
        scheme.SetEclosionType(byteOf(SelectedData(m_cmbEclosionType)));
        scheme.SetEclosionLevel(LevelCodeOfRow(m_cmbEclosionLevel.GetCurSel()));
        scheme.SetCustomRange(byteOf(m_nCustomRange));
        scheme.SetDefaultRangeSS(byteOf(m_nRangeSS));
        scheme.SetDefaultRangeS(byteOf(m_nRangeS));
        scheme.SetDefaultRangeM(byteOf(m_nRangeM));
        scheme.SetDefaultRangeL(byteOf(m_nRangeL));
        scheme.SetDotMode(byteOf(m_cmbDotMode.GetCurSel()));
        scheme.SetHeadEclosionType(byteOf(m_cmbHeadEclosionType.GetCurSel()));
    });
    UpdateData(FALSE);
}

void CDlgPrintSchemeElc::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar && pScrollBar->m_hWnd == m_sliderCustomRange.m_hWnd)
    {
        m_nCustomRange = m_sliderCustomRange.GetPos();
        UpdateData(FALSE);
    }
    CSchemePage::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CDlgPrintSchemeElc::OnCustomEclosion()
{
    CDlgPrintSchemeCustomEclosion dialog;
    if (!IsEditable() || RunModal(&dialog, L"Quorvane.dll") != IDOK)
        return;
    WithScheme([](auto& scheme) {
        if (ICustomEclosionSet* pSet = GetHostContext().pData->GetCustomEclosionSet())
            scheme.SetCustomEclosionId(static_cast<std::uint32_t>(pSet->GetCurrentIndex()));
    });
}

// A new type enables the trackbar whatever the level is; only a new level or a load looks at the level.
void CDlgPrintSchemeElc::OnTypeChange()
{
    const bool bCustom = !IsPreset() && SelectedData(m_cmbEclosionType) == CUSTOM_ECLOSION_TYPE;
    const bool bEnable = !IsPreset() && !bCustom;
    EnableControl(m_cmbEclosionLevel, bEnable);
    EnableControl(m_sliderCustomRange, bEnable);
    if (bCustom && m_bOpenCustomOnType)
        OnCustomEclosion();
}

void CDlgPrintSchemeElc::OnLevelChange()
{
    EnableControl(m_sliderCustomRange, !IsPreset() && m_cmbEclosionLevel.GetCurSel() == LEVEL_ROW_CUSTOM);
}

void CDlgPrintSchemeElc::FillFixedLists()
{
    m_cmbDotMode.AddString(GetLanguageText(L"DOT_MODE1", L""));
    m_cmbDotMode.AddString(GetLanguageText(L"DOT_MODE2", L""));
    m_cmbDotMode.AddString(GetLanguageText(L"DOT_MODE3", L""));
    m_cmbDotMode.AddString(GetLanguageText(L"DOT_MODE4", L""));
    m_cmbDotMode.SetCurSel(0);
    m_sliderCustomRange.SetRange(0, MAX_RANGE);
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"Template mode", L""));
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"On off mode", L""));
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"Filter mode", L""));
    m_cmbHeadEclosionType.SetCurSel(0);
}

void CDlgPrintSchemeElc::FillTypes()
{
    const int nCurrent = ValueOf([](auto& scheme) { return scheme.GetEclosionType(); }, 0);
    int nSelect = -1;
    Refill(m_cmbEclosionType, [&] {
        const int nCount = std::min(ParamCount(TABLE_ECLOSION_TYPES), MAX_TYPES);
        for (int i = 0; i < nCount; ++i)
        {
            if (ParamValue(TABLE_ECLOSION_TYPES, i) == 0)
                continue;
            CString strKey;
            strKey.Format(L"ECL%d_ID", i);
            const int nRow = AddRow(m_cmbEclosionType, GetLanguageText(strKey, strKey), i);
            if (i == nCurrent)
                nSelect = nRow;
        }
    });
    m_cmbEclosionType.SetCurSel(nSelect);
}

void CDlgPrintSchemeElc::FillLevels()
{
    const bool bCustom = ParamValue(TABLE_CUSTOM_ECLOSION, 0) != 0;
    RefillUnlessFull(m_cmbEclosionLevel, LEVEL_ROW_CUSTOM + (bCustom ? 1 : 0), [&] {
        m_cmbEclosionLevel.AddString(GetLanguageText(L"CLOSE_ECLOSION", L"Close Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"LIGHT_ECLOSION", L"Light Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"NORMAL_ECLOSION", L"Normal Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"DEPTH_ECLOSION", L"Depth Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"SUPER_ECLOSION", L"Super Eclosion"));
        if (bCustom)
            m_cmbEclosionLevel.AddString(GetLanguageText(L"CUSTOM_ECLOSION", L"Custom Eclosion"));
    });
    m_cmbEclosionLevel.SetCurSel(LevelRowOfCode(ValueOf([](auto& scheme) { return scheme.GetEclosionLevel(); }, 0)));
}
