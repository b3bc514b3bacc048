#pragma once

#include "dialogs/data/HostList.h"
#include "host/ICustomEclosion.h"
#include "host/ICustomEclosionSet.h"
#include "host/IEclosionElement.h"
#include "host/IEclosionMode.h"

// The custom eclosion definitions of the host: a set of definitions, each with a range and modes, each mode with
// rectangular elements.

template <>
struct HostItems<ICustomEclosionSet>
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(ICustomEclosionSet& set) { return set.GetCount(); }
    static ICustomEclosion* At(ICustomEclosionSet& set, std::uint32_t index) { return set.GetEclosion(index); }
};

template <>
struct HostItems<ICustomEclosion>
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(ICustomEclosion& eclosion) { return eclosion.GetModeCount(); }
    static IEclosionMode* At(ICustomEclosion& eclosion, std::uint32_t index) { return eclosion.GetMode(index); }
};

template <>
struct HostItems<IEclosionMode>
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(IEclosionMode& mode) { return mode.GetElementCount(); }
    static IEclosionElement* At(IEclosionMode& mode, std::uint32_t index) { return mode.GetElement(index); }
};

constexpr std::uint32_t MAX_ECLOSION_MODES = 3;
constexpr std::uint32_t MAX_ECLOSION_ELEMENTS = 2;

// Widths and heights of elements.
constexpr int MIN_ELEMENT_SIZE = 1;
constexpr int MAX_ELEMENT_SIZE = 8;

// Brings the set to the four definitions that schemes can name, each marked locked, and makes the first one current.
void PrepareEclosionSet(ICustomEclosionSet& set);

struct PreviewFrame
{
    int left;
    int top;
    int right;
    int bottom;
};

// The rectangle that shows an element in its frame: centred, a step being an eighth of the frame's shorter side.
PreviewFrame ElementPreview(const PreviewFrame& frame, int width, int height);
