#include "dialogs/data/SchemeFields.h"

#include "refhost/Host.h"
#include "tests/data/Stubs.h"

namespace
{
struct FieldCase
{
    SchemeField field;
    const char* name;
};

constexpr FieldCase kSharedFields[] = {
    {SchemeField::ConfigIndex, "ConfigIndex"},
    {SchemeField::Speed, "Speed"},
    {SchemeField::Direction, "Direction"},
    {SchemeField::Material, "Material"},
    {SchemeField::DotMode, "DotMode"},
    {SchemeField::DefaultRangeSS, "DefaultRangeSS"},
    {SchemeField::DefaultRangeS, "DefaultRangeS"},
    {SchemeField::DefaultRangeM, "DefaultRangeM"},
    {SchemeField::DefaultRangeL, "DefaultRangeL"},
    {SchemeField::EclosionType, "EclosionType"},
    {SchemeField::CustomEclosionId, "CustomEclosionId"},
    {SchemeField::EclosionLevel, "EclosionLevel"},
    {SchemeField::CustomRange, "CustomRange"},
    {SchemeField::HeadEclosionType, "HeadEclosionType"},
    {SchemeField::LampLL, "LampLL"},
    {SchemeField::LampLR, "LampLR"},
    {SchemeField::LampRL, "LampRL"},
    {SchemeField::LampRR, "LampRR"},
    {SchemeField::Channel, "Channel"},
};

constexpr FieldCase kFactoryFields[] = {
    {SchemeField::ModeIndex, "ModeIndex"},
    {SchemeField::WaitStepStop, "WaitStepStop"},
    {SchemeField::Wave, "Wave"},
    {SchemeField::Enabled, "Enabled"},
    {SchemeField::LayoutId, "LayoutId"},
    {SchemeField::HeadId, "HeadId"},
    {SchemeField::SmallFormatMode, "SmallFormatMode"},
    {SchemeField::SmallFormatOffset, "SmallFormatOffset"},
};

std::vector<FieldCase> FieldsOf(const IUserScheme&)
{
    return {std::begin(kSharedFields), std::end(kSharedFields)};
}

std::vector<FieldCase> FieldsOf(const IPrintScheme&)
{
    std::vector<FieldCase> fields(std::begin(kSharedFields), std::end(kSharedFields));
    fields.insert(fields.end(), std::begin(kFactoryFields), std::end(kFactoryFields));
    return fields;
}

// Another one for each field, and none of them 0. A host may keep whether a scheme is enabled as a truth value.
int ValueFor(SchemeField field)
{
    return field == SchemeField::Enabled ? 1 : 100 - static_cast<int>(field);
}

std::string SetterCall(const FieldCase& field, const std::string& value)
{
    return std::string("Set") + field.name + "(" + value + ")";
}

std::string Getter(const FieldCase& field)
{
    return std::string("Get") + field.name;
}

// What a setter is called with for a value that is wider than any argument but those of 32 bits.
std::string ArgumentOf(SchemeField field)
{
    switch (field)
    {
    case SchemeField::CustomEclosionId:
    case SchemeField::Wave:
    case SchemeField::LayoutId:
        return std::to_string(0x12345);
    case SchemeField::SmallFormatOffset:
        return std::to_string(0x2345);
    default:
        return std::to_string(0x45);
    }
}

IPrintScheme* FirstScheme(refhost::CHost& host, IPrintScheme*)
{
    return host.Data()->GetFactorySchemeList()->GetAt(0);
}

IUserScheme* FirstScheme(refhost::CHost& host, IUserScheme*)
{
    return host.Data()->GetUserSchemeList()->GetAt(0);
}

template <class Scheme>
class SchemeFieldsOf : public testing::Test
{
protected:
    Stub<Scheme> scheme;
};

using Records = testing::Types<IPrintScheme, IUserScheme>;
TYPED_TEST_SUITE(SchemeFieldsOf, Records);

TYPED_TEST(SchemeFieldsOf, ReadEachFromItsGetter)
{
    for (const FieldCase& each : FieldsOf(this->scheme))
        this->scheme.Give(Getter(each), ValueFor(each.field));
    for (const FieldCase& each : FieldsOf(this->scheme))
    {
        EXPECT_EQ(GetField(this->scheme, each.field), ValueFor(each.field)) << each.name;
        EXPECT_EQ(this->scheme.Made().back(), Getter(each) + "()");
    }
}

TYPED_TEST(SchemeFieldsOf, WriteEachThroughItsSetter)
{
    for (const FieldCase& each : FieldsOf(this->scheme))
    {
        SetField(this->scheme, each.field, ValueFor(each.field));
        EXPECT_EQ(this->scheme.Made().back(), SetterCall(each, std::to_string(ValueFor(each.field))));
    }
    EXPECT_EQ(this->scheme.Made().size(), FieldsOf(this->scheme).size());
}

TYPED_TEST(SchemeFieldsOf, CutAValueToTheWidthOfTheSetter)
{
    for (const FieldCase& each : FieldsOf(this->scheme))
    {
        SetField(this->scheme, each.field, 0x12345);
        EXPECT_EQ(this->scheme.Made().back(), SetterCall(each, ArgumentOf(each.field)));
    }
}

TYPED_TEST(SchemeFieldsOf, ComeBackFromAHost)
{
    refhost::Machine machine;
    machine.factorySchemes.resize(1);
    machine.userSchemes.resize(1);
    refhost::CHost host(machine);
    TypeParam& record = *FirstScheme(host, static_cast<TypeParam*>(nullptr));
    for (const FieldCase& each : FieldsOf(record))
        SetField(record, each.field, ValueFor(each.field));
    for (const FieldCase& each : FieldsOf(record))
        EXPECT_EQ(GetField(record, each.field), ValueFor(each.field)) << each.name;
}

TYPED_TEST(SchemeFieldsOf, KnowMinusOne)
{
    for (const SchemeField field : {SchemeField::Speed, SchemeField::Direction, SchemeField::Material})
    {
        SetField(this->scheme, field, -1);
        EXPECT_NE(this->scheme.Made().back().find("(255)"), std::string::npos);
    }
    this->scheme.Give("GetSpeed", -1);
    this->scheme.Give("GetDirection", 0xFF);
    this->scheme.Give("GetMaterial", -128);
    EXPECT_EQ(GetField(this->scheme, SchemeField::Speed), -1);
    EXPECT_EQ(GetField(this->scheme, SchemeField::Direction), -1);
    EXPECT_EQ(GetField(this->scheme, SchemeField::Material), -128);
}

TEST(SchemeFields, KnowTheUnlimitedWaveform)
{
    Stub<IPrintScheme> scheme;
    scheme.Give("GetWave", -1);
    EXPECT_EQ(GetField(scheme, SchemeField::Wave), -1);
    SetField(scheme, SchemeField::Wave, -1);
    EXPECT_EQ(scheme.Made().back(), "SetWave(-1)");
}

TEST(SchemeFields, KeepAllBitsOfACustomEclosion)
{
    Stub<IUserScheme> scheme;
    SetField(scheme, SchemeField::CustomEclosionId, -1);
    EXPECT_EQ(scheme.Made().back(), "SetCustomEclosionId(4294967295)");
    scheme.Give("GetCustomEclosionId", 0xFFFFFFFF);
    EXPECT_EQ(GetField(scheme, SchemeField::CustomEclosionId), -1);
}

TEST(SchemeFields, AreInBothRecordsOrInTheFactoryRecordAlone)
{
    Stub<IPrintScheme> factory;
    Stub<IUserScheme> user;
    for (const FieldCase& each : kSharedFields)
    {
        EXPECT_TRUE(HasField(factory, each.field)) << each.name;
        EXPECT_TRUE(HasField(user, each.field)) << each.name;
        EXPECT_FALSE(IsFactoryField(each.field)) << each.name;
    }
    for (const FieldCase& each : kFactoryFields)
    {
        EXPECT_TRUE(HasField(factory, each.field)) << each.name;
        EXPECT_FALSE(HasField(user, each.field)) << each.name;
        EXPECT_TRUE(IsFactoryField(each.field)) << each.name;
    }
}
} // namespace
