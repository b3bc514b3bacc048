#include "dialogs/data/SchemeFields.h"

#include <array>
#include <cstddef>

namespace
{
template <class Scheme>
struct FieldAccess
{
    int (*get)(Scheme& scheme);
    void (*set)(Scheme& scheme, int value);
};

// A getter and its setter.
template <auto GET, auto SET>
struct FieldPair;

template <class Scheme, class Value, class Argument, Value (Scheme::*GET)(), void (Scheme::*SET)(Argument)>
struct FieldPair<GET, SET>
{
    static constexpr FieldAccess<Scheme> ACCESS = {
        [](Scheme& scheme) { return static_cast<int>((scheme.*GET)()); },
        [](Scheme& scheme, int value) { (scheme.*SET)(static_cast<Argument>(value)); },
    };
};

// The one place that names the getter and the setter of each field.
template <class Scheme>
constexpr std::array SHARED_FIELDS = {
    FieldPair<&Scheme::GetConfigIndex, &Scheme::SetConfigIndex>::ACCESS,
    FieldPair<&Scheme::GetSpeed, &Scheme::SetSpeed>::ACCESS,
    FieldPair<&Scheme::GetDirection, &Scheme::SetDirection>::ACCESS,
    FieldPair<&Scheme::GetMaterial, &Scheme::SetMaterial>::ACCESS,
    FieldPair<&Scheme::GetDotMode, &Scheme::SetDotMode>::ACCESS,
    FieldPair<&Scheme::GetDefaultRangeSS, &Scheme::SetDefaultRangeSS>::ACCESS,
    FieldPair<&Scheme::GetDefaultRangeS, &Scheme::SetDefaultRangeS>::ACCESS,
    FieldPair<&Scheme::GetDefaultRangeM, &Scheme::SetDefaultRangeM>::ACCESS,
    FieldPair<&Scheme::GetDefaultRangeL, &Scheme::SetDefaultRangeL>::ACCESS,
    FieldPair<&Scheme::GetEclosionType, &Scheme::SetEclosionType>::ACCESS,
    FieldPair<&Scheme::GetCustomEclosionId, &Scheme::SetCustomEclosionId>::ACCESS,
    FieldPair<&Scheme::GetEclosionLevel, &Scheme::SetEclosionLevel>::ACCESS,
    FieldPair<&Scheme::GetCustomRange, &Scheme::SetCustomRange>::ACCESS,
    FieldPair<&Scheme::GetHeadEclosionType, &Scheme::SetHeadEclosionType>::ACCESS,
    FieldPair<&Scheme::GetLampLL, &Scheme::SetLampLL>::ACCESS,
    FieldPair<&Scheme::GetLampLR, &Scheme::SetLampLR>::ACCESS,
    FieldPair<&Scheme::GetLampRL, &Scheme::SetLampRL>::ACCESS,
    FieldPair<&Scheme::GetLampRR, &Scheme::SetLampRR>::ACCESS,
    FieldPair<&Scheme::GetChannel, &Scheme::SetChannel>::ACCESS,
};

constexpr std::array FACTORY_FIELDS = {
    FieldPair<&IPrintScheme::GetModeIndex, &IPrintScheme::SetModeIndex>::ACCESS,
    FieldPair<&IPrintScheme::GetWaitStepStop, &IPrintScheme::SetWaitStepStop>::ACCESS,
    FieldPair<&IPrintScheme::GetWave, &IPrintScheme::SetWave>::ACCESS,
    FieldPair<&IPrintScheme::GetEnabled, &IPrintScheme::SetEnabled>::ACCESS,
    FieldPair<&IPrintScheme::GetLayoutId, &IPrintScheme::SetLayoutId>::ACCESS,
    FieldPair<&IPrintScheme::GetHeadId, &IPrintScheme::SetHeadId>::ACCESS,
    FieldPair<&IPrintScheme::GetSmallFormatMode, &IPrintScheme::SetSmallFormatMode>::ACCESS,
    FieldPair<&IPrintScheme::GetSmallFormatOffset, &IPrintScheme::SetSmallFormatOffset>::ACCESS,
};

static_assert(SHARED_FIELDS<IUserScheme>.size() == static_cast<std::size_t>(FIRST_FACTORY_FIELD));
static_assert(SHARED_FIELDS<IUserScheme>.size() + FACTORY_FIELDS.size() ==
              static_cast<std::size_t>(SchemeField::SmallFormatOffset) + 1);

const FieldAccess<IUserScheme>& AccessTo(const IUserScheme&, SchemeField field)
{
    return SHARED_FIELDS<IUserScheme>[static_cast<std::size_t>(field)];
}

const FieldAccess<IPrintScheme>& AccessTo(const IPrintScheme&, SchemeField field)
{
    const auto position = static_cast<std::size_t>(field);
    constexpr std::size_t SHARED = SHARED_FIELDS<IPrintScheme>.size();
    return IsFactoryField(field) ? FACTORY_FIELDS[position - SHARED] : SHARED_FIELDS<IPrintScheme>[position];
}
} // namespace

int GetField(IPrintScheme& scheme, SchemeField field)
{
    return AccessTo(scheme, field).get(scheme);
}

int GetField(IUserScheme& scheme, SchemeField field)
{
    return AccessTo(scheme, field).get(scheme);
}

void SetField(IPrintScheme& scheme, SchemeField field, int value)
{
    AccessTo(scheme, field).set(scheme, value);
}

void SetField(IUserScheme& scheme, SchemeField field, int value)
{
    AccessTo(scheme, field).set(scheme, value);
}
