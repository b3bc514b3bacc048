#include "tests/model/CustomEclosionModel.h"

#include "resources/resource.h"

#include <algorithm>
#include <commctrl.h>

namespace
{
constexpr std::size_t kFewestDefinitions = 4;
constexpr std::size_t kMostModes = 3;
constexpr std::size_t kMostElements = 2;
const std::vector<int> kRadios = {IDC_RADIO_MODE1, IDC_RADIO_MODE2, IDC_RADIO_MODE3};

refhost::CustomEclosion NewDefinition()
{
    refhost::EclosionMode mode;
    mode.elements.resize(kMostElements);
    refhost::CustomEclosion definition;
    definition.locked = true;
    definition.modes = {mode, mode};
    return definition;
}
} // namespace

CustomEclosionModel::CustomEclosionModel(refhost::CustomEclosionSet& set)
    : m_set(set), m_sliders{{IDC_SLIDER_ELEMENT1_W, 0, &refhost::EclosionElement::width, 1},
                            {IDC_SLIDER_ELEMENT1_H, 0, &refhost::EclosionElement::height, 1},
                            {IDC_SLIDER_ELEMENT2_W, 1, &refhost::EclosionElement::width, 1},
                            {IDC_SLIDER_ELEMENT2_H, 1, &refhost::EclosionElement::height, 1}}
{
    Normalise();
    m_set.currentIndex = 0;
    m_rangePosition = m_rangeText = Definition().range;
    ShowMode();
}

void CustomEclosionModel::Normalise()
{
    for (std::size_t i = 0; i < std::min(m_set.definitions.size(), kFewestDefinitions); ++i)
        m_set.definitions[i].locked = true;
    while (m_set.definitions.size() < kFewestDefinitions)
        m_set.definitions.push_back(NewDefinition());
}

void CustomEclosionModel::ShowMode()
{
    m_mode = Definition().currentMode;
    ShowElements();
}

void CustomEclosionModel::ShowElements()
{
    const refhost::EclosionMode* const mode = Mode();
    m_shownElements = mode ? std::min(mode->elements.size(), kMostElements) : 0;
    for (Slider& slider : m_sliders)
        if (slider.element < m_shownElements)
            slider.position = mode->elements[slider.element].*slider.size;
}

refhost::EclosionMode* CustomEclosionModel::Mode() const
{
    const auto index = static_cast<std::size_t>(m_mode);
    return m_mode >= 0 && index < Definition().modes.size() ? &Definition().modes[index] : nullptr;
}

void CustomEclosionModel::Hear(const Notice& notice)
{
    const auto radio = std::find(kRadios.begin(), kRadios.end(), notice.control);
    if (notice.message == WM_HSCROLL)
    {
        const bool isHeard = notice.code <= TB_PAGEDOWN || notice.code == TB_THUMBTRACK;
        Move(notice.control, notice.state, isHeard);
    }
    else if (notice.code == BN_CLICKED && radio != kRadios.end())
        ChooseMode(static_cast<int>(radio - kRadios.begin()));
    else if (notice.code == BN_CLICKED)
        Press(notice.control);
}

// Some movements the dialog lets pass: the thumb is moved, the value is not.
void CustomEclosionModel::Move(int id, int position, bool isHeard)
{
    if (id == IDC_SLIDER_ECLO_RANGE)
        m_rangePosition = position;
    if (id == IDC_SLIDER_ECLO_RANGE && isHeard)
        Definition().range = m_rangeText = position;
    for (Slider& slider : m_sliders)
        if (slider.id == id)
        {
            slider.position = position;
            refhost::EclosionMode* const mode = Mode();
            if (isHeard && mode && slider.element < mode->elements.size())
                mode->elements[slider.element].*slider.size = static_cast<std::uint8_t>(position);
        }
}

void CustomEclosionModel::ChooseMode(int index)
{
    m_mode = index;
    Definition().currentMode = index;
    ShowElements();
}

void CustomEclosionModel::Press(int button)
{
    switch (button)
    {
    case IDC_BTN_ADD_ECL_MODE:
        return AddMode();
    case IDC_BTN_DEL_ECL_MODE:
        return DeleteMode();
    case IDC_BTN_ADD_ELEMENT:
        if (Mode() && Mode()->elements.size() < kMostElements)
            Mode()->elements.emplace_back();
        return ShowElements();
    case IDC_BTN_DEL_ELEMENT:
        if (Mode() && !Mode()->elements.empty())
            Mode()->elements.erase(Mode()->elements.begin());
        return ShowElements();
    case IDOK:
        m_isSaved = m_hasEnded = true;
        return;
    case IDCANCEL:
        m_hasEnded = true;
    }
}

void CustomEclosionModel::AddMode()
{
    if (Definition().modes.size() >= kMostModes)
        return;
    Definition().modes.emplace_back();
    ChooseMode(static_cast<int>(Definition().modes.size()) - 1);
}

void CustomEclosionModel::DeleteMode()
{
    if (!Mode())
        return;
    Definition().modes.erase(Definition().modes.begin() + m_mode);
    Definition().currentMode = 0;
    ShowMode();
}

std::vector<Shown> CustomEclosionModel::Display() const
{
    const auto shown = [](int control, bool isShown) {
        return Shown{IDD_CUSTOM_ECLOSION, control, Aspect::Shown, isShown ? 1 : 0, {}};
    };
    const auto position = [](int control, int at) {
        return Shown{IDD_CUSTOM_ECLOSION, control, Aspect::Position, at, {}};
    };
    std::vector<Shown> display = {position(IDC_SLIDER_ECLO_RANGE, m_rangePosition),
                                  ShownText(IDD_CUSTOM_ECLOSION, IDC_EDIT_ECLO_RANGE, std::to_wstring(m_rangeText))};
    for (std::size_t i = 0; i < kRadios.size(); ++i)
        display.push_back(shown(kRadios[i], i < Definition().modes.size()));
    for (const Slider& slider : m_sliders)
        display.insert(display.end(),
                       {shown(slider.id, slider.element < m_shownElements), position(slider.id, slider.position)});
    return display;
}
