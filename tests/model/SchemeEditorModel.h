#pragma once

#include "tests/model/CommonPageModel.h"
#include "tests/model/ConfigFields.h"
#include "tests/model/CustomEclosionModel.h"
#include "tests/model/EclosionPageModel.h"
#include "tests/model/InkCutPageModel.h"
#include "tests/model/InkMultiplePageModel.h"
#include "tests/model/LampPageModel.h"
#include "tests/model/SmallFormatPageModel.h"

#include <memory>
#include <optional>
#include <set>

// What the factory and the user editor have in common.
class SchemeEditorModel : public EditorModel
{
public:
    void Hear(const Notice& notice) override;
    std::vector<Shown> Display() const override;

    // What the dialog for a configuration shows.
    ConfigFields ViewedConfig() const;
    void EndViewing() { Closed(); }

    int Id() const { return m_scheme.Id(); }

protected:
    SchemeEditorModel(const refhost::Machine& machine, bool isUserEditor);

    struct SchemeRow
    {
        std::wstring text;
        int id;
    };

    virtual void FillSchemes() = 0;
    virtual void AddScheme() = 0;
    virtual bool CanDelete(int id) const = 0;
    virtual void RemoveDeleted(const std::set<int>& ids) = 0;
    virtual std::string SaveRequest() const = 0;
    // A menu command or a button of one editor only.
    virtual void Command(int) {}

    void FillConfigs();
    // The rows have changed; the pages get the scheme of the row.
    void SelectRow(int row, bool saveFirst);
    void AppendAndSelect(const SchemeRow& row);
    std::wstring ConfigName(const refhost::PrintConfig& config) const;
    const refhost::PrintConfig* SelectedConfig() const;
    // Before or behind the pages that both editors have.
    void InsertPage(std::size_t at, std::unique_ptr<SchemePageModel> page);

    ShownScheme m_scheme;
    int m_config = -1;
    std::vector<SchemeRow> m_rows;
    int m_row = -1;

private:
    void HearEditor(const Notice& notice);
    void Press(int button);
    void HearPage(const Notice& notice);
    void HearCustomEclosion(const Notice& notice);
    void SavePages();
    void DeleteScheme();
    void Finish();

    std::vector<std::unique_ptr<SchemePageModel>> m_pages; // in tab order
    EclosionPageModel* m_eclosionPage;
    std::optional<CustomEclosionModel> m_customEclosion;
    Texts m_configRows;
    std::set<int> m_deleted;
};
