#include "dialogs/printmode/DlgPrintModeData.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "host/IDataMode.h"
#include "host/IHeadLayout.h"
#include "host/IHeadLayoutList.h"
#include "host/IHostData.h"
#include "host/IPrintMode.h"
#include "resources/resource.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr LPCTSTR NO_DATA_MODE = L"No";
constexpr std::uint8_t NO_DATA_MODE_VALUE = 255;

// The first data mode is never offered: "No" stands in its place, and a stored 0 means it too.
constexpr std::uint8_t FIRST_DATA_MODE_VALUE = 0;

// The value that the host stores for a row's text; negative when no data mode has that name that a byte can name, 255
// being taken for none.
int DataModeOf(IHeadLayout& layout, const CString& strText)
{
    if (strText.CompareNoCase(NO_DATA_MODE) == 0)
        return NO_DATA_MODE_VALUE;
    const std::uint32_t nCount = std::min<std::uint32_t>(layout.GetDataModeCount(), NO_DATA_MODE_VALUE);
    for (std::uint32_t i = 0; i < nCount; ++i)
    {
        IDataMode* pDataMode = layout.GetDataMode(i);
        if (pDataMode && HostTextForFormat(pDataMode->GetName()).CompareNoCase(strText) == 0)
            return static_cast<int>(i);
    }
    return -1;
}
} // namespace

CDlgPrintModeData::CDlgPrintModeData() : CDialogEx(IDD_PRINT_MODE_DATA) {}

BEGIN_MESSAGE_MAP(CDlgPrintModeData, CDialogEx)
    ON_REGISTERED_MESSAGE(AFX_WM_PROPERTY_CHANGED, &CDlgPrintModeData::OnPropertyChanged)
END_MESSAGE_MAP()

BOOL CDlgPrintModeData::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_MODE", this);
    CreateGrid();
    return TRUE;
}

int CDlgPrintModeData::ApplyLanguage()
{
    // Neither control is in this page's template: both are passed over.
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_CFG, L"IDC_STATIC_CFG", L""},
        {IDC_STATIC_MODE, L"IDC_STATIC_MODE", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintModeData::CreateGrid()
{
    RECT rc;
    GetDlgItem(IDC_STATIC_GRID)->GetWindowRect(&rc);
    ScreenToClient(&rc);
    m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, rc, this, IDC_GRID_DATA_MODE);
    m_grid.EnableHeaderCtrl(TRUE, L"喷头物理布局", L"数据处理模式");
    m_grid.EnableDescriptionArea(FALSE);
    m_grid.SetVSDotNetLook();
    m_grid.MarkModifiedProperties();
    m_grid.SetAlphabeticMode(FALSE);
    m_grid.SetCustomColors(0xE1E1E1, 0, 0xC4C4C4, 0, 0xA8A8A8, 0, 0);
}

void CDlgPrintModeData::AttachMode(IPrintMode* pMode)
{
    m_pMode = pMode;
    Rebuild();
}

void CDlgPrintModeData::Rebuild()
{
    m_grid.RemoveAll();
    IHostData* pData = GetHostContext().pData;
    IHeadLayoutList* pList = pData && m_pMode ? pData->GetHeadLayoutList() : nullptr;
    const std::uint32_t nCount = HostCount(pList);
    std::vector<std::unique_ptr<CMFCPropertyGridProperty>> rows;
    for (std::uint32_t i = 0; i < nCount; ++i)
    {
        IHeadLayout* pLayout = pList->GetAt(i);
        if (pLayout && pLayout->GetDataModeCount() != 0)
            rows.push_back(MakeRow(*pLayout, i)); // without a row it counts too: the mode stores by its position
    }
    for (auto& pRow : rows)
    {
        const BOOL bLast = &pRow == &rows.back(); // the grid is laid out and drawn once, however many rows it gets
        m_grid.AddProperty(pRow.release(), bLast, bLast);
    }
}

std::unique_ptr<CMFCPropertyGridProperty> CDlgPrintModeData::MakeRow(IHeadLayout& layout, std::uint32_t nRow)
{
    auto pProperty =
        std::make_unique<CMFCPropertyGridProperty>(HostText(layout.GetName()), L"", nullptr, layout.GetId());
    pProperty->AllowEdit(FALSE);
    SetOptions(*pProperty, layout, nRow);
    return pProperty;
}

void CDlgPrintModeData::SetOptions(CMFCPropertyGridProperty& property, IHeadLayout& layout, std::uint32_t nRow)
{
    const std::uint8_t nStored = m_pMode->GetHeadDataMode(nRow);
    property.AddOption(NO_DATA_MODE);
    property.SetValue(NO_DATA_MODE);
    if (nStored == FIRST_DATA_MODE_VALUE)
        m_pMode->SetHeadDataMode(NO_DATA_MODE_VALUE, nRow);
    const std::uint32_t nCount = SaneCount(layout.GetDataModeCount());
    for (std::uint32_t k = 1; k < nCount; ++k)
    {
        IDataMode* pDataMode = layout.GetDataMode(k);
        if (!pDataMode)
            continue;
        const CString strName = HostTextForFormat(pDataMode->GetName());
        property.AddOption(strName);
        if (k == nStored && nStored != NO_DATA_MODE_VALUE)
            property.SetValue(strName);
    }
}

LRESULT CDlgPrintModeData::OnPropertyChanged(WPARAM, LPARAM lParam)
{
    const auto* pProperty = reinterpret_cast<CMFCPropertyGridProperty*>(lParam);
    const auto nId = static_cast<std::uint16_t>(pProperty->GetData());
    IHeadLayoutList* pList = GetHostContext().pData->GetHeadLayoutList();
    if (!pList)
        return 0;
    const std::int32_t nRow = pList->IndexOfId(nId);
    IHeadLayout* pLayout = pList->FindById(nId);
    if (!pLayout || nRow < 0)
        return 0;
    const int nValue = DataModeOf(*pLayout, pProperty->GetValue());
    if (nValue >= 0)
        m_pMode->SetHeadDataMode(static_cast<std::uint8_t>(nValue), static_cast<std::uint32_t>(nRow));
    return 0;
}
