#pragma once

#include "tests/model/EditorModel.h"

// The dialog for custom eclosions: it edits the first definition of the set.
class CustomEclosionModel
{
public:
    explicit CustomEclosionModel(refhost::CustomEclosionSet& set);

    void Hear(const Notice& notice);
    std::vector<Shown> Display() const;

    bool HasEnded() const { return m_hasEnded; }
    bool IsSaved() const { return m_isSaved; }

private:
    using Size = std::uint8_t refhost::EclosionElement::*;

    struct Slider
    {
        int id;
        std::size_t element;
        Size size;
        int position;
    };

    void Normalise();
    void ShowMode();
    void ShowElements();
    void AddMode();
    void DeleteMode();
    void ChooseMode(int index);
    void Press(int button);
    void Move(int id, int position, bool isHeard);
    refhost::CustomEclosion& Definition() const { return m_set.definitions[0]; }
    // Null where the definition has no such mode.
    refhost::EclosionMode* Mode() const;

    refhost::CustomEclosionSet& m_set;
    int m_mode = 0;
    int m_rangePosition = 0;
    int m_rangeText = 0;
    std::vector<Slider> m_sliders;
    std::size_t m_shownElements = 0;
    bool m_hasEnded = false;
    bool m_isSaved = false;
};
