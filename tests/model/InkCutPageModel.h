#pragma once

#include "tests/model/SchemePageModel.h"

#include <array>

class InkCutPageModel : public SchemePageModel
{
public:
    explicit InkCutPageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

private:
    struct CutRow
    {
        bool isShown = true;
        int number = 0;
        int position = 0;
    };

    int RowCount() const;
    // Null where no group in use has the channel of the row.
    const refhost::InkGroup* GroupOf(int row) const;
    const refhost::InkGroup* FindGroup(std::uint16_t id) const;
    bool HasChannel(std::uint16_t id) const;

    std::array<CutRow, 12> m_rows;
};
