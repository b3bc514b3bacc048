#include "dialogs/scheme/DlgPrintSchemeCustomEclosion.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/scheme/EclosionPreview.h"
#include "host/ICustomEclosion.h"
#include "host/ICustomEclosionSet.h"
#include "host/IEclosionElement.h"
#include "host/IEclosionMode.h"
#include "host/IHostControl.h"
#include "host/IHostData.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int MAX_RANGE = 200;
constexpr int RANGE_PAGE = 10;
constexpr std::uint32_t MIN_ECLOSIONS = 4;
constexpr std::uint32_t MAX_MODES = 3;
constexpr std::uint32_t MAX_ELEMENTS = 2;
constexpr int DEFAULT_MODES = 2;
constexpr int RADIOS[] = {IDC_RADIO_MODE1, IDC_RADIO_MODE2, IDC_RADIO_MODE3};

constexpr COLORREF PREVIEW_ELEMENT = RGB(0, 0, 0);
constexpr COLORREF PREVIEW_EMPTY = RGB(0xF0, 0xF0, 0xF0);

void AddDefaultElement(IEclosionMode& mode)
{
    if (IEclosionElement* pElement = mode.AddElement())
    {
        pElement->SetWidth(MIN_ELEMENT_SIZE);
        pElement->SetHeight(MIN_ELEMENT_SIZE);
    }
}

// The end of a drag, Home and End move the thumb but are not taken over.
bool IsMove(UINT nSBCode)
{
    return nSBCode <= TB_PAGEDOWN || nSBCode == TB_THUMBTRACK;
}

// True for as long as it lives.
class CRaisedFlag
{
public:
    explicit CRaisedFlag(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    ~CRaisedFlag() { m_bFlag = false; }
    CRaisedFlag(const CRaisedFlag&) = delete;
    CRaisedFlag& operator=(const CRaisedFlag&) = delete;

private:
    bool& m_bFlag;
};
} // namespace

CDlgPrintSchemeCustomEclosion::CDlgPrintSchemeCustomEclosion()
    : CDialogEx(IDD_CUSTOM_ECLOSION), m_elements{{{IDC_STATIC_ELEMENT1, IDC_STATIC_ELEMENT1_W, IDC_SLIDER_ELEMENT1_W,
                                                   IDC_STATIC_ELEMENT1_H, IDC_SLIDER_ELEMENT1_H, IDC_STATIC_PREVIEW1},
                                                  {IDC_STATIC_ELEMENT2, IDC_STATIC_ELEMENT2_W, IDC_SLIDER_ELEMENT2_W,
                                                   IDC_STATIC_ELEMENT2_H, IDC_SLIDER_ELEMENT2_H, IDC_STATIC_PREVIEW2}}}
{
}

void CDlgPrintSchemeCustomEclosion::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BTN_ADD_ECL_MODE, m_btnAddMode);
    DDX_Control(pDX, IDC_BTN_DEL_ECL_MODE, m_btnDelMode);
    DDX_Control(pDX, IDC_BTN_DEL_ELEMENT, m_btnDelElement);
    DDX_Control(pDX, IDC_BTN_ADD_ELEMENT, m_btnAddElement);
    DDX_Control(pDX, IDOK, m_btnSave);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDC_SLIDER_ECLO_RANGE, m_sliderRange);
    for (ElementView& view : m_elements)
    {
        DDX_Control(pDX, view.nWidthId, view.sliderWidth);
        DDX_Control(pDX, view.nHeightId, view.sliderHeight);
    }
    DDX_Radio(pDX, IDC_RADIO_MODE1, m_nCurMode);
    DDX_Text(pDX, IDC_EDIT_ECLO_RANGE, m_nRange);
    DDV_MinMaxInt(pDX, m_nRange, 0, MAX_RANGE);
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeCustomEclosion, CDialogEx)
    ON_WM_PAINT()
    ON_WM_HSCROLL()
    ON_BN_CLICKED(IDC_BTN_ADD_ECL_MODE, &CDlgPrintSchemeCustomEclosion::OnAddMode)
    ON_BN_CLICKED(IDC_BTN_DEL_ECL_MODE, &CDlgPrintSchemeCustomEclosion::OnDeleteMode)
    ON_BN_CLICKED(IDC_BTN_ADD_ELEMENT, &CDlgPrintSchemeCustomEclosion::OnAddElement)
    ON_BN_CLICKED(IDC_BTN_DEL_ELEMENT, &CDlgPrintSchemeCustomEclosion::OnDeleteElement)
    ON_BN_CLICKED(IDC_RADIO_MODE1, &CDlgPrintSchemeCustomEclosion::OnModeChosen)
    ON_BN_CLICKED(IDC_RADIO_MODE2, &CDlgPrintSchemeCustomEclosion::OnModeChosen)
    ON_BN_CLICKED(IDC_RADIO_MODE3, &CDlgPrintSchemeCustomEclosion::OnModeChosen)
END_MESSAGE_MAP()

BOOL CDlgPrintSchemeCustomEclosion::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_CUSTOM_ECLOSION", this);
    InitTrackbars();
    if (IHostData* pData = GetHostContext().pData)
        m_pSet = pData->GetCustomEclosionSet();
    if (m_pSet)
        Load();
    else
        EnableEditing();
    return TRUE;
}

int CDlgPrintSchemeCustomEclosion::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDOK, L"IDOK", L""},
        {IDCANCEL, L"IDCANCEL", L""},
        {IDC_STATIC_ECLO_RANGE, L"IDC_STATIC_ECLO_RANGE", L""},
        {IDC_BTN_ADD_ECL_MODE, L"IDC_BTN_ADD_MODE", L""},
        {IDC_BTN_DEL_ECL_MODE, L"IDC_BTN_DEL_MODE", L""},
        {IDC_STATIC_GROUP_ECLO_MODE, L"IDC_STATIC_GROUP_ECLO_MODE", L""},
        {IDC_RADIO_MODE1, L"IDC_RADIO_MODE1", L""},
        {IDC_RADIO_MODE2, L"IDC_RADIO_MODE2", L""},
        {IDC_RADIO_MODE3, L"IDC_RADIO_MODE3", L""},
        {IDC_BTN_ADD_ELEMENT, L"IDC_BTN_ADD_ELEMENT", L""},
        {IDC_BTN_DEL_ELEMENT, L"IDC_BTN_DEL_ELEMENT", L""},
        {IDC_STATIC_GROUP_ECLO_ELEMENT, L"IDC_STATIC_GROUP_ECLO_ELEMENT", L""},
        {IDC_STATIC_ELEMENT1, L"IDC_STATIC_ELEMENT1", L""},
        {IDC_STATIC_ELEMENT1_W, L"IDC_STATIC_ELEMENT1_W", L""},
        {IDC_STATIC_ELEMENT1_H, L"IDC_STATIC_ELEMENT1_H", L""},
        {IDC_STATIC_ELEMENT2, L"IDC_STATIC_ELEMENT2", L""},
        {IDC_STATIC_ELEMENT2_W, L"IDC_STATIC_ELEMENT2_W", L""},
        {IDC_STATIC_ELEMENT2_H, L"IDC_STATIC_ELEMENT2_H", L""},
    };
    ApplyTitle();
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeCustomEclosion::OnOK()
{
    {
        const CWaitCursor wait;
        const CRaisedFlag saving(m_bSaving);
        GetHostContext().pControl->SaveCustomEclosionSet();
    }
    CDialogEx::OnOK();
}

// Should the host dispatch messages while it saves, the set is not changed, and nothing else ends the dialog.
BOOL CDlgPrintSchemeCustomEclosion::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return m_bSaving || CDialogEx::OnCommand(wParam, lParam);
}

void CDlgPrintSchemeCustomEclosion::OnPaint()
{
    CPaintDC dc(this);
    for (const ElementView& view : m_elements)
        PaintPreview(dc, view);
}

// Everything moved reaches the host at once; Save only has it kept.
void CDlgPrintSchemeCustomEclosion::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar && IsMove(nSBCode) && !m_bSaving)
    {
        if (pScrollBar->m_hWnd == m_sliderRange.m_hWnd)
            MoveRange();
        for (ElementView& view : m_elements)
            for (CSliderCtrl* pSlider : {&view.sliderWidth, &view.sliderHeight})
                if (pScrollBar->m_hWnd == pSlider->m_hWnd)
                    MoveElement(view, *pSlider);
    }
    CDialogEx::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CDlgPrintSchemeCustomEclosion::OnAddMode()
{
    ICustomEclosion* pEclosion = Eclosion();
    if (!pEclosion || pEclosion->GetModeCount() == MAX_MODES)
        return;
    IEclosionMode* pMode = pEclosion->AddMode();
    if (!pMode)
        return;
    m_nCurMode = static_cast<int>(pEclosion->GetModeCount()) - 1;
    pEclosion->SetCurrentMode(m_nCurMode);
    ShowElements(pMode);
    ShowRadios(pEclosion);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnDeleteMode()
{
    UpdateData(TRUE);
    ICustomEclosion* pEclosion = Eclosion();
    if (!pEclosion || m_nCurMode < 0 || static_cast<std::uint32_t>(m_nCurMode) >= pEclosion->GetModeCount())
        return;
    pEclosion->DeleteMode(static_cast<std::uint32_t>(m_nCurMode));
    m_nCurMode = 0;
    pEclosion->SetCurrentMode(m_nCurMode);
    ShowCurrentMode();
    EnableEditing();
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::OnAddElement()
{
    UpdateData(TRUE);
    IEclosionMode* pMode = CurrentMode(Eclosion());
    if (!pMode || pMode->GetElementCount() == MAX_ELEMENTS)
        return;
    pMode->AddElement();
    ShowElements(pMode);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnDeleteElement()
{
    UpdateData(TRUE);
    IEclosionMode* pMode = CurrentMode(Eclosion());
    if (!pMode || pMode->GetElementCount() == 0)
        return;
    pMode->DeleteElement(0);
    ShowElements(pMode);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnModeChosen()
{
    UpdateData(TRUE);
    if (ICustomEclosion* pEclosion = Eclosion())
    {
        pEclosion->SetCurrentMode(m_nCurMode);
        ShowElements(CurrentMode(pEclosion));
    }
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::InitTrackbars()
{
    m_sliderRange.SetRange(0, MAX_RANGE);
    m_sliderRange.SetLineSize(1);
    m_sliderRange.SetPageSize(RANGE_PAGE);
    m_sliderRange.SetTicFreq(1);
    for (ElementView& view : m_elements)
        for (CSliderCtrl* pSlider : {&view.sliderHeight, &view.sliderWidth})
        {
            pSlider->SetRange(MIN_ELEMENT_SIZE, MAX_ELEMENT_SIZE);
            pSlider->SetLineSize(1);
            pSlider->SetPageSize(1);
            pSlider->SetTicFreq(1);
        }
}

void CDlgPrintSchemeCustomEclosion::Load()
{
    NormaliseSet();
    if (m_pSet->GetCurrentIndex() != 0)
        m_pSet->SetCurrentIndex(0);
    if (ICustomEclosion* pEclosion = Eclosion())
    {
        m_nRange = pEclosion->GetRange();
        m_sliderRange.SetPos(m_nRange);
    }
    ShowCurrentMode();
    EnableEditing();
    UpdateData(FALSE);
}

// The set always holds the four definitions that schemes can name, each protected.
void CDlgPrintSchemeCustomEclosion::NormaliseSet()
{
    const std::uint32_t nCount = m_pSet->GetCount();
    for (std::uint32_t i = 0; i < std::min(nCount, MIN_ECLOSIONS); ++i)
    {
        ICustomEclosion* pEclosion = m_pSet->GetEclosion(i);
        if (pEclosion && !pEclosion->IsLocked())
            pEclosion->SetLocked(1);
    }
    for (std::uint32_t i = nCount; i < MIN_ECLOSIONS; ++i)
        AddDefaultEclosion();
}

void CDlgPrintSchemeCustomEclosion::AddDefaultEclosion()
{
    ICustomEclosion* pEclosion = m_pSet->AddEclosion();
    if (!pEclosion)
        return;
    pEclosion->SetLocked(1);
    pEclosion->SetCurrentMode(0);
    for (int i = 0; i < DEFAULT_MODES; ++i)
        if (IEclosionMode* pMode = pEclosion->AddMode())
        {
            AddDefaultElement(*pMode);
            AddDefaultElement(*pMode);
        }
}

void CDlgPrintSchemeCustomEclosion::ShowCurrentMode()
{
    ICustomEclosion* pEclosion = Eclosion();
    if (pEclosion)
        m_nCurMode = pEclosion->GetCurrentMode();
    ShowElements(CurrentMode(pEclosion));
    ShowRadios(pEclosion);
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::ShowElements(IEclosionMode* pMode)
{
    const std::uint32_t nCount = pMode ? pMode->GetElementCount() : 0;
    for (std::uint32_t i = 0; i < m_elements.size(); ++i)
        ShowElement(m_elements[i], i < nCount ? pMode->GetElement(i) : nullptr, i < nCount);
    UpdateData(FALSE);
    Invalidate();
}

void CDlgPrintSchemeCustomEclosion::ShowElement(ElementView& view, IEclosionElement* pElement, bool bShow)
{
    for (int nId : {view.nGroupId, view.nWidthLabelId, view.nHeightLabelId, view.nWidthId, view.nHeightId})
        ShowControl(*GetDlgItem(nId), bShow);
    view.bShow = bShow;
    if (pElement)
    {
        view.nWidth = pElement->GetWidth();
        view.nHeight = pElement->GetHeight();
        view.sliderWidth.SetPos(view.nWidth);
        view.sliderHeight.SetPos(view.nHeight);
    }
    GetDlgItem(view.nFrameId)->GetWindowRect(&view.rcPreview);
    ScreenToClient(&view.rcPreview);
}

void CDlgPrintSchemeCustomEclosion::ShowRadios(ICustomEclosion* pEclosion)
{
    std::uint32_t nShown = pEclosion ? pEclosion->GetModeCount() : 0;
    for (int nId : RADIOS)
    {
        ShowControl(*GetDlgItem(nId), nShown > 0);
        nShown -= nShown > 0 ? 1 : 0;
    }
}

void CDlgPrintSchemeCustomEclosion::EnableEditing()
{
    if (!m_pSet)
    {
        EnableWithoutSet();
        return;
    }
    ICustomEclosion* pEclosion = CurrentEclosion();
    IEclosionMode* pMode = CurrentMode(pEclosion);
    const bool bEditable = pEclosion && (m_bAllowLockedEdit || !pEclosion->IsLocked());
    const std::uint32_t nModes = pEclosion ? pEclosion->GetModeCount() : 0;
    const std::uint32_t nElements = pMode ? pMode->GetElementCount() : 0;
    EnableControl(m_btnAddMode, bEditable && nModes < MAX_MODES);
    EnableControl(m_btnDelMode, bEditable && pMode && nModes != 0);
    for (int nId : RADIOS)
        EnableControl(*GetDlgItem(nId), bEditable && pMode);
    EnableControl(m_btnAddElement, bEditable && pMode && nElements < MAX_ELEMENTS);
    EnableControl(m_btnDelElement, bEditable && nElements != 0);
    for (ElementView& view : m_elements)
        for (CSliderCtrl* pSlider : {&view.sliderWidth, &view.sliderHeight})
            EnableControl(*pSlider, bEditable && pMode);
}

void CDlgPrintSchemeCustomEclosion::EnableWithoutSet()
{
    for (CWnd* pControl : std::initializer_list<CWnd*>{&m_btnAddMode, &m_btnDelMode, &m_btnAddElement, &m_btnDelElement,
                                                       &m_sliderRange, &m_btnSave})
        EnableControl(*pControl, false);
}

void CDlgPrintSchemeCustomEclosion::MoveRange()
{
    m_nRange = m_sliderRange.GetPos();
    if (ICustomEclosion* pEclosion = CurrentEclosion())
        pEclosion->SetRange(m_nRange);
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::MoveElement(ElementView& view, CSliderCtrl& slider)
{
    const bool bWidth = &slider == &view.sliderWidth;
    const int nPos = slider.GetPos();
    (bWidth ? view.nWidth : view.nHeight) = nPos;
    const auto nElement = static_cast<std::uint32_t>(&view - m_elements.data());
    IEclosionMode* pMode = CurrentMode(CurrentEclosion());
    if (IEclosionElement* pElement = pMode ? pMode->GetElement(nElement) : nullptr)
        bWidth ? pElement->SetWidth(nPos) : pElement->SetHeight(nPos);
    InvalidateRect(&view.rcPreview);
}

void CDlgPrintSchemeCustomEclosion::PaintPreview(CDC& dc, const ElementView& view) const
{
    if (!view.bShow)
    {
        dc.FillSolidRect(&view.rcPreview, PREVIEW_EMPTY);
        return;
    }
    const RECT rc = ElementPreview(view.rcPreview, view.nWidth, view.nHeight);
    dc.FillSolidRect(&rc, PREVIEW_ELEMENT);
}

ICustomEclosion* CDlgPrintSchemeCustomEclosion::Eclosion() const
{
    return m_pSet ? m_pSet->GetEclosion(0) : nullptr;
}

ICustomEclosion* CDlgPrintSchemeCustomEclosion::CurrentEclosion() const
{
    return m_pSet ? m_pSet->GetEclosion(static_cast<std::uint32_t>(m_pSet->GetCurrentIndex())) : nullptr;
}

IEclosionMode* CDlgPrintSchemeCustomEclosion::CurrentMode(ICustomEclosion* pEclosion) const
{
    return pEclosion && m_nCurMode >= 0 ? pEclosion->GetMode(static_cast<std::uint32_t>(m_nCurMode)) : nullptr;
}
