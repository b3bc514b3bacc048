#include "dialogs/scheme/DlgPrintSchemeInkCut.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "host/IActiveSetup.h"
#include "host/IHostData.h"
#include "host/IInkChannel.h"
#include "host/IInkGroup.h"
#include "host/IInkGroupTable.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int MAX_PERCENT = 100;
constexpr std::uint32_t MIN_PROBED_ROWS = 6;

IInkGroupTable* InkGroups()
{
    return GetHostContext().pData->GetInkGroups();
}

// Calls the visitor with every existing group of the active set-up, in the set-up's order.
template <class Visitor>
void ForEachActiveGroup(Visitor visit)
{
    IInkGroupTable* pTable = InkGroups();
    IActiveSetup* pSetup = pTable ? ActiveSetup() : nullptr;
    const std::uint32_t nCount = pSetup ? SaneCount(pSetup->GetGroupCount(), MAX_INK_COUNT) : 0;
    for (std::uint32_t i = 0; i < nCount; ++i)
        if (IInkGroup* pGroup = pTable->GetGroup(pSetup->GetGroupId(i)))
            visit(*pGroup);
}
} // namespace

CDlgPrintSchemeInkCut::CDlgPrintSchemeInkCut() : CSchemePage(IDD_SCHEME_INK_CUT) {}

void CDlgPrintSchemeInkCut::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    for (int k = 0; k < ROW_COUNT; ++k)
    {
        const auto nIndex = static_cast<size_t>(k);
        DDX_Control(pDX, IDC_SLIDER_INK_CUT_FIRST + 2 * k, m_sliderInkCut[nIndex]);
        DDX_Control(pDX, IDC_EDIT_INK_CUT_FIRST + 2 * k, m_editInkCut[nIndex]);
        DDX_Control(pDX, IDC_STATIC_PERCENT_FIRST + k, m_lblPercent[nIndex]);
        DDX_Control(pDX, IDC_STATIC_COLOR_FIRST + k, m_lblColor[nIndex]);
        DDX_Text(pDX, IDC_EDIT_INK_CUT_FIRST + 2 * k, m_fInkCut[nIndex]);
    }
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeInkCut, CSchemePage)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

BOOL CDlgPrintSchemeInkCut::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    for (CSliderCtrl& slider : m_sliderInkCut)
        slider.SetRange(0, MAX_PERCENT);
    UpdateCtrlState();
    LoadFromScheme();
    return TRUE;
}

void CDlgPrintSchemeInkCut::UpdateCtrlState()
{
    if (!m_sliderInkCut.front().GetSafeHwnd())
        return;
    for (CSliderCtrl& slider : m_sliderInkCut)
        EnableControl(slider, IsEditable());
}

void CDlgPrintSchemeInkCut::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    const Groups groups = GroupsOfRows();
    for (size_t k = 0; k < groups.size(); ++k)
    {
        ShowRow(static_cast<int>(k), groups[k] != nullptr);
        if (groups[k])
            LoadRow(k, *groups[k]);
    }
    UpdateData(FALSE);
}

// The trackbar, not the number beside it, is what is stored.
void CDlgPrintSchemeInkCut::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    const Groups groups = GroupsOfRows();
    IInkGroupTable* pTable = InkGroups();
    for (size_t k = 0; pTable && k < groups.size(); ++k)
    {
        if (!groups[k])
            continue;
        const std::uint8_t nColor = pTable->GetColorIndex(groups[k]->GetId());
        const auto nPercent = static_cast<std::uint8_t>(m_sliderInkCut[k].GetPos());
        WithScheme([=](auto& scheme) { scheme.SetInkCut(nPercent, nColor); });
    }
}

void CDlgPrintSchemeInkCut::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    for (size_t k = 0; pScrollBar && k < m_sliderInkCut.size(); ++k)
        if (m_sliderInkCut[k].m_hWnd == pScrollBar->m_hWnd)
        {
            m_fInkCut[k] = static_cast<float>(m_sliderInkCut[k].GetPos());
            UpdateData(FALSE);
        }
    CSchemePage::OnHScroll(nSBCode, nPos, pScrollBar);
}

// Row k belongs to the first group that holds the channel with id k. At least six rows are probed, more when a group
// has more channels.
CDlgPrintSchemeInkCut::Groups CDlgPrintSchemeInkCut::GroupsOfRows()
{
    Groups groups{};
    std::uint32_t nRows = MIN_PROBED_ROWS;
    ForEachActiveGroup([&](IInkGroup& group) {
        const std::uint32_t nChannels = SaneCount(group.GetChannelCount(), MAX_INK_COUNT);
        nRows = std::max(nRows, nChannels);
        for (std::uint32_t i = 0; i < nChannels; ++i)
        {
            IInkChannel* pChannel = group.GetChannel(i);
            const size_t nRow = pChannel ? pChannel->GetId() : groups.size();
            if (nRow < groups.size() && !groups[nRow])
                groups[nRow] = &group;
        }
    });
    for (size_t k = nRows; k < groups.size(); ++k)
        groups[k] = nullptr;
    return groups;
}

void CDlgPrintSchemeInkCut::ShowRow(int nRow, bool bShow)
{
    ShowControls(std::initializer_list<int>{IDC_STATIC_COLOR_FIRST + nRow, IDC_EDIT_INK_CUT_FIRST + 2 * nRow,
                                            IDC_STATIC_PERCENT_FIRST + nRow, IDC_SLIDER_INK_CUT_FIRST + 2 * nRow},
                 bShow);
}

void CDlgPrintSchemeInkCut::LoadRow(size_t nRow, IInkGroup& group)
{
    ShowText(m_lblColor[nRow], TranslatedName(group.GetName()));
    IInkGroupTable* pTable = InkGroups();
    const std::uint8_t nColor = pTable ? pTable->GetColorIndex(group.GetId()) : std::uint8_t{0};
    const int nPercent = ValueOf([=](auto& scheme) { return scheme.GetInkCut(nColor); }, 0);
    m_fInkCut[nRow] = static_cast<float>(nPercent);
    m_sliderInkCut[nRow].SetPos(nPercent);
}
