#include "dialogs/scheme/DlgPrintSchemeCmmn.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/Rows.h"
#include "host/IActiveSetup.h"
#include "host/IChannelList.h"
#include "host/IChannelSetup.h"
#include "host/IHeadLayout.h"
#include "host/IHeadLayoutList.h"
#include "host/IHostData.h"
#include "host/ILayout.h"
#include "host/ILayoutList.h"
#include "host/IMaterial.h"
#include "host/IMaterialList.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int MAX_NAME_CHARS = 60;

// A count beyond is junk: a scheme's waveform is read as a signed byte.
constexpr int MAX_WAVES = 1024;
} // namespace

CDlgPrintSchemeCmmn::CDlgPrintSchemeCmmn() : CSchemePage(IDD_SCHEME_CMMN) {}

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

BOOL CDlgPrintSchemeCmmn::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    FillFixedLists();
    LoadFromScheme();
    return TRUE;
}

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
    LoadRecord();
    FillMaterials();
    FillWaves();
    FillChannels();
    FillLayouts();
    FillHeads();
    UpdateData(FALSE);
}

void CDlgPrintSchemeCmmn::LoadRecord()
{
    const bool bFound = WithScheme([this](auto& scheme) {
        m_strName = HostText(scheme.GetName());
        m_cmbSpeed.SetCurSel(std::max<int>(scheme.GetSpeed(), -1) + 1);
        m_cmbDirection.SetCurSel(std::max<int>(scheme.GetDirection(), 0));
    });
    IPrintScheme* pFactory = bFound ? FactoryScheme() : nullptr;
    if (!pFactory)
        return;
    if (!IsUserScheme())
        m_cmbEnable.SetCurSel(pFactory->GetEnabled());
    m_cmbWaitStep.SetCurSel(pFactory->GetWaitStepStop());
}

// Load and save differ on purpose: waveform, channel, enabled and wait-step are stored by row, the rest by item data.
void CDlgPrintSchemeCmmn::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    WithScheme([this](auto& scheme) {
        if (m_strName.GetLength() <= MAX_NAME_CHARS) // a longer one was refused
            SetHostName(scheme, m_strName);
        scheme.SetSpeed(static_cast<std::uint8_t>(SelectedData(m_cmbSpeed)));
        scheme.SetDirection(static_cast<std::uint8_t>(SelectedData(m_cmbDirection)));
        scheme.SetMaterial(static_cast<std::uint8_t>(SelectedData(m_cmbMaterial)));
        if constexpr (std::is_same_v<decltype(scheme), IPrintScheme&>)
            SaveFactoryValues(scheme);
        else
            scheme.SetChannel(static_cast<std::uint8_t>(m_cmbChannel.GetCurSel()));
    });
}

void CDlgPrintSchemeCmmn::SaveFactoryValues(IPrintScheme& scheme) const
{
    scheme.SetEnabled(static_cast<std::uint8_t>(m_cmbEnable.GetCurSel()));
    scheme.SetWaitStepStop(static_cast<std::uint8_t>(m_cmbWaitStep.GetCurSel()));
    scheme.SetWave(m_cmbWave.GetCurSel() - 1);
    scheme.SetChannel(static_cast<std::uint8_t>(m_cmbChannel.GetCurSel()));
    if (ILayout* pLayout = SelectedLayout())
        scheme.SetLayoutId(pLayout->GetId());
    scheme.SetHeadId(static_cast<std::uint8_t>(SelectedData(m_cmbHead)));
}

void CDlgPrintSchemeCmmn::OnLayoutChange()
{
    FillHeads();
    ILayout* pLayout = SelectedLayout();
    IPrintScheme* pScheme = IsUserScheme() || !IsEditable() ? nullptr : FactorySchemeAt(m_nSchemeId);
    if (pLayout && pScheme)
        pScheme->SetLayoutId(pLayout->GetId());
}

void CDlgPrintSchemeCmmn::FillFixedLists()
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
    const int nCurrent = ValueOf([](auto& scheme) { return scheme.GetMaterial(); }, 0);
    int nSelect = 0;
    Refill(m_cmbMaterial, [&] {
        AddRow(m_cmbMaterial, GetLanguageText(L"UNLIMIT", L""), -1);
        IMaterialList* pList = GetHostContext().pData->GetMaterialList();
        const std::uint32_t nCount = ActiveSetup() ? HostCount(pList) : 0;
        for (std::uint32_t i = 0; i < nCount; ++i)
        {
            IMaterial* pMaterial = pList->GetAt(i);
            if (!pMaterial)
                continue;
            const int nRow = AddRow(m_cmbMaterial, HostText(pMaterial->GetName()), pMaterial->GetId());
            if (pMaterial->GetId() == nCurrent)
                nSelect = nRow;
        }
    });
    m_cmbMaterial.SetCurSel(nSelect);
}

void CDlgPrintSchemeCmmn::FillWaves()
{
    IPrintScheme* pScheme = FactoryScheme();
    const int nCurrent = pScheme ? pScheme->GetWave() : -1;
    const int nCount = std::min(ParamValue(TABLE_WAVEFORM_COUNT, 0), MAX_WAVES);
    RefillUnlessFull(m_cmbWave, std::max(nCount, 0) + 1, [&] {
        AddRow(m_cmbWave, GetLanguageText(L"UNLIMIT", L""), -1);
        const CString strWave = nCount > 0 ? GetLanguageText(L"WAVE", L"波形") : CString();
        for (int i = 0; i < nCount; ++i)
        {
            CString strRow;
            strRow.Format(L"%s%d", strWave.GetString(), i);
            m_cmbWave.AddString(strRow);
        }
    });
    m_cmbWave.SetCurSel(nCurrent >= 0 && nCurrent < nCount ? nCurrent + 1 : 0);
}

void CDlgPrintSchemeCmmn::FillChannels()
{
    const int nCurrent = ValueOf([](auto& scheme) { return scheme.GetChannel(); }, 0);
    int nSelect = -1;
    Refill(m_cmbChannel, [&] {
        IChannelList* pList = GetHostContext().pData->GetChannelList();
        IActiveSetup* pActive = ActiveSetup();
        const int nCount = pActive ? static_cast<int>(HostCount(pList)) : 0;
        for (int i = 0; i < nCount; ++i)
        {
            IChannelSetup* pSetup = pList->GetAt(static_cast<std::uint32_t>(i));
            if (!pSetup || pSetup->FindSetup(pActive->GetId()) < 0)
                continue;
            AddRow(m_cmbChannel, TranslatedName(pSetup->GetName()), i);
            if (i == nCurrent)
                nSelect = i; // the stored index is used as the row, whatever was left out before it
        }
    });
    m_cmbChannel.SetCurSel(nSelect);
}

void CDlgPrintSchemeCmmn::FillLayouts()
{
    IPrintScheme* pScheme = FactoryScheme();
    int nSelect = 0;
    Refill(m_cmbLayout, [&] {
        ILayoutList* pList = pScheme ? GetHostContext().pData->GetLayoutList() : nullptr;
        const int nCount = static_cast<int>(HostCount(pList));
        for (int i = 0; i < nCount; ++i)
        {
            ILayout* pLayout = pList->GetAt(static_cast<std::uint32_t>(i));
            const int nRow = m_cmbLayout.AddString(pLayout ? HostText(pLayout->GetName()).GetString() : L"");
            if (nRow >= 0)
                m_cmbLayout.SetItemData(nRow, reinterpret_cast<DWORD_PTR>(pLayout));
            if (pLayout && pLayout->GetId() == pScheme->GetLayoutId())
                nSelect = i;
        }
    });
    m_cmbLayout.SetCurSel(nSelect);
}

void CDlgPrintSchemeCmmn::FillHeads()
{
    IPrintScheme* pScheme = FactoryScheme();
    ILayout* pLayout = SelectedLayout();
    int nSelect = 0;
    Refill(m_cmbHead, [&] {
        IHeadLayoutList* pList = pScheme && pLayout ? GetHostContext().pData->GetHeadLayoutList() : nullptr;
        const std::uint32_t nCount = HostCount(pList);
        for (std::uint32_t i = 0; i < nCount; ++i)
        {
            IHeadLayout* pHead = pList->GetAt(i);
            if (!pHead || pHead->GetLayoutId() != pLayout->GetId())
                continue;
            const int nRow = AddRow(m_cmbHead, HostText(pHead->GetName()), pHead->GetId());
            if (pHead->GetId() == pScheme->GetHeadId())
                nSelect = nRow;
        }
    });
    m_cmbHead.SetCurSel(nSelect);
}

ILayout* CDlgPrintSchemeCmmn::SelectedLayout() const
{
    const int nRow = m_cmbLayout.GetCurSel();
    return nRow >= 0 ? reinterpret_cast<ILayout*>(m_cmbLayout.GetItemData(nRow)) : nullptr;
}
