// The one list of what a machine file holds. Reading and writing both walk it, so that a value cannot be read and then
// be forgotten when the file is written.
//
// `fields` is a CJsonReader or a CJsonWriter; fields(key, value) handles one member of the JSON object.
#pragma once

#include "refhost/Machine.h"

namespace refhost
{

template <class Fields>
void Describe(Fields& fields, PrintMode& mode)
{
    fields("name", mode.name);
    fields("passCount", mode.passCount);
    fields("disabled", mode.disabled);
    fields("resident", mode.resident);
    fields("xResolutionIndex", mode.xResolutionIndex);
    fields("smallDotCompensation", mode.smallDotCompensation);
    fields("mediumDotCompensation", mode.mediumDotCompensation);
    fields("largeDotCompensation", mode.largeDotCompensation);
    fields("frontCompensation", mode.frontCompensation);
    fields("backCompensation", mode.backCompensation);
    fields("headDataModes", mode.headDataModes);
}

template <class Fields>
void Describe(Fields& fields, PrintConfig& config)
{
    fields("name", config.name);
    fields("xResolution", config.xResolution);
    fields("yResolution", config.yResolution);
    fields("colorCount", config.colorCount);
    fields("dotBits", config.dotBits);
    fields("enabled", config.enabled);
    fields("modes", config.modes);
}

template <class Fields>
void DescribeIdentity(Fields& fields, SchemeValues& scheme)
{
    fields("name", scheme.name);
    fields("configIndex", scheme.configIndex);
}

template <class Fields>
void DescribeEclosion(Fields& fields, SchemeValues& scheme)
{
    fields("dotMode", scheme.dotMode);
    fields("defaultRangeSS", scheme.defaultRangeSS);
    fields("defaultRangeS", scheme.defaultRangeS);
    fields("defaultRangeM", scheme.defaultRangeM);
    fields("defaultRangeL", scheme.defaultRangeL);
    fields("eclosionType", scheme.eclosionType);
    fields("customEclosionId", scheme.customEclosionId);
    fields("eclosionLevel", scheme.eclosionLevel);
    fields("customRange", scheme.customRange);
    fields("headEclosionType", scheme.headEclosionType);
}

template <class Fields>
void DescribeSharedValues(Fields& fields, SchemeValues& scheme)
{
    fields("speed", scheme.speed);
    fields("direction", scheme.direction);
    fields("material", scheme.material);
    fields("channel", scheme.channel);
    DescribeEclosion(fields, scheme);
    fields("inkMultiple", scheme.inkMultiple);
    fields("inkCut", scheme.inkCut);
    fields("lampLL", scheme.lampLL);
    fields("lampLR", scheme.lampLR);
    fields("lampRL", scheme.lampRL);
    fields("lampRR", scheme.lampRR);
}

template <class Fields>
void Describe(Fields& fields, FactoryScheme& scheme)
{
    DescribeIdentity(fields, scheme);
    fields("enabled", scheme.enabled);
    fields("modeIndex", scheme.modeIndex);
    fields("waitStepStop", scheme.waitStepStop);
    fields("wave", scheme.wave);
    fields("layoutId", scheme.layoutId);
    fields("headId", scheme.headId);
    fields("smallFormatMode", scheme.smallFormatMode);
    fields("smallFormatOffset", scheme.smallFormatOffset);
    DescribeSharedValues(fields, scheme);
}

template <class Fields>
void Describe(Fields& fields, UserScheme& scheme)
{
    DescribeIdentity(fields, scheme);
    fields("baseScheme", scheme.baseScheme);
    DescribeSharedValues(fields, scheme);
}

template <class Fields>
void Describe(Fields& fields, Layout& layout)
{
    fields("name", layout.name);
    fields("id", layout.id);
    fields("channels", layout.channels);
}

template <class Fields>
void Describe(Fields& fields, HeadLayout& head)
{
    fields("name", head.name);
    fields("id", head.id);
    fields("layoutId", head.layoutId);
    fields("dataModes", head.dataModes);
}

template <class Fields>
void Describe(Fields& fields, InkChannel& channel)
{
    fields("name", channel.name);
    fields("id", channel.id);
    fields("colorIndex", channel.colorIndex);
}

template <class Fields>
void Describe(Fields& fields, InkGroup& group)
{
    fields("name", group.name);
    fields("id", group.id);
    fields("colorIndex", group.colorIndex);
    fields("channels", group.channels);
}

template <class Fields>
void Describe(Fields& fields, ChannelSetup& setup)
{
    fields("name", setup.name);
    fields("fits", setup.fits);
}

template <class Fields>
void Describe(Fields& fields, Material& material)
{
    fields("name", material.name);
    fields("id", material.id);
}

template <class Fields>
void Describe(Fields& fields, ParamTable& table)
{
    fields("id", table.id);
    fields("entries", table.entries);
}

template <class Fields>
void Describe(Fields& fields, ActiveSetup& setup)
{
    fields("id", setup.id);
    fields("groups", setup.groups);
}

template <class Fields>
void Describe(Fields& fields, EclosionElement& element)
{
    fields("width", element.width);
    fields("height", element.height);
}

template <class Fields>
void Describe(Fields& fields, EclosionMode& mode)
{
    fields("elements", mode.elements);
}

template <class Fields>
void Describe(Fields& fields, CustomEclosion& eclosion)
{
    fields("currentMode", eclosion.currentMode);
    fields("locked", eclosion.locked);
    fields("range", eclosion.range);
    fields("modes", eclosion.modes);
}

template <class Fields>
void Describe(Fields& fields, CustomEclosionSet& set)
{
    fields("currentIndex", set.currentIndex);
    fields("definitions", set.definitions);
}

template <class Fields>
void Describe(Fields& fields, Machine& machine)
{
    fields("name", machine.name);
    fields("configurations", machine.configurations);
    fields("factorySchemes", machine.factorySchemes);
    fields("userSchemes", machine.userSchemes);
    fields("layouts", machine.layouts);
    fields("headLayouts", machine.headLayouts);
    fields("xResolutions", machine.xResolutions);
    fields("inkChannels", machine.inkChannels);
    fields("inkGroups", machine.inkGroups);
    fields("channelSetups", machine.channelSetups);
    fields("materials", machine.materials);
    fields("paramTables", machine.paramTables);
    fields("activeSetup", machine.activeSetup);
    fields("customEclosions", machine.customEclosions);
}

} // namespace refhost
