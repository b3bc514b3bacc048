#pragma once

#include "tests/model/SchemeEditorModel.h"

// The user print-scheme editor.
class UserModel : public SchemeEditorModel
{
public:
    explicit UserModel(const refhost::Machine& machine);

    // What the dialog for a new scheme proposes when it opens.
    std::wstring ProposedName() const;
    Texts OfferedSources() const;
    int ProposedSource() const;
    // It has ended by OK.
    void MakeScheme(const std::wstring& name, int source);
    void CancelScheme() { Closed(); }

protected:
    void FillSchemes() override;
    void AddScheme() override;
    bool CanDelete(int id) const override { return id >= kFirstUserScheme; }
    void RemoveDeleted(const std::set<int>& ids) override;
    std::string SaveRequest() const override { return "SaveParameters(3)"; }

private:
    std::vector<SchemeRow> Presets() const;
    std::vector<SchemeRow> Sources() const;
    void CopyPreset(refhost::UserScheme& scheme, int preset) const;
};
