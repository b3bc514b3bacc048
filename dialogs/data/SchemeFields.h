#pragma once

#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"

// The flat values of a scheme. Both kinds of record hold the first ones, in the order of IUserScheme's setters; factory
// schemes alone hold those from FIRST_FACTORY_FIELD on.
enum class SchemeField
{
    ConfigIndex,
    Speed,
    Direction,
    Material,
    DotMode,
    DefaultRangeSS,
    DefaultRangeS,
    DefaultRangeM,
    DefaultRangeL,
    EclosionType,
    CustomEclosionId,
    EclosionLevel,
    CustomRange,
    HeadEclosionType,
    LampLL,
    LampLR,
    LampRL,
    LampRR,
    Channel,

    ModeIndex,
    WaitStepStop,
    Wave,
    Enabled,
    LayoutId,
    HeadId,
    SmallFormatMode,
    SmallFormatOffset,
};

constexpr SchemeField FIRST_FACTORY_FIELD = SchemeField::ModeIndex;

constexpr bool IsFactoryField(SchemeField field)
{
    return field >= FIRST_FACTORY_FIELD;
}

constexpr bool HasField(const IPrintScheme&, SchemeField)
{
    return true;
}

constexpr bool HasField(const IUserScheme&, SchemeField field)
{
    return !IsFactoryField(field);
}

// Of a field that the record has. A value to set is cut to the width of the setter's argument.
int GetField(IPrintScheme& scheme, SchemeField field);
int GetField(IUserScheme& scheme, SchemeField field);
void SetField(IPrintScheme& scheme, SchemeField field, int value);
void SetField(IUserScheme& scheme, SchemeField field, int value);
