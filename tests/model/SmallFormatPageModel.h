#pragma once

#include "tests/model/SchemePageModel.h"

class SmallFormatPageModel : public SchemePageModel
{
public:
    explicit SmallFormatPageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

private:
    int m_modeRow = 1;
    std::wstring m_offsetText = L"0";
    int m_offset = 0;
};
