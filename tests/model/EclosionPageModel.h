#pragma once

#include "tests/model/SchemePageModel.h"

#include <array>

class EclosionPageModel : public SchemePageModel
{
public:
    explicit EclosionPageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

    // The operator has chosen the type whose settings a dialog of its own asks for. Told once.
    bool AsksForCustomEclosion();

private:
    using Stored = std::uint8_t refhost::SchemeValues::*;

    struct Range
    {
        int edit;
        Stored stored;
        std::wstring text = L"0";
        int member = 0;
    };

    void FillTypes(const refhost::SchemeValues* values);
    void FillLevels(const refhost::SchemeValues* values);
    void ShowMembers();
    bool TakeMembers();
    void ChangeRow(int combo, int row);

    std::vector<int> m_types; // data of the rows
    int m_typeRow = -1;
    int m_levelRow = -1;
    int m_dotRow = 0;
    int m_headTypeRow = 0;
    int m_position = 0;
    std::array<Range, 5> m_ranges; // in the order of the exchange; the custom one is the last
    bool m_asks = false;
};
