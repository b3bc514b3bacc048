#pragma once

#include "tests/msabi/host/Lists.h"

// Factory and user schemes.

constexpr unsigned kInkMultiples = 16;
constexpr unsigned kInkCuts = 32;

// One row for each value that a scheme's operations set and get as it is: the type of the result, that of the argument
// where a factory scheme sets it, that where a user scheme does, the operations' name.
#define SHARED_SCHEME_VALUES(VALUE)                                                                                    \
    VALUE(unsigned char, unsigned char, ConfigIndex)                                                                   \
    VALUE(signed char, unsigned char, Speed)                                                                           \
    VALUE(signed char, unsigned char, Direction)                                                                       \
    VALUE(signed char, unsigned char, Material)                                                                        \
    VALUE(unsigned char, unsigned char, DotMode)                                                                       \
    VALUE(unsigned char, unsigned char, DefaultRangeSS)                                                                \
    VALUE(unsigned char, unsigned char, DefaultRangeS)                                                                 \
    VALUE(unsigned char, unsigned char, DefaultRangeM)                                                                 \
    VALUE(unsigned char, unsigned char, DefaultRangeL)                                                                 \
    VALUE(unsigned char, unsigned char, EclosionType)                                                                  \
    VALUE(unsigned int, unsigned int, CustomEclosionId)                                                                \
    VALUE(unsigned char, unsigned char, EclosionLevel)                                                                 \
    VALUE(unsigned char, unsigned char, CustomRange)                                                                   \
    VALUE(unsigned char, unsigned char, HeadEclosionType)                                                              \
    VALUE(unsigned char, unsigned char, LampLL)                                                                        \
    VALUE(unsigned char, unsigned char, LampLR)                                                                        \
    VALUE(unsigned char, unsigned char, LampRL)                                                                        \
    VALUE(unsigned char, unsigned char, LampRR)                                                                        \
    VALUE(unsigned char, unsigned char, Channel)

#define FACTORY_SCHEME_VALUES(VALUE)                                                                                   \
    VALUE(unsigned char, unsigned char, ModeIndex)                                                                     \
    VALUE(unsigned char, unsigned char, WaitStepStop)                                                                  \
    VALUE(signed char, int, Wave)                                                                                      \
    VALUE(unsigned char, unsigned char, Enabled)                                                                       \
    VALUE(unsigned char, unsigned int, LayoutId)                                                                       \
    VALUE(unsigned char, unsigned char, HeadId)                                                                        \
    VALUE(unsigned char, unsigned char, SmallFormatMode)                                                               \
    VALUE(unsigned short, unsigned short, SmallFormatOffset)

#define USER_SCHEME_VALUES(VALUE) VALUE(unsigned char, short, BaseScheme)

#define SCHEME_VALUE(result, argument, name)                                                                           \
    void Set##name(argument value) override                                                                            \
    {                                                                                                                  \
        m_##name = static_cast<result>(value);                                                                         \
    }                                                                                                                  \
    result Get##name() override                                                                                        \
    {                                                                                                                  \
        return m_##name;                                                                                               \
    }                                                                                                                  \
    result m_##name = 0;

#define COPY_SCHEME_VALUE(result, argument, name) m_##name = source.m_##name;
#define DESCRIBE_SCHEME_VALUE(result, argument, name) text.Add(" " #name " ").Add(static_cast<long long>(m_##name));

// The parameter block of a scheme; whose it is, only the host knows.
template <class Scheme>
class SchemeParams final : public Object<ISchemeParams>
{
public:
    void CopyFrom(ISchemeParams* source) override { scheme->CopyFrom(*static_cast<SchemeParams*>(source)->scheme); }

    Scheme* scheme = nullptr;
};

template <class Scheme, class Interface>
class SchemeObject : public Object<Interface>
{
public:
    ISchemeParams* GetParams() override { return params; }
    void SetName(const char* text) override { name.Set(text); }
    const char* GetName() override { return name.Text(); }
    void SetInkMultiple(unsigned short tenths, unsigned char colorIndex) override
    {
        if (Require(colorIndex < kInkMultiples, "the colour is out of range"))
            inkMultiples[colorIndex] = tenths;
    }
    void SetInkCut(unsigned char percent, unsigned char colorIndex) override
    {
        Require(percent <= 100, "the ink cut is no percentage");
        if (Require(colorIndex < kInkCuts, "the colour is out of range"))
            inkCuts[colorIndex] = percent;
    }
    unsigned short GetInkMultiple(unsigned char colorIndex) override
    {
        return Require(colorIndex < kInkMultiples, "the colour is out of range") ? inkMultiples[colorIndex]
                                                                                 : static_cast<unsigned short>(0);
    }
    unsigned char GetInkCut(unsigned char colorIndex) override
    {
        return Require(colorIndex < kInkCuts, "the colour is out of range") ? inkCuts[colorIndex]
                                                                            : static_cast<unsigned char>(0);
    }
    SHARED_SCHEME_VALUES(SCHEME_VALUE)

    Name name;
    unsigned short inkMultiples[kInkMultiples] = {};
    unsigned char inkCuts[kInkCuts] = {};
    SchemeParams<Scheme>* params = nullptr;

protected:
    void CopyShared(const SchemeObject& source)
    {
        SHARED_SCHEME_VALUES(COPY_SCHEME_VALUE)
        for (unsigned i = 0; i < kInkMultiples; ++i)
            inkMultiples[i] = source.inkMultiples[i];
        for (unsigned i = 0; i < kInkCuts; ++i)
            inkCuts[i] = source.inkCuts[i];
    }

    void DescribeShared(TextBuffer& text) const
    {
        text.Add(name.Text()).Add(":");
        SHARED_SCHEME_VALUES(DESCRIBE_SCHEME_VALUE)
        text.Add(" multiples");
        for (unsigned short multiple : inkMultiples)
            text.Add(" ").Add(static_cast<long long>(multiple));
        text.Add(" cuts");
        for (unsigned char cut : inkCuts)
            text.Add(" ").Add(static_cast<long long>(cut));
    }
};

class FactoryScheme final : public SchemeObject<FactoryScheme, IPrintScheme>
{
public:
    FACTORY_SCHEME_VALUES(SCHEME_VALUE)

    void CopyFrom(const FactoryScheme& source)
    {
        CopyShared(source);
        FACTORY_SCHEME_VALUES(COPY_SCHEME_VALUE)
    }

    void Describe(TextBuffer& text) const
    {
        DescribeShared(text.Add("factory scheme "));
        FACTORY_SCHEME_VALUES(DESCRIBE_SCHEME_VALUE)
        text.Add("\n");
    }
};

class UserScheme final : public SchemeObject<UserScheme, IUserScheme>
{
public:
    USER_SCHEME_VALUES(SCHEME_VALUE)

    void CopyFrom(const UserScheme& source)
    {
        CopyShared(source);
        USER_SCHEME_VALUES(COPY_SCHEME_VALUE)
    }

    void Describe(TextBuffer& text) const
    {
        DescribeShared(text.Add("user scheme "));
        USER_SCHEME_VALUES(DESCRIBE_SCHEME_VALUE)
        text.Add("\n");
    }
};

template <class Interface, class Scheme, InterfaceId Id>
class SchemeList final : public Object<ISchemeList<Interface>>
{
public:
    unsigned GetCount() override { return items.Size(); }
    Interface* GetAt(unsigned index) override { return ItemAt(items, index); }
    Interface* AddScheme() override { return New("new scheme"); }
    void RemoveAt(unsigned index) override { RemoveItem(items, index); }

    Scheme* New(const char* label)
    {
        Scheme* const scheme = Make<Scheme>(Id, label);
        scheme->name.Set(label);
        scheme->params = Make<SchemeParams<Scheme>>(InterfaceId::SchemeParams, label);
        scheme->params->scheme = scheme;
        items.Append(scheme);
        return scheme;
    }

    HostArray<Scheme*> items;
};
using FactorySchemeList = SchemeList<IPrintScheme, FactoryScheme, InterfaceId::PrintScheme>;
using UserSchemeList = SchemeList<IUserScheme, UserScheme, InterfaceId::UserScheme>;
