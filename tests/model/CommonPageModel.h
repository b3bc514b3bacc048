#pragma once

#include "tests/model/SchemePageModel.h"

class CommonPageModel : public SchemePageModel
{
public:
    explicit CommonPageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

private:
    void FillMaterials();
    void FillWaves();
    void FillChannels();
    void FillLayouts();
    void FillHeads();
    void ChangeLayout(int row);
    void SaveFactoryOnly(refhost::FactoryScheme& scheme) const;
    int LayoutId() const;
    static int DataOf(const std::vector<int>& data, int row);

    int m_enabledRow = 1;
    int m_speedRow = 0;
    int m_directionRow = 0;
    int m_waitRow = 0;
    int m_waveRow = -1;
    int m_channelRow = -1;
    std::vector<int> m_materials; // data of the rows
    int m_materialRow = -1;
    int m_layoutRow = -1;
    std::vector<int> m_heads; // data of the rows
    int m_headRow = -1;
    std::wstring m_nameText;
};
