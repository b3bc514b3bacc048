#pragma once

#include "tests/model/SchemePageModel.h"

class InkMultiplePageModel : public SchemePageModel
{
public:
    explicit InkMultiplePageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

    int Rows() const { return static_cast<int>(m_rows.size()); }

private:
    struct ColorRow
    {
        std::uint8_t color;
        int row;
    };

    const refhost::Layout* Layout() const;
    void AddRow(std::uint16_t channelId);

    std::vector<ColorRow> m_rows;
    bool m_wasLoaded = false; // until then all rows are to be seen
};
