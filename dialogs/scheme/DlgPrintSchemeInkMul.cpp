#include "dialogs/scheme/DlgPrintSchemeInkMul.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/Rows.h"
#include "host/IHostData.h"
#include "host/IInkChannel.h"
#include "host/IInkChannelTable.h"
#include "host/ILayout.h"
#include "host/ILayoutList.h"
#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int MAX_MULTIPLE = 8;
constexpr int TENTHS = 10; // multiples are stored in tenths

// The host appends with its own compiler's code: it must never need to grow the array with its own heap. So there is
// room for as many channels as there are channel ids.
constexpr std::size_t CHANNEL_ROOM = 65536;

std::uint8_t ColorIndexOf(IInkChannelTable& table, IInkChannel& channel)
{
    return table.GetColorIndex(channel.GetId());
}
} // namespace

CDlgPrintSchemeInkMul::CDlgPrintSchemeInkMul() : CSchemePage(IDD_SCHEME_INK_MUL) {}

void CDlgPrintSchemeInkMul::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    for (int k = 0; k < ROW_COUNT; ++k)
    {
        DDX_Control(pDX, IDC_CMB_INK_MUL_FIRST + k, m_cmbInkMul[static_cast<size_t>(k)]);
        DDX_Control(pDX, IDC_STATIC_COLOR_FIRST + k, m_lblColor[static_cast<size_t>(k)]);
    }
}

BOOL CDlgPrintSchemeInkMul::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    UpdateCtrlState();
    LoadFromScheme();
    return TRUE;
}

void CDlgPrintSchemeInkMul::UpdateCtrlState()
{
    if (!m_cmbInkMul.front().GetSafeHwnd())
        return;
    for (CComboBox& combo : m_cmbInkMul)
        EnableControl(combo, IsEditable());
}

void CDlgPrintSchemeInkMul::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    m_vecChannels = ChannelsOfLayout();
    for (int k = 0; k < ROW_COUNT; ++k)
    {
        const auto nIndex = static_cast<size_t>(k);
        const bool bShown = nIndex < m_vecChannels.size() && m_vecChannels[nIndex];
        ShowRow(k, bShown);
        if (bShown)
            LoadRow(k);
    }
}

void CDlgPrintSchemeInkMul::SaveToScheme()
{
    IInkChannelTable* pTable = IsEditable() ? GetHostContext().pData->GetInkChannels() : nullptr;
    for (size_t k = 0; pTable && k < m_vecChannels.size(); ++k)
    {
        if (!m_vecChannels[k])
            continue;
        const auto nTenths = static_cast<std::uint16_t>(SelectedData(m_cmbInkMul[k]) * TENTHS);
        const std::uint8_t nColor = ColorIndexOf(*pTable, *m_vecChannels[k]);
        WithScheme([=](auto& scheme) { scheme.SetInkMultiple(nTenths, nColor); });
    }
}

void CDlgPrintSchemeInkMul::ShowRow(int nRow, bool bShow)
{
    ShowControls(std::initializer_list<int>{IDC_STATIC_COLOR_FIRST + nRow, IDC_CMB_INK_MUL_FIRST + nRow}, bShow);
}

void CDlgPrintSchemeInkMul::LoadRow(int nRow)
{
    const auto nIndex = static_cast<size_t>(nRow);
    IInkChannel& channel = *m_vecChannels[nIndex];
    ShowText(m_lblColor[nIndex], TranslatedName(channel.GetName()));
    IInkChannelTable* pTable = GetHostContext().pData->GetInkChannels();
    const std::uint8_t nColor = pTable ? ColorIndexOf(*pTable, channel) : std::uint8_t{0};
    const int nTenths = ValueOf([=](auto& scheme) { return scheme.GetInkMultiple(nColor); }, 0);
    FillMultiples(m_cmbInkMul[nIndex], nTenths / TENTHS);
}

void CDlgPrintSchemeInkMul::FillMultiples(CComboBox& combo, int nMultiple)
{
    RefillUnlessFull(combo, MAX_MULTIPLE, [&] {
        for (int i = 1; i <= MAX_MULTIPLE; ++i)
        {
            CString strRow;
            strRow.Format(L"%d", i);
            AddRow(combo, strRow, i);
        }
    });
    combo.SetCurSel(nMultiple >= 1 && nMultiple <= MAX_MULTIPLE ? nMultiple - 1 : 0);
}

// What the page has rows for; further channels are left out.
std::vector<IInkChannel*> CDlgPrintSchemeInkMul::ChannelsOfLayout() const
{
    IPrintScheme* pScheme = FactoryScheme();
    std::vector<IInkChannel*> channels;
    if (!pScheme || !HasLayout(pScheme->GetLayoutId()))
        return channels;
    channels.reserve(CHANNEL_ROOM);
    if (IInkChannelTable* pTable = GetHostContext().pData->GetInkChannels())
        pTable->GetChannelsOfLayout(pScheme->GetLayoutId(), &channels);
    const auto nRows = static_cast<std::ptrdiff_t>(std::min<std::size_t>(channels.size(), ROW_COUNT));
    return {channels.begin(), channels.begin() + nRows};
}

bool CDlgPrintSchemeInkMul::HasLayout(std::uint8_t nLayoutId) const
{
    ILayoutList* pList = GetHostContext().pData->GetLayoutList();
    const std::uint32_t nCount = HostCount(pList);
    for (std::uint32_t i = 0; i < nCount; ++i)
    {
        ILayout* pLayout = pList->GetAt(i);
        if (pLayout && pLayout->GetId() == nLayoutId)
            return true;
    }
    return false;
}
