#include "tests/model/SchemeEditorModel.h"

#include "resources/resource.h"

#include <algorithm>

SchemeEditorModel::SchemeEditorModel(const refhost::Machine& machine, bool isUserEditor)
    : EditorModel(machine), m_scheme(m_machine, isUserEditor)
{
    auto eclosionPage = std::make_unique<EclosionPageModel>(m_scheme);
    m_eclosionPage = eclosionPage.get();
    m_pages.push_back(std::make_unique<CommonPageModel>(m_scheme));
    m_pages.push_back(std::move(eclosionPage));
    m_pages.push_back(std::make_unique<InkMultiplePageModel>(m_scheme));
    m_pages.push_back(std::make_unique<InkCutPageModel>(m_scheme));
    m_pages.push_back(std::make_unique<LampPageModel>(m_scheme));
    m_pages.push_back(std::make_unique<SmallFormatPageModel>(m_scheme));
}

void SchemeEditorModel::InsertPage(std::size_t at, std::unique_ptr<SchemePageModel> page)
{
    m_pages.insert(m_pages.begin() + static_cast<std::ptrdiff_t>(at), std::move(page));
}

void SchemeEditorModel::Hear(const Notice& notice)
{
    const bool isEditor = notice.dialog == IDD_SCHEME_FACTORY || notice.dialog == IDD_SCHEME_USER;
    if (isEditor && notice.message == WM_COMMAND)
        HearEditor(notice);
    else if (notice.dialog == IDD_CUSTOM_ECLOSION)
        HearCustomEclosion(notice);
    else if (!isEditor && !notice.isNested)
        HearPage(notice);
}

void SchemeEditorModel::HearEditor(const Notice& notice)
{
    if (notice.control == IDC_LIST_CFG && notice.code == LBN_SELCHANGE)
    {
        m_config = notice.state;
        FillSchemes();
    }
    else if (notice.control == IDC_LIST_CFG && notice.code == LBN_DBLCLK)
    {
        if (SelectedConfig())
            Open(IDD_PRINT_MODE_ADD_CFG);
    }
    else if (notice.control == IDC_LIST_SCHEME && notice.code == LBN_SELCHANGE)
        SelectRow(notice.state, true);
    else if (notice.code == BN_CLICKED)
        Press(notice.control);
}

void SchemeEditorModel::Press(int button)
{
    switch (button)
    {
    case IDC_BTN_ADD_SCHEME:
        return AddScheme();
    case IDC_BTN_DEL_SCHEME:
        return DeleteScheme();
    case IDOK:
        return Finish();
    case IDCANCEL:
        return End();
    default:
        return Command(button);
    }
}

void SchemeEditorModel::HearPage(const Notice& notice)
{
    for (const std::unique_ptr<SchemePageModel>& page : m_pages)
        if (page->Template() == notice.dialog)
            page->Change(notice);
    if (!m_eclosionPage->AsksForCustomEclosion())
        return;
    m_customEclosion.emplace(m_machine.customEclosions);
    Open(IDD_CUSTOM_ECLOSION);
}

void SchemeEditorModel::HearCustomEclosion(const Notice& notice)
{
    if (!m_customEclosion)
        return;
    m_customEclosion->Hear(notice);
    if (!m_customEclosion->HasEnded())
        return;
    if (m_customEclosion->IsSaved())
    {
        Save("SaveCustomEclosionSet()");
        if (refhost::SchemeValues* const values = m_scheme.Values())
            values->customEclosionId = static_cast<std::uint32_t>(m_machine.customEclosions.currentIndex);
    }
    m_customEclosion.reset();
    Closed();
}

void SchemeEditorModel::FillConfigs()
{
    for (const refhost::PrintConfig& config : m_machine.configurations)
        m_configRows.push_back(ConfigName(config));
    m_config = m_configRows.empty() ? -1 : 0;
}

std::wstring SchemeEditorModel::ConfigName(const refhost::PrintConfig& config) const
{
    if (!config.name.empty())
        return Wide(config.name);
    return L"[" + std::to_wstring(config.xResolution) + L"X" + std::to_wstring(config.yResolution) + L"][" +
           std::to_wstring(config.colorCount) + L"C][" + std::to_wstring(config.dotBits) + L"b]";
}

const refhost::PrintConfig* SchemeEditorModel::SelectedConfig() const
{
    return m_config < 0 ? nullptr : &m_machine.configurations[static_cast<std::size_t>(m_config)];
}

ConfigFields SchemeEditorModel::ViewedConfig() const
{
    return FieldsOf(*SelectedConfig(), m_machine.codePage);
}

void SchemeEditorModel::SelectRow(int row, bool saveFirst)
{
    if (saveFirst)
        SavePages();
    m_row = row;
    const int id = row < 0 ? kNoScheme : m_rows[static_cast<std::size_t>(row)].id;
    m_scheme.Show(id, id < 0 ? -1 : m_config);
    for (const std::unique_ptr<SchemePageModel>& page : m_pages)
        page->Load();
}

void SchemeEditorModel::AppendAndSelect(const SchemeRow& row)
{
    m_rows.push_back(row);
    SelectRow(static_cast<int>(m_rows.size()) - 1, true);
}

void SchemeEditorModel::SavePages()
{
    for (const std::unique_ptr<SchemePageModel>& page : m_pages)
        if (!page->Save())
            Prompt();
}

void SchemeEditorModel::DeleteScheme()
{
    const int id = m_row < 0 ? kNoScheme : m_rows[static_cast<std::size_t>(m_row)].id;
    if (m_config < 0 || !CanDelete(id))
        return;
    m_deleted.insert(id);
    m_rows.erase(m_rows.begin() + m_row);
    SelectRow(std::min(m_row, static_cast<int>(m_rows.size()) - 1), false);
}

void SchemeEditorModel::Finish()
{
    SavePages();
    RemoveDeleted(m_deleted);
    Save(SaveRequest());
    End();
}

std::vector<Shown> SchemeEditorModel::Display() const
{
    if (m_customEclosion)
        return m_customEclosion->Display();
    const int editor = m_scheme.IsUserEditor() ? IDD_SCHEME_USER : IDD_SCHEME_FACTORY;
    Texts schemes;
    for (const SchemeRow& row : m_rows)
        schemes.push_back(row.text);
    std::vector<Shown> display = {ShownRows(editor, IDC_LIST_CFG, m_configRows),
                                  ShownRow(editor, IDC_LIST_CFG, m_config), ShownRows(editor, IDC_LIST_SCHEME, schemes),
                                  ShownRow(editor, IDC_LIST_SCHEME, m_row)};
    for (const std::unique_ptr<SchemePageModel>& page : m_pages)
        page->AddTo(display);
    return display;
}
