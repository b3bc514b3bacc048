#include "dialogs/printmode/DlgPrintModeData.h"

#include "dialogs/data/Machine.h"
#include "dialogs/data/PrintModes.h"
#include "resources/resource.h"

#include <vector>

namespace
{
constexpr const wchar_t* NO_DATA_MODE = L"No";

// The value that the host stores for the text of a row; negative when no data mode that can be stored has that name.
int DataModeOf(IHeadLayout& head, const CString& text)
{
    if (text.CompareNoCase(NO_DATA_MODE) == 0)
        return NO_DATA_MODE_VALUE;
    return FindDataMode(head, [&](const std::wstring& name) { return text.CompareNoCase(name.c_str()) == 0; });
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
    RECT rect;
    GetDlgItem(IDC_STATIC_GRID)->GetWindowRect(&rect);
    ScreenToClient(&rect);
    m_grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, rect, this, IDC_GRID_DATA_MODE);
    m_grid.EnableHeaderCtrl(TRUE, L"喷头物理布局", L"数据处理模式"); // in every language, as required
    m_grid.EnableDescriptionArea(FALSE);
    m_grid.SetVSDotNetLook();
    m_grid.MarkModifiedProperties();
    m_grid.SetAlphabeticMode(FALSE);
    m_grid.SetCustomColors(0xE1E1E1, 0, 0xC4C4C4, 0, 0xA8A8A8, 0, 0);
}

void CDlgPrintModeData::AttachMode(IPrintMode* mode)
{
    m_pMode = mode;
    Rebuild();
}

void CDlgPrintModeData::Rebuild()
{
    m_grid.RemoveAll();
    if (!m_pMode)
        return;
    std::vector<std::unique_ptr<CMFCPropertyGridProperty>> properties;
    ForEach(HostData().GetHeadLayoutList(), [&](IHeadLayout& head, int row) {
        if (head.GetDataModeCount() != 0)
            properties.push_back(MakeProperty(head, row)); // the mode stores by the head's place in the whole list
    });
    for (auto& property : properties)
    {
        const BOOL isLast = &property == &properties.back(); // the grid is laid out and drawn once
        m_grid.AddProperty(property.release(), isLast, isLast);
    }
}

std::unique_ptr<CMFCPropertyGridProperty> CDlgPrintModeData::MakeProperty(IHeadLayout& head, int row)
{
    const std::wstring name = HostText(head.GetName());
    auto property = std::make_unique<CMFCPropertyGridProperty>(name.c_str(), L"", nullptr, head.GetId());
    property->AllowEdit(FALSE);
    SetOptions(*property, head, static_cast<std::uint32_t>(row));
    return property;
}

void CDlgPrintModeData::SetOptions(CMFCPropertyGridProperty& property, IHeadLayout& head, std::uint32_t row)
{
    const std::uint8_t stored = m_pMode->GetHeadDataMode(row);
    property.AddOption(NO_DATA_MODE);
    property.SetValue(NO_DATA_MODE);
    if (stored == FIRST_DATA_MODE_VALUE)
        m_pMode->SetHeadDataMode(NO_DATA_MODE_VALUE, row);
    ForEach(&head, [&](IDataMode& mode, int index) {
        if (index == FIRST_DATA_MODE_VALUE)
            return;
        const std::wstring name = HostTextForFormat(mode.GetName());
        property.AddOption(name.c_str());
        if (index == stored && stored != NO_DATA_MODE_VALUE)
            property.SetValue(name.c_str());
    });
}

LRESULT CDlgPrintModeData::OnPropertyChanged(WPARAM, LPARAM lParam)
{
    const auto* property = reinterpret_cast<CMFCPropertyGridProperty*>(lParam);
    const auto id = static_cast<std::uint16_t>(property->GetData());
    IHeadLayoutList* list = HostData().GetHeadLayoutList();
    if (!list)
        return 0;
    const std::int32_t row = list->IndexOfId(id);
    IHeadLayout* head = list->FindById(id);
    if (!head || row < 0)
        return 0;
    const int value = DataModeOf(*head, property->GetValue());
    if (value >= 0)
        m_pMode->SetHeadDataMode(static_cast<std::uint8_t>(value), static_cast<std::uint32_t>(row));
    return 0;
}
