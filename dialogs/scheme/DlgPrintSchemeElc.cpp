#include "dialogs/scheme/DlgPrintSchemeElc.h"

#include "dialogs/data/CustomEclosion.h"
#include "dialogs/data/EclosionLevel.h"
#include "dialogs/data/Machine.h"
#include "dialogs/scheme/DlgPrintSchemeCustomEclosion.h"
#include "frame/ModalRunner.h"
#include "mfc/ScopedValue.h"
#include "resources/resource.h"

namespace
{
constexpr int RANGE_LABELS[] = {IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS, IDC_STATIC_RD_S, IDC_STATIC_RD_M,
                                IDC_STATIC_RD_L};
constexpr int RANGE_EDITS[] = {IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L};
constexpr int OTHER_CONTROLS[] = {IDC_CMB_DOT_MODE,   IDC_CMB_ELC_TYPE,        IDC_CMB_ELC_LEVEL,
                                  IDC_BTN_CUSTOM_ELC, IDC_SLIDER_CUSTOM_RANGE, IDC_CMB_HEAD_ELC_TYPE};

constexpr RowView BY_LEVEL = {
    [](CComboBox& list, int code) { list.SetCurSel(LevelRowOfCode(code)); },
    [](const CComboBox& list) -> std::optional<int> { return LevelCodeOfRow(list.GetCurSel()); },
};
} // namespace

CDlgPrintSchemeElc::CDlgPrintSchemeElc() : CSchemePage(IDD_SCHEME_ELC)
{
    BindList(SchemeField::EclosionType, m_cmbEclosionType, BY_DATA);
    BindList(SchemeField::EclosionLevel, m_cmbEclosionLevel, BY_LEVEL);
    BindNumber(SchemeField::CustomRange, m_nCustomRange);
    BindNumber(SchemeField::DefaultRangeSS, m_nRangeSS);
    BindNumber(SchemeField::DefaultRangeS, m_nRangeS);
    BindNumber(SchemeField::DefaultRangeM, m_nRangeM);
    BindNumber(SchemeField::DefaultRangeL, m_nRangeL);
    BindList(SchemeField::DotMode, m_cmbDotMode, BY_POSITION);
    BindList(SchemeField::HeadEclosionType, m_cmbHeadEclosionType, BY_POSITION);
}

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
        int controlId;
        int& value;
    } const ranges[] = {{IDC_EDIT_RANGE_L, m_nRangeL},
                        {IDC_EDIT_RANGE_M, m_nRangeM},
                        {IDC_EDIT_RANGE_S, m_nRangeS},
                        {IDC_EDIT_RANGE_SS, m_nRangeSS},
                        {IDC_EDIT_CUSTOM_RANGE, m_nCustomRange}};
    for (const auto& range : ranges)
    {
        DDX_Text(pDX, range.controlId, range.value);
        DDV_MinMaxInt(pDX, range.value, 0, MAX_ECLOSION_RANGE);
    }
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeElc, CSchemePage)
    ON_WM_HSCROLL()
    ON_BN_CLICKED(IDC_BTN_CUSTOM_ELC, &CDlgPrintSchemeElc::OnCustomEclosion)
    ON_CBN_SELCHANGE(IDC_CMB_ELC_TYPE, &CDlgPrintSchemeElc::OnTypeChange)
    ON_CBN_SELCHANGE(IDC_CMB_ELC_LEVEL, &CDlgPrintSchemeElc::OnLevelChange)
END_MESSAGE_MAP()

void CDlgPrintSchemeElc::InitControls()
{
    FillFixedLists();
    // The custom dialog is reached through the eclosion type alone.
    ShowControls(std::initializer_list<int>{IDC_STATIC_TYPE_CUSTOM, IDC_CMB_CUSTOM_TYPE, IDC_BTN_CUSTOM_ELC}, false);
    UpdateCtrlState();
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
    const bool showRanges = m_nSchemeId >= 0 && !m_bUserEditor;
    ShowControls(RANGE_LABELS, showRanges);
    ShowControls(RANGE_EDITS, showRanges);
}

void CDlgPrintSchemeElc::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    FillTypes();
    FillLevels();
    if (!WithScheme([this](auto& scheme) { LoadFields(scheme); }))
        m_cmbEclosionLevel.SetCurSel(0);
    m_sliderCustomRange.SetPos(m_nCustomRange);
    {
        const CScopedValue<bool> loading(m_bOpenCustomOnType, false);
        OnTypeChange();
    }
    OnLevelChange();
    UpdateData(FALSE);
}

void CDlgPrintSchemeElc::SaveToScheme()
{
    if (!IsEditable() || !UpdateData(TRUE))
        return;
    WithScheme([this](auto& scheme) { SaveFields(scheme); });
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
        if (ICustomEclosionSet* set = HostData().GetCustomEclosionSet())
            SetField(scheme, SchemeField::CustomEclosionId, set->GetCurrentIndex());
    });
}

// A new type enables the trackbar whatever the level is; only a new level or a load looks at the level.
void CDlgPrintSchemeElc::OnTypeChange()
{
    const bool isCustom = !IsPreset() && SelectedNumber(m_cmbEclosionType) == CUSTOM_ECLOSION_TYPE;
    const bool enable = !IsPreset() && !isCustom;
    EnableControl(m_cmbEclosionLevel, enable);
    EnableControl(m_sliderCustomRange, enable);
    if (isCustom && m_bOpenCustomOnType)
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
    m_sliderCustomRange.SetRange(0, MAX_ECLOSION_RANGE);
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"Template mode", L""));
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"On off mode", L""));
    m_cmbHeadEclosionType.AddString(GetLanguageText(L"Filter mode", L""));
    m_cmbHeadEclosionType.SetCurSel(0);
}

void CDlgPrintSchemeElc::FillTypes()
{
    const int current = ValueOf(SchemeField::EclosionType, 0);
    int selected = -1;
    Refill(m_cmbEclosionType, [&] {
        const int count = EclosionTypeCount();
        for (int type = 0; type < count; ++type)
        {
            if (!OffersEclosionType(type))
                continue;
            CString key;
            key.Format(L"ECL%d_ID", type);
            const int row = AddRow(m_cmbEclosionType, GetLanguageText(key, key), type);
            if (type == current)
                selected = row;
        }
    });
    m_cmbEclosionType.SetCurSel(selected);
}

void CDlgPrintSchemeElc::FillLevels()
{
    const bool custom = OffersCustomLevel();
    RefillUnlessFull(m_cmbEclosionLevel, LEVEL_ROW_CUSTOM + (custom ? 1 : 0), [&] {
        m_cmbEclosionLevel.AddString(GetLanguageText(L"CLOSE_ECLOSION", L"Close Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"LIGHT_ECLOSION", L"Light Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"NORMAL_ECLOSION", L"Normal Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"DEPTH_ECLOSION", L"Depth Eclosion"));
        m_cmbEclosionLevel.AddString(GetLanguageText(L"SUPER_ECLOSION", L"Super Eclosion"));
        if (custom)
            m_cmbEclosionLevel.AddString(GetLanguageText(L"CUSTOM_ECLOSION", L"Custom Eclosion"));
    });
}
