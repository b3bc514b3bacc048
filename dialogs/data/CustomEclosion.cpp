#include "dialogs/data/CustomEclosion.h"

#include <algorithm>

namespace
{
constexpr std::uint32_t MIN_ECLOSIONS = 4;
constexpr int DEFAULT_MODES = 2;

void AddDefaultElement(IEclosionMode& mode)
{
    if (IEclosionElement* element = mode.AddElement())
    {
        element->SetWidth(MIN_ELEMENT_SIZE);
        element->SetHeight(MIN_ELEMENT_SIZE);
    }
}

void AddDefaultEclosion(ICustomEclosionSet& set)
{
    ICustomEclosion* eclosion = set.AddEclosion();
    if (!eclosion)
        return;
    eclosion->SetLocked(1);
    eclosion->SetCurrentMode(0);
    for (int i = 0; i < DEFAULT_MODES; ++i)
        if (IEclosionMode* mode = eclosion->AddMode())
        {
            AddDefaultElement(*mode);
            AddDefaultElement(*mode);
        }
}

void LockEclosion(ICustomEclosion* eclosion)
{
    if (eclosion && !eclosion->IsLocked())
        eclosion->SetLocked(1);
}
} // namespace

void PrepareEclosionSet(ICustomEclosionSet& set)
{
    const std::uint32_t count = set.GetCount();
    for (std::uint32_t i = 0; i < std::min(count, MIN_ECLOSIONS); ++i)
        LockEclosion(At(&set, i));
    for (std::uint32_t i = count; i < MIN_ECLOSIONS; ++i)
        AddDefaultEclosion(set);
    if (set.GetCurrentIndex() != 0)
        set.SetCurrentIndex(0);
}

PreviewFrame ElementPreview(const PreviewFrame& frame, int width, int height)
{
    const int unit = std::min(frame.bottom - frame.top, frame.right - frame.left) / MAX_ELEMENT_SIZE;
    const int shownWidth = width * unit;
    const int shownHeight = height * unit;
    const int left = (frame.left + frame.right) / 2 - shownWidth / 2;
    const int top = (frame.top + frame.bottom) / 2 - shownHeight / 2;
    return {left, top, left + shownWidth, top + shownHeight};
}
