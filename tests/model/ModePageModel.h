#pragma once

#include "tests/model/SchemePageModel.h"

class ModePageModel : public SchemePageModel
{
public:
    explicit ModePageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

private:
    const refhost::PrintConfig* Config() const;
    void ShowDetails();

    std::vector<int> m_modes; // data of the rows
    int m_row = -1;
    int m_passRow = 0;
    int m_residentRow = 0;
};
