#include "dialogs/scheme/DlgPrintSchemeCustomEclosion.h"

#include "dialogs/base/Controls.h"
#include "dialogs/data/CustomEclosion.h"
#include "dialogs/data/EclosionLevel.h"
#include "dialogs/data/HostRun.h"
#include "mfc/ScopedValue.h"
#include "resources/resource.h"

namespace
{
constexpr int RANGE_PAGE = 10;
constexpr int RADIOS[] = {IDC_RADIO_MODE1, IDC_RADIO_MODE2, IDC_RADIO_MODE3};

constexpr COLORREF PREVIEW_ELEMENT = RGB(0, 0, 0);
constexpr COLORREF PREVIEW_EMPTY = RGB(0xF0, 0xF0, 0xF0);

// The end of a drag, Home and End move the thumb but are not taken over.
bool IsMove(UINT scrollCode)
{
    return scrollCode <= TB_PAGEDOWN || scrollCode == TB_THUMBTRACK;
}
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
        DDX_Control(pDX, view.widthId, view.sliderWidth);
        DDX_Control(pDX, view.heightId, view.sliderHeight);
    }
    DDX_Radio(pDX, IDC_RADIO_MODE1, m_nCurMode);
    DDX_Text(pDX, IDC_EDIT_ECLO_RANGE, m_nRange);
    DDV_MinMaxInt(pDX, m_nRange, 0, MAX_ECLOSION_RANGE);
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
    m_pSet = HostData().GetCustomEclosionSet();
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
        const CScopedValue<bool> saving(m_bSaving, true);
        HostControl().SaveCustomEclosionSet();
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
            for (CSliderCtrl* slider : {&view.sliderWidth, &view.sliderHeight})
                if (pScrollBar->m_hWnd == slider->m_hWnd)
                    MoveElement(view, *slider);
    }
    CDialogEx::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CDlgPrintSchemeCustomEclosion::OnAddMode()
{
    ICustomEclosion* eclosion = Eclosion();
    if (!eclosion || eclosion->GetModeCount() == MAX_ECLOSION_MODES)
        return;
    IEclosionMode* mode = eclosion->AddMode();
    if (!mode)
        return;
    m_nCurMode = static_cast<int>(CountOf(eclosion)) - 1;
    eclosion->SetCurrentMode(m_nCurMode);
    ShowElements(mode);
    ShowRadios(eclosion);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnDeleteMode()
{
    UpdateData(TRUE);
    ICustomEclosion* eclosion = Eclosion();
    if (!eclosion || m_nCurMode < 0 || static_cast<std::uint32_t>(m_nCurMode) >= eclosion->GetModeCount())
        return;
    eclosion->DeleteMode(static_cast<std::uint32_t>(m_nCurMode));
    m_nCurMode = 0;
    eclosion->SetCurrentMode(m_nCurMode);
    ShowCurrentMode();
    EnableEditing();
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::OnAddElement()
{
    UpdateData(TRUE);
    IEclosionMode* mode = At(Eclosion(), m_nCurMode);
    if (!mode || mode->GetElementCount() == MAX_ECLOSION_ELEMENTS)
        return;
    mode->AddElement();
    ShowElements(mode);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnDeleteElement()
{
    UpdateData(TRUE);
    IEclosionMode* mode = At(Eclosion(), m_nCurMode);
    if (!mode || mode->GetElementCount() == 0)
        return;
    mode->DeleteElement(0);
    ShowElements(mode);
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::OnModeChosen()
{
    UpdateData(TRUE);
    if (ICustomEclosion* eclosion = Eclosion())
    {
        eclosion->SetCurrentMode(m_nCurMode);
        ShowElements(At(eclosion, m_nCurMode));
    }
    EnableEditing();
}

void CDlgPrintSchemeCustomEclosion::InitTrackbars()
{
    m_sliderRange.SetRange(0, MAX_ECLOSION_RANGE);
    m_sliderRange.SetLineSize(1);
    m_sliderRange.SetPageSize(RANGE_PAGE);
    m_sliderRange.SetTicFreq(1);
    for (ElementView& view : m_elements)
        for (CSliderCtrl* slider : {&view.sliderHeight, &view.sliderWidth})
        {
            slider->SetRange(MIN_ELEMENT_SIZE, MAX_ELEMENT_SIZE);
            slider->SetLineSize(1);
            slider->SetPageSize(1);
            slider->SetTicFreq(1);
        }
}

void CDlgPrintSchemeCustomEclosion::Load()
{
    PrepareEclosionSet(*m_pSet);
    if (ICustomEclosion* eclosion = Eclosion())
    {
        m_nRange = eclosion->GetRange();
        m_sliderRange.SetPos(m_nRange);
    }
    ShowCurrentMode();
    EnableEditing();
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::ShowCurrentMode()
{
    ICustomEclosion* eclosion = Eclosion();
    if (eclosion)
        m_nCurMode = eclosion->GetCurrentMode();
    ShowElements(At(eclosion, m_nCurMode));
    ShowRadios(eclosion);
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::ShowElements(IEclosionMode* mode)
{
    const std::uint32_t count = CountOf(mode);
    for (std::uint32_t i = 0; i < m_elements.size(); ++i)
        ShowElement(m_elements[i], At(mode, i), i < count);
    UpdateData(FALSE);
    Invalidate();
}

void CDlgPrintSchemeCustomEclosion::ShowElement(ElementView& view, IEclosionElement* element, bool show)
{
    for (int id : {view.groupId, view.widthLabelId, view.heightLabelId, view.widthId, view.heightId})
        ShowControl(*GetDlgItem(id), show);
    view.isShown = show;
    if (element)
    {
        view.width = element->GetWidth();
        view.height = element->GetHeight();
        view.sliderWidth.SetPos(view.width);
        view.sliderHeight.SetPos(view.height);
    }
    GetDlgItem(view.frameId)->GetWindowRect(&view.preview);
    ScreenToClient(&view.preview);
}

void CDlgPrintSchemeCustomEclosion::ShowRadios(ICustomEclosion* eclosion)
{
    std::uint32_t shown = CountOf(eclosion);
    for (int id : RADIOS)
    {
        ShowControl(*GetDlgItem(id), shown > 0);
        shown -= shown > 0 ? 1 : 0;
    }
}

void CDlgPrintSchemeCustomEclosion::EnableEditing()
{
    if (!m_pSet)
    {
        EnableWithoutSet();
        return;
    }
    ICustomEclosion* eclosion = CurrentEclosion();
    IEclosionMode* mode = At(eclosion, m_nCurMode);
    const bool isEditable = eclosion && (m_bAllowLockedEdit || !eclosion->IsLocked());
    // Not their sane counts: a list of which nobody knows how long it is must not get longer.
    const std::uint32_t modes = eclosion ? eclosion->GetModeCount() : 0;
    const std::uint32_t elements = mode ? mode->GetElementCount() : 0;
    EnableControl(m_btnAddMode, isEditable && modes < MAX_ECLOSION_MODES);
    EnableControl(m_btnDelMode, isEditable && mode && modes != 0);
    for (int id : RADIOS)
        EnableControl(*GetDlgItem(id), isEditable && mode);
    EnableControl(m_btnAddElement, isEditable && mode && elements < MAX_ECLOSION_ELEMENTS);
    EnableControl(m_btnDelElement, isEditable && elements != 0);
    for (ElementView& view : m_elements)
        for (CSliderCtrl* slider : {&view.sliderWidth, &view.sliderHeight})
            EnableControl(*slider, isEditable && mode);
}

void CDlgPrintSchemeCustomEclosion::EnableWithoutSet()
{
    for (CWnd* control : std::initializer_list<CWnd*>{&m_btnAddMode, &m_btnDelMode, &m_btnAddElement, &m_btnDelElement,
                                                      &m_sliderRange, &m_btnSave})
        EnableControl(*control, false);
}

void CDlgPrintSchemeCustomEclosion::MoveRange()
{
    m_nRange = m_sliderRange.GetPos();
    if (ICustomEclosion* eclosion = CurrentEclosion())
        eclosion->SetRange(m_nRange);
    UpdateData(FALSE);
}

void CDlgPrintSchemeCustomEclosion::MoveElement(ElementView& view, CSliderCtrl& slider)
{
    const bool isWidth = &slider == &view.sliderWidth;
    const int position = slider.GetPos();
    (isWidth ? view.width : view.height) = position;
    if (IEclosionElement* element = At(At(CurrentEclosion(), m_nCurMode), &view - m_elements.data()))
        isWidth ? element->SetWidth(position) : element->SetHeight(position);
    InvalidateRect(&view.preview);
}

void CDlgPrintSchemeCustomEclosion::PaintPreview(CDC& dc, const ElementView& view) const
{
    if (!view.isShown)
    {
        dc.FillSolidRect(&view.preview, PREVIEW_EMPTY);
        return;
    }
    const RECT& frame = view.preview;
    const PreviewFrame shown =
        ElementPreview({frame.left, frame.top, frame.right, frame.bottom}, view.width, view.height);
    const RECT rect = {shown.left, shown.top, shown.right, shown.bottom};
    dc.FillSolidRect(&rect, PREVIEW_ELEMENT);
}

ICustomEclosion* CDlgPrintSchemeCustomEclosion::Eclosion() const
{
    return At(m_pSet, 0);
}

ICustomEclosion* CDlgPrintSchemeCustomEclosion::CurrentEclosion() const
{
    return m_pSet ? At(m_pSet, m_pSet->GetCurrentIndex()) : nullptr;
}
