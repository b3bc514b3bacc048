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
    using Stored = std::uint8_t refhost::SchemeValues::*;

    struct Lamp
    {
        int check;
        Stored stored;
        bool isOn = false;
    };

    std::array<Lamp, 4> m_lamps;
};
