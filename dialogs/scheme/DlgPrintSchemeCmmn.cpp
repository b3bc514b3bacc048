#include "dialogs/scheme/DlgPrintSchemeCmmn.h"

#include "dialogs/data/Machine.h"
#include "dialogs/data/NumberText.h"
#include "resources/resource.h"

#include <algorithm>
#include <string>

namespace
{
// The first row leaves the choice open; of values without a row, a negative one shows it too.
constexpr RowView BY_SPEED = {
    [](CComboBox& list, int speed) { list.SetCurSel(std::max(speed, -1) + 1); },
    BY_DATA.read,
};

constexpr RowView BY_DIRECTION = {
    [](CComboBox& list, int direction) { list.SetCurSel(std::max(direction, 0)); },
    BY_DATA.read,
};

// Rows that the page selects while it fills the list. As required, these two are stored by position.
constexpr RowView BY_CHANNEL = {nullptr, BY_POSITION.read};

constexpr RowView BY_WAVE = {
    nullptr,
    [](const CComboBox& list) -> std::optional<int> { return list.GetCurSel() - 1; },
};

ILayout* SelectedLayout(const CComboBox& list)
{
    return RowObject<ILayout>(list, list.GetCurSel());
}

constexpr RowView BY_LAYOUT = {
    nullptr,
    [](const CComboBox& list) -> std::optional<int> {
        ILayout* layout = SelectedLayout(list);
        return layout ? std::optional<int>(static_cast<int>(layout->GetId())) : std::nullopt;
    },
};
} // namespace

CDlgPrintSchemeCmmn::CDlgPrintSchemeCmmn() : CSchemePage(IDD_SCHEME_CMMN)
{
    BindList(SchemeField::Speed, m_cmbSpeed, BY_SPEED);
    BindList(SchemeField::Direction, m_cmbDirection, BY_DIRECTION);
    BindList(SchemeField::Material, m_cmbMaterial, BY_DATA);
    BindList(SchemeField::Enabled, m_cmbEnable, BY_POSITION);
    BindList(SchemeField::WaitStepStop, m_cmbWaitStep, BY_POSITION);
    BindList(SchemeField::Wave, m_cmbWave, BY_WAVE);
    BindList(SchemeField::Channel, m_cmbChannel, BY_CHANNEL);
    BindList(SchemeField::LayoutId, m_cmbLayout, BY_LAYOUT);
    BindList(SchemeField::HeadId, m_cmbHead, BY_DATA);
}

void CDlgPrintSchemeCmmn::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_SPEED, m_cmbSpeed);
    DDX_Control(pDX, IDC_CMB_DIRECTION, m_cmbDirection);
    DDX_Control(pDX, IDC_CMB_MATERIAL, m_cmbMaterial);
    DDX_Control(pDX, IDC_CMB_ENABLE, m_cmbEnable);
    DDX_Control(pDX, IDC_CMB_WAIT_STEP, m_cmbWaitStep);
    DDX_Control(pDX, IDC_CMB_WAVE, m_cmbWave);
    DDX_Control(pDX, IDC_CMB_LAYOUT, m_cmbLayout);
    DDX_Control(pDX, IDC_CMB_HEAD, m_cmbHead);
    DDX_Control(pDX, IDC_CMB_CHANNEL, m_cmbChannel);
    DDX_Text(pDX, IDC_EDIT_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, MAX_NAME_CHARS);
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeCmmn, CSchemePage)
    ON_CBN_SELCHANGE(IDC_CMB_LAYOUT, &CDlgPrintSchemeCmmn::OnLayoutChange)
END_MESSAGE_MAP()

int CDlgPrintSchemeCmmn::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_ENABLE, L"IDC_STATIC_ENABLE", L""},       {IDC_STATIC_NAME, L"IDC_STATIC_NAME", L""},
        {IDC_STATIC_SPEED, L"IDC_STATIC_SPEED", L""},         {IDC_STATIC_DIRECTION, L"IDC_STATIC_DIRECTION", L""},
        {IDC_STATIC_MATERIAL, L"IDC_STATIC_MATERIAL", L""},   {IDC_STATIC_CHANNEL, L"IDC_STATIC_CHANNEL", L""},
        {IDC_STATIC_WAIT_STEP, L"IDC_STATIC_WAIT_STEP", L""}, {IDC_STATIC_WAVE, L"IDC_STATIC_WAVE", L""},
        {IDC_STATIC_LAYOUT, L"IDC_STATIC_LAYOUT", L""},       {IDC_STATIC_HEAD, L"IDC_STATIC_HEAD", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeCmmn::UpdateCtrlState()
{
    if (!m_cmbEnable.GetSafeHwnd())
        return;
    ShowControls(std::initializer_list<int>{IDC_CMB_ENABLE, IDC_STATIC_ENABLE}, !m_bUserEditor);
    EnableControls(std::initializer_list<int>{IDC_CMB_ENABLE, IDC_EDIT_NAME, IDC_CMB_CHANNEL, IDC_CMB_SPEED,
                                              IDC_CMB_DIRECTION, IDC_CMB_MATERIAL},
                   IsEditable());
    EnableControls(std::initializer_list<int>{IDC_CMB_WAIT_STEP, IDC_CMB_WAVE, IDC_CMB_LAYOUT, IDC_CMB_HEAD},
                   m_nSchemeId >= 0 && !m_bUserEditor);
}

void CDlgPrintSchemeCmmn::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    WithScheme([this](auto& scheme) {
        m_strName = HostText(scheme.GetName()).c_str();
        LoadFields(scheme);
    });
    FillMaterials();
    FillWaves();
    FillChannels();
    FillLayouts();
    FillHeads();
    UpdateData(FALSE);
}

void CDlgPrintSchemeCmmn::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    WithScheme([this](auto& scheme) {
        if (m_strName.GetLength() <= MAX_NAME_CHARS) // a longer one was refused
            SetHostName(scheme, m_strName);
        SaveFields(scheme);
    });
}

void CDlgPrintSchemeCmmn::OnLayoutChange()
{
    FillHeads();
    ILayout* layout = SelectedLayout(m_cmbLayout);
    IPrintScheme* scheme = IsEditable() ? FactorySchemeAt(m_nSchemeId) : nullptr;
    if (layout && scheme)
        SetField(*scheme, SchemeField::LayoutId, static_cast<int>(layout->GetId()));
}

void CDlgPrintSchemeCmmn::InitControls()
{
    AddRow(m_cmbSpeed, GetLanguageText(L"UNLIMIT", L""), -1);
    AddRow(m_cmbSpeed, GetLanguageText(L"SPEED_S", L""), 0);
    AddRow(m_cmbSpeed, GetLanguageText(L"SPEED_M", L""), 1);
    AddRow(m_cmbSpeed, GetLanguageText(L"SPEED_B", L""), 2);
    m_cmbSpeed.SetCurSel(0);
    AddRow(m_cmbDirection, GetLanguageText(L"UNLIMIT", L""), -1);
    AddRow(m_cmbDirection, GetLanguageText(L"DIRECTION_L", L""), 1);
    AddRow(m_cmbDirection, GetLanguageText(L"DIRECTION_R", L""), 2);
    AddRow(m_cmbDirection, GetLanguageText(L"DIRECTION_D", L""), 3);
    m_cmbDirection.SetCurSel(0);
    FillSwitch(m_cmbEnable, L"", L"");
    m_cmbEnable.SetCurSel(1);
    FillSwitch(m_cmbWaitStep, L"", L"");
    m_cmbWaitStep.SetCurSel(0);
}

void CDlgPrintSchemeCmmn::FillMaterials()
{
    const int current = ValueOf(SchemeField::Material, 0);
    int selected = 0;
    Refill(m_cmbMaterial, [&] {
        AddRow(m_cmbMaterial, GetLanguageText(L"UNLIMIT", L""), -1);
        ForEachMaterial([&](IMaterial& material, int) {
            const int id = material.GetId();
            const int row = AddRow(m_cmbMaterial, HostText(material.GetName()).c_str(), id);
            if (id == current)
                selected = row;
        });
    });
    m_cmbMaterial.SetCurSel(selected);
}

void CDlgPrintSchemeCmmn::FillWaves()
{
    IPrintScheme* factory = FactorySchemeOf(m_nSchemeId);
    const int current = factory ? GetField(*factory, SchemeField::Wave) : -1;
    const int count = WaveformCount();
    RefillUnlessFull(m_cmbWave, count + 1, [&] {
        AddRow(m_cmbWave, GetLanguageText(L"UNLIMIT", L""), -1);
        const CString word = count > 0 ? GetLanguageText(L"WAVE", L"波形") : CString();
        for (int i = 0; i < count; ++i)
            m_cmbWave.AddString((word.GetString() + NumberText(i)).c_str());
    });
    m_cmbWave.SetCurSel(current >= 0 && current < count ? current + 1 : 0);
}

void CDlgPrintSchemeCmmn::FillChannels()
{
    const int current = ValueOf(SchemeField::Channel, 0);
    int selected = -1;
    Refill(m_cmbChannel, [&] {
        ForEachFittingSetup([&](IChannelSetup& setup, int index) {
            AddRow(m_cmbChannel, TranslatedName(setup.GetName()), index);
            if (index == current)
                selected = index; // the stored index is used as the row, whatever was left out before it
        });
    });
    m_cmbChannel.SetCurSel(selected);
}

void CDlgPrintSchemeCmmn::FillLayouts()
{
    IPrintScheme* factory = FactorySchemeOf(m_nSchemeId);
    const int current = factory ? GetField(*factory, SchemeField::LayoutId) : -1;
    int selected = 0;
    Refill(m_cmbLayout, [&] {
        if (!factory)
            return;
        ForEachRow(HostData().GetLayoutList(), [&](ILayout* layout, int index) {
            AddRow(m_cmbLayout, layout ? HostText(layout->GetName()).c_str() : L"", layout);
            if (layout && layout->GetId() == static_cast<std::uint32_t>(current))
                selected = index;
        });
    });
    m_cmbLayout.SetCurSel(selected);
}

void CDlgPrintSchemeCmmn::FillHeads()
{
    IPrintScheme* factory = FactorySchemeOf(m_nSchemeId);
    ILayout* layout = SelectedLayout(m_cmbLayout);
    int selected = 0;
    Refill(m_cmbHead, [&] {
        if (!factory || !layout)
            return;
        const int current = GetField(*factory, SchemeField::HeadId);
        ForEachHeadOf(*layout, [&](IHeadLayout& head) {
            const int id = head.GetId();
            const int row = AddRow(m_cmbHead, HostText(head.GetName()).c_str(), id);
            if (id == current)
                selected = row;
        });
    });
    m_cmbHead.SetCurSel(selected);
}
