#include "dialogs/data/CopyScheme.h"

#include "dialogs/data/Schemes.h"
#include "host/ISchemeParams.h"
#include "tests/data/Stubs.h"

namespace
{
constexpr int kInkMultiples = 16;
constexpr int kInkCuts = 32;

// A record whose values differ from one another.
struct CopiedValue
{
    const char* name;
    int value;
};

constexpr CopiedValue kBeforeInk[] = {
    {"Speed", 2},
    {"Direction", 3},
    {"Material", 14},
    {"DotMode", 15},
    {"DefaultRangeSS", 16},
    {"DefaultRangeS", 17},
    {"DefaultRangeM", 18},
    {"DefaultRangeL", 19},
    {"EclosionType", 20},
    {"CustomEclosionId", 70000},
    {"EclosionLevel", 4},
    {"CustomRange", 200},
    {"HeadEclosionType", 24},
};
constexpr CopiedValue kBehindInk[] = {
    {"LampLL", 25}, {"LampLR", 26}, {"LampRL", 27}, {"LampRR", 28}, {"Channel", 29},
};
constexpr int kConfig = 11;

int InkMultiple(int index)
{
    return 1000 + index;
}

int InkCut(int index)
{
    return 100 + index;
}

std::string Indexed(const std::string& name, int index)
{
    return name + "(" + std::to_string(index) + ")";
}

void Fill(Stub<IPrintScheme>& scheme)
{
    scheme.Give("GetConfigIndex", kConfig);
    for (const CopiedValue& each : kBeforeInk)
        scheme.Give(std::string("Get") + each.name, each.value);
    for (int i = 0; i < kInkMultiples; ++i)
        scheme.Give(Indexed("GetInkMultiple", i), InkMultiple(i));
    for (int i = 0; i < kInkCuts; ++i)
        scheme.Give(Indexed("GetInkCut", i), InkCut(i));
    for (const CopiedValue& each : kBehindInk)
        scheme.Give(std::string("Get") + each.name, each.value);
}

std::string Setter(const std::string& name, int value)
{
    return Indexed("Set" + name, value);
}

std::string IndexedSetter(const std::string& name, int value, int index)
{
    return "Set" + name + "(" + std::to_string(value) + ", " + std::to_string(index) + ")";
}

// The setters in the order in which the host must see them.
Calls CopyingCalls(int sourceId)
{
    Calls calls = {Setter("ConfigIndex", kConfig), Setter("BaseScheme", sourceId)};
    for (const CopiedValue& each : kBeforeInk)
        calls.push_back(Setter(each.name, each.value));
    for (int i = 0; i < kInkMultiples; ++i)
        calls.push_back(IndexedSetter("InkMultiple", InkMultiple(i), i));
    for (int i = 0; i < kInkCuts; ++i)
        calls.push_back(IndexedSetter("InkCut", InkCut(i), i));
    for (const CopiedValue& each : kBehindInk)
        calls.push_back(Setter(each.name, each.value));
    return calls;
}

class Block final : public ISchemeParams
{
public:
    void CopyFrom(ISchemeParams* source) override { sources.push_back(source); }

    std::vector<ISchemeParams*> sources;
};

template <class Scheme>
void GiveBlock(Stub<Scheme>& scheme, Block& block)
{
    scheme.template Give<ISchemeParams>("GetParams", &block);
}

class CopyScheme : public OverStubs
{
protected:
    CopyScheme()
    {
        data.Give("GetFactorySchemeList", factory);
        data.Give("GetUserSchemeList", user);
        GiveBlock(factorySource, factoryBlock);
        GiveBlock(userSource, userBlock);
        Fill(factorySource);
        factory.Give("GetCount", 300);
        factory.Give("GetAt(3)", factorySource);
        factory.Give("GetAt(259)", factorySource);
        user.Hold<IUserScheme>({nullptr, &userSource});
    }

    Stub<IFactorySchemeList> factory;
    Stub<IUserSchemeList> user;
    Stub<IPrintScheme> factorySource;
    Stub<IUserScheme> userSource;
    Block factoryBlock, userBlock, targetBlock;
};

class CopyIntoUserScheme : public CopyScheme
{
protected:
    CopyIntoUserScheme() { GiveBlock(target, targetBlock); }

    Stub<IUserScheme> target;
};

class CopyIntoFactoryScheme : public CopyScheme
{
protected:
    CopyIntoFactoryScheme() { GiveBlock(target, targetBlock); }

    Stub<IPrintScheme> target;
};

TEST_F(CopyIntoUserScheme, SetsEachValueOfAFactorySchemeInOrder)
{
    CopySchemeInto(target, 3);
    EXPECT_EQ(target.Made(), CopyingCalls(3));
    EXPECT_TRUE(targetBlock.sources.empty());
}

TEST_F(CopyIntoUserScheme, KeepsTheLowByteOfItsBase)
{
    CopySchemeInto(target, 259);
    EXPECT_EQ(target.Made(), CopyingCalls(3));
}

TEST_F(CopyIntoUserScheme, PassesUnlimitedValuesOnAsBytes)
{
    for (const char* getter : {"GetSpeed", "GetDirection", "GetMaterial"})
        factorySource.Give(getter, -1);
    CopySchemeInto(target, 3);
    for (const char* setter : {"SetSpeed(255)", "SetDirection(255)", "SetMaterial(255)"})
        EXPECT_EQ(target.Made(setter).size(), 1u) << setter;
}

TEST_F(CopyIntoUserScheme, PassesValuesAtTheirLimitsOn)
{
    for (const char* getter : {"GetDotMode", "GetEclosionType", "GetCustomRange", "GetLampLL", "GetInkCut(31)"})
        factorySource.Give(getter, 255);
    factorySource.Give("GetCustomEclosionId", 0xFFFFFFFF);
    factorySource.Give("GetInkMultiple(15)", 65535);
    CopySchemeInto(target, 3);
    for (const char* setter : {"SetDotMode(255)", "SetEclosionType(255)", "SetCustomRange(255)", "SetLampLL(255)",
                               "SetInkCut(255, 31)", "SetCustomEclosionId(4294967295)", "SetInkMultiple(65535, 15)"})
        EXPECT_EQ(target.Made(setter).size(), 1u) << setter;
}

TEST_F(CopyIntoUserScheme, LeavesTheFactorySchemeAsItIs)
{
    CopySchemeInto(target, 3);
    EXPECT_TRUE(factorySource.Made("Set").empty());
    EXPECT_TRUE(factorySource.Made("GetName").empty());
    EXPECT_TRUE(factorySource.Made("GetSmallFormat").empty());
}

TEST_F(CopyIntoUserScheme, CopiesTheBlockOfAUserScheme)
{
    CopySchemeInto(target, 1001);
    EXPECT_EQ(targetBlock.sources, (std::vector<ISchemeParams*>{&userBlock}));
    EXPECT_EQ(target.Made(), (Calls{"GetParams()"}));
}

TEST_F(CopyIntoUserScheme, WithoutASourceSetsNothing)
{
    for (int source : {NO_SCHEME, 0, 300, 1000, 1002})
        CopySchemeInto(target, source);
    EXPECT_TRUE(target.Made("Set").empty());
    EXPECT_TRUE(targetBlock.sources.empty());
}

TEST_F(CopyIntoUserScheme, WithoutABlockCopiesNothing)
{
    Stub<IUserScheme> blockless;
    CopySchemeInto(blockless, 1001);
    EXPECT_TRUE(blockless.Made("Set").empty());
    user.Hold<IUserScheme>({&blockless});
    CopySchemeInto(target, 1000);
    EXPECT_TRUE(targetBlock.sources.empty());
}

TEST_F(CopyIntoFactoryScheme, CopiesTheBlock)
{
    CopySchemeInto(target, 3);
    EXPECT_EQ(targetBlock.sources, (std::vector<ISchemeParams*>{&factoryBlock}));
    EXPECT_EQ(target.Made(), (Calls{"GetParams()"}));
}

TEST_F(CopyIntoFactoryScheme, WithoutASourceCopiesNothing)
{
    for (int source : {NO_SCHEME, 0, 300, 1001})
        CopySchemeInto(target, source);
    EXPECT_TRUE(target.Made("Set").empty());
    EXPECT_TRUE(targetBlock.sources.empty());
}
} // namespace
