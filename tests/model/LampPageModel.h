#pragma once

#include "tests/model/SchemePageModel.h"

#include <array>

class LampPageModel : public SchemePageModel
{
public:
    explicit LampPageModel(ShownScheme& scheme);

    void Load() override;
    bool Save() override;
    void Change(const Notice& notice) override;
    void AddTo(std::vector<Shown>& display) const override;

private:
    struct Lamp
    {
        int check;
        std::uint8_t refhost::SchemeValues::*stored;
        bool isOn = false;
    };

    std::array<Lamp, 4> m_lamps;
};
