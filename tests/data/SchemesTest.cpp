#include "dialogs/data/Schemes.h"

#include "refhost/Host.h"
#include "tests/data/Stubs.h"

#include <utility>

namespace
{
class Schemes : public OverStubs
{
protected:
    Schemes()
    {
        data.Give("GetFactorySchemeList", factory);
        data.Give("GetUserSchemeList", user);
    }

    Stub<IFactorySchemeList> factory;
    Stub<IUserSchemeList> user;
};

using SchemesWithoutLists = OverStubs;

using Found = std::vector<std::pair<void*, int>>;

// Calls a visit of this header and gathers what it visits.
template <class Visit>
Found Visited(Visit visit)
{
    Found found;
    visit([&](auto& scheme, int id) { found.emplace_back(&scheme, id); });
    return found;
}

Found FactorySchemesOf(int config)
{
    return Visited([=](auto visitor) { ForEachFactorySchemeOf(config, visitor); });
}

Found PresetsOf(int config)
{
    return Visited([=](auto visitor) { ForEachPresetOf(config, visitor); });
}

Found UserSchemesOf(int config)
{
    return Visited([=](auto visitor) { ForEachUserSchemeOf(config, visitor); });
}

TEST_F(Schemes, AreFoundByTheirIds)
{
    Stub<IPrintScheme> second;
    Stub<IUserScheme> first;
    factory.Hold<IPrintScheme>({nullptr, &second});
    user.Hold<IUserScheme>({&first});
    EXPECT_EQ(FactorySchemeAt(0), nullptr);
    EXPECT_EQ(FactorySchemeAt(1), &second);
    EXPECT_EQ(FactorySchemeAt(2), nullptr);
    EXPECT_EQ(UserSchemeAt(1000), &first);
    EXPECT_EQ(UserSchemeAt(1001), nullptr);
}

TEST_F(Schemes, AreNotFoundByTheIdsOfTheOtherList)
{
    Stub<IPrintScheme> inFactory;
    Stub<IUserScheme> inUser;
    factory.Give("GetCount", 2000);
    factory.Give("GetAt", inFactory);
    user.Give("GetCount", 2000);
    user.Give("GetAt", inUser);
    for (int id : {NO_SCHEME, FIRST_USER_SCHEME})
        EXPECT_EQ(FactorySchemeAt(id), nullptr) << id;
    for (int id : {NO_SCHEME, 0, FIRST_USER_SCHEME - 1})
        EXPECT_EQ(UserSchemeAt(id), nullptr) << id;
    EXPECT_TRUE(factory.Made().empty());
    EXPECT_TRUE(user.Made().empty());
}

TEST_F(Schemes, OfJunkCountsAreNone)
{
    Stub<IPrintScheme> inFactory;
    Stub<IUserScheme> inUser;
    factory.Give("GetCount", 0xFFFFFFFF);
    factory.Give("GetAt", inFactory);
    user.Give("GetCount", 0x80000000);
    user.Give("GetAt", inUser);
    EXPECT_EQ(FactorySchemeAt(0), nullptr);
    EXPECT_EQ(UserSchemeAt(1000), nullptr);
    EXPECT_EQ(UserSchemeCount(), 0);
    EXPECT_TRUE(FactorySchemesOf(0).empty());
    EXPECT_TRUE(PresetsOf(0).empty());
    EXPECT_TRUE(UserSchemesOf(0).empty());
    EXPECT_TRUE(factory.Made("GetAt").empty());
    EXPECT_TRUE(user.Made("GetAt").empty());
}

TEST_F(SchemesWithoutLists, AreNone)
{
    EXPECT_EQ(FactorySchemeAt(0), nullptr);
    EXPECT_EQ(UserSchemeAt(1000), nullptr);
    EXPECT_EQ(FactorySchemeOf(0), nullptr);
    EXPECT_EQ(FactorySchemeOf(1000), nullptr);
    EXPECT_EQ(UserSchemeCount(), 0);
    EXPECT_TRUE(FactorySchemesOf(0).empty());
    EXPECT_TRUE(UserSchemesOf(0).empty());
}

TEST_F(SchemesWithoutLists, AreNeitherAddedNorRemoved)
{
    const AddedScheme<IPrintScheme> addedFactory = AddFactoryScheme();
    EXPECT_EQ(addedFactory.scheme, nullptr);
    EXPECT_EQ(addedFactory.id, NO_SCHEME);
    const AddedScheme<IUserScheme> addedUser = AddUserScheme();
    EXPECT_EQ(addedUser.scheme, nullptr);
    EXPECT_EQ(addedUser.id, NO_SCHEME);
    RemoveScheme(0);
    RemoveScheme(1000);
}

TEST_F(Schemes, OfUsersHaveAFactorySchemeAsBase)
{
    Stub<IPrintScheme> first, second;
    Stub<IUserScheme> onSecond, onNone;
    factory.Hold<IPrintScheme>({&first, &second});
    user.Hold<IUserScheme>({&onSecond, &onNone});
    onSecond.Give("GetBaseScheme", 1);
    onNone.Give("GetBaseScheme", 2);
    EXPECT_EQ(BaseSchemeOf(&onSecond), &second);
    EXPECT_EQ(BaseSchemeOf(&onNone), nullptr);
    EXPECT_EQ(BaseSchemeOf(nullptr), nullptr);
}

TEST_F(Schemes, LeadToTheirFactoryScheme)
{
    Stub<IPrintScheme> first, second;
    Stub<IUserScheme> onSecond;
    factory.Hold<IPrintScheme>({&first, &second});
    user.Hold<IUserScheme>({&onSecond});
    onSecond.Give("GetBaseScheme", 1);
    EXPECT_EQ(FactorySchemeOf(0), &first);
    EXPECT_EQ(FactorySchemeOf(1000), &second);
    for (int id : {NO_SCHEME, 2, 1001})
        EXPECT_EQ(FactorySchemeOf(id), nullptr) << id;
}

TEST_F(Schemes, AreVisitedByTheirIds)
{
    Stub<IPrintScheme> inFactory;
    Stub<IUserScheme> inUser;
    factory.Hold<IPrintScheme>({&inFactory});
    user.Hold<IUserScheme>({&inUser});
    std::vector<void*> visited;
    const auto visit = [&](auto& scheme) { visited.push_back(&scheme); };
    EXPECT_TRUE(VisitScheme(0, visit));
    EXPECT_TRUE(VisitScheme(1000, visit));
    EXPECT_EQ(visited,
              (std::vector<void*>{static_cast<IPrintScheme*>(&inFactory), static_cast<IUserScheme*>(&inUser)}));
    for (int id : {NO_SCHEME, 1, 1001})
        EXPECT_FALSE(VisitScheme(id, visit)) << id;
    EXPECT_EQ(visited.size(), 2u);
}

TEST_F(Schemes, AreListedByTheirConfiguration)
{
    Stub<IPrintScheme> here, elsewhere;
    here.Give("GetConfigIndex", 2);
    elsewhere.Give("GetConfigIndex", 1);
    factory.Hold<IPrintScheme>({&here, &elsewhere, nullptr, &here});
    IPrintScheme* const shown = &here;
    EXPECT_EQ(FactorySchemesOf(2), (Found{{shown, 0}, {shown, 3}}));
    EXPECT_TRUE(FactorySchemesOf(3).empty());
    EXPECT_TRUE(FactorySchemesOf(-1).empty());
    EXPECT_TRUE(FactorySchemesOf(256 + 2).empty());
}

TEST_F(Schemes, OfUsersAreListedByTheirConfiguration)
{
    Stub<IUserScheme> here, elsewhere;
    here.Give("GetConfigIndex", 2);
    user.Hold<IUserScheme>({&elsewhere, nullptr, &here, &here});
    IUserScheme* const shown = &here;
    EXPECT_EQ(UserSchemesOf(2), (Found{{shown, 1002}, {shown, 1003}}));
    EXPECT_TRUE(UserSchemesOf(1).empty());
}

TEST_F(Schemes, ThatAreEnabledArePresets)
{
    Stub<IPrintScheme> on, off, elsewhere;
    on.Give("GetEnabled", 1);
    elsewhere.Give("GetEnabled", 1);
    elsewhere.Give("GetConfigIndex", 1);
    factory.Hold<IPrintScheme>({&off, &on, &elsewhere, nullptr, &on});
    IPrintScheme* const shown = &on;
    EXPECT_EQ(PresetsOf(0), (Found{{shown, 1}, {shown, 4}}));
}

TEST_F(Schemes, BeyondTheIdsAreNotListed)
{
    Stub<IPrintScheme> scheme;
    scheme.Give("GetEnabled", 1);
    factory.Give("GetAt", scheme);
    factory.Give("GetCount", 1001);
    EXPECT_EQ(FactorySchemesOf(0).size(), 1000u);
    EXPECT_EQ(FactorySchemesOf(0).back().second, 999);
    EXPECT_EQ(PresetsOf(0).back().second, 999);
}

TEST_F(Schemes, OfUsersAreListedWithoutEnd)
{
    Stub<IUserScheme> scheme;
    user.Give("GetAt", scheme);
    user.Give("GetCount", 1001);
    EXPECT_EQ(UserSchemesOf(0).back().second, 2000);
}

TEST_F(Schemes, AreAddedWhileThereIsAnIdLeft)
{
    Stub<IPrintScheme> scheme;
    factory.Give("AddScheme", scheme);
    factory.Give("GetCount", 999);
    EXPECT_EQ(AddFactoryScheme().scheme, &scheme);
    factory.Give("GetCount", 1000);
    EXPECT_EQ(AddFactoryScheme().scheme, nullptr);
    factory.Give("GetCount", 0xFFFFFFFF);
    EXPECT_EQ(AddFactoryScheme().scheme, nullptr);
    EXPECT_EQ(factory.Made("AddScheme"), (Calls{"AddScheme()"}));
}

TEST_F(Schemes, OfUsersWithoutASaneCountHaveNoId)
{
    Stub<IUserScheme> scheme;
    user.Give("AddScheme", scheme);
    for (std::uint32_t count : {0u, 0xFFFFFFFFu})
    {
        user.Give("GetCount", count);
        EXPECT_EQ(AddUserScheme().scheme, &scheme);
        EXPECT_EQ(AddUserScheme().id, NO_SCHEME);
    }
}

TEST_F(Schemes, ThatTheHostRefusesAreNull)
{
    factory.Give("GetCount", 3);
    user.Give("GetCount", 3);
    EXPECT_EQ(AddFactoryScheme().scheme, nullptr);
    EXPECT_EQ(AddUserScheme().scheme, nullptr);
    EXPECT_EQ(factory.Made("AddScheme").size(), 1u);
    EXPECT_EQ(user.Made("AddScheme").size(), 1u);
}

TEST(AddedSchemes, AreTheLastOfTheirLists)
{
    refhost::Machine machine;
    machine.factorySchemes.resize(4);
    machine.userSchemes.resize(2);
    refhost::CHost host(machine);
    SetHost(*host.Data(), *host.Control());
    const AddedScheme<IPrintScheme> inFactory = AddFactoryScheme();
    EXPECT_EQ(inFactory.id, 4);
    EXPECT_EQ(FactorySchemeAt(4), inFactory.scheme);
    const AddedScheme<IUserScheme> inUser = AddUserScheme();
    EXPECT_EQ(inUser.id, 1002);
    EXPECT_EQ(UserSchemeAt(1002), inUser.scheme);
    EXPECT_EQ(UserSchemeCount(), 3);
}

TEST(AddedSchemes, EndAtTheThousandthFactoryScheme)
{
    refhost::Machine machine;
    machine.factorySchemes.resize(999);
    refhost::CHost host(machine);
    SetHost(*host.Data(), *host.Control());
    EXPECT_EQ(AddFactoryScheme().id, 999);
    EXPECT_EQ(AddFactoryScheme().scheme, nullptr);
    EXPECT_EQ(host.CurrentMachine().factorySchemes.size(), 1000u);
}

TEST_F(Schemes, AreRemovedByTheirIds)
{
    Stub<IPrintScheme> inFactory;
    Stub<IUserScheme> inUser;
    factory.Hold<IPrintScheme>({&inFactory, &inFactory, &inFactory});
    user.Hold<IUserScheme>({&inUser, &inUser});
    RemoveScheme(2);
    RemoveScheme(1001);
    EXPECT_EQ(factory.Made("RemoveAt"), (Calls{"RemoveAt(2)"}));
    EXPECT_EQ(user.Made("RemoveAt"), (Calls{"RemoveAt(1)"}));
}

TEST_F(Schemes, ThatAreNotThereAreNotRemoved)
{
    Stub<IPrintScheme> inFactory;
    Stub<IUserScheme> inUser;
    factory.Hold<IPrintScheme>({&inFactory, nullptr});
    user.Hold<IUserScheme>({&inUser, nullptr});
    for (int id : {NO_SCHEME, 1, 2, 1001, 1002})
        RemoveScheme(id);
    EXPECT_TRUE(factory.Made("RemoveAt").empty());
    EXPECT_TRUE(user.Made("RemoveAt").empty());
}
} // namespace
