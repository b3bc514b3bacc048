#include "dialogs/data/CopyScheme.h"

#include "dialogs/data/Schemes.h"
#include "host/ISchemeParams.h"

namespace
{
// Values that every scheme record holds, by colour.
constexpr std::uint8_t INK_MULTIPLE_COUNT = 16;
constexpr std::uint8_t INK_CUT_COUNT = 32;

void CopyFields(IUserScheme& target, IPrintScheme& source, SchemeField first, SchemeField last)
{
    for (int i = static_cast<int>(first); i <= static_cast<int>(last); ++i)
        SetField(target, static_cast<SchemeField>(i), GetField(source, static_cast<SchemeField>(i)));
}

void CopyInk(IUserScheme& target, IPrintScheme& source)
{
    for (std::uint8_t i = 0; i < INK_MULTIPLE_COUNT; ++i)
        target.SetInkMultiple(source.GetInkMultiple(i), i);
    for (std::uint8_t i = 0; i < INK_CUT_COUNT; ++i)
        target.SetInkCut(source.GetInkCut(i), i);
}

// In the order of the user record's setters. Small-format settings are not copied: they are read through the base.
void CopyValues(IUserScheme& target, IPrintScheme& source, int sourceId)
{
    CopyFields(target, source, SchemeField::ConfigIndex, SchemeField::ConfigIndex);
    target.SetBaseScheme(static_cast<std::uint8_t>(sourceId));
    CopyFields(target, source, SchemeField::Speed, SchemeField::HeadEclosionType);
    CopyInk(target, source);
    CopyFields(target, source, SchemeField::LampLL, SchemeField::Channel);
}

template <class Scheme>
void CopyBlock(Scheme& target, Scheme* source)
{
    ISchemeParams* to = target.GetParams();
    ISchemeParams* from = source ? source->GetParams() : nullptr;
    if (to && from)
        to->CopyFrom(from);
}
} // namespace

void CopySchemeInto(IUserScheme& target, int sourceId)
{
    if (IsUserSchemeId(sourceId))
        CopyBlock(target, UserSchemeAt(sourceId));
    else if (IPrintScheme* source = FactorySchemeAt(sourceId))
        CopyValues(target, *source, sourceId);
}

void CopySchemeInto(IPrintScheme& target, int sourceId)
{
    CopyBlock(target, FactorySchemeAt(sourceId));
}
