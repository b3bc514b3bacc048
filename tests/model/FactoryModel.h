#pragma once

#include "tests/model/SchemeEditorModel.h"

// The factory print-scheme editor.
class FactoryModel : public SchemeEditorModel
{
public:
    explicit FactoryModel(const refhost::Machine& machine);

    // The right button was let go over the editor, at the height of a row that may not exist.
    void PointAt(int row);

    // The dialog to copy a scheme has ended by OK.
    void CopyTo(const std::vector<int>& configs);
    void CancelCopying() { Closed(); }
    Texts OfferedConfigs() const;

protected:
    void FillSchemes() override;
    void AddScheme() override;
    bool CanDelete(int id) const override { return id >= 0; }
    void RemoveDeleted(const std::set<int>& ids) override;
    std::string SaveRequest() const override { return "SaveParameters(2)"; }
    void Command(int id) override;
};
