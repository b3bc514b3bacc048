#include "dialogs/data/Schemes.h"

namespace
{
template <class SchemeList>
void RemoveFrom(SchemeList* list, int index)
{
    if (At(list, index))
        list->RemoveAt(static_cast<std::uint32_t>(index));
}
} // namespace

IPrintScheme* FactorySchemeAt(int id)
{
    return IsFactorySchemeId(id) ? At(HostData().GetFactorySchemeList(), id) : nullptr;
}

IUserScheme* UserSchemeAt(int id)
{
    return IsUserSchemeId(id) ? At(HostData().GetUserSchemeList(), UserSchemeIndex(id)) : nullptr;
}

IPrintScheme* BaseSchemeOf(IUserScheme* scheme)
{
    return scheme ? FactorySchemeAt(scheme->GetBaseScheme()) : nullptr;
}

IPrintScheme* FactorySchemeOf(int id)
{
    return IsUserSchemeId(id) ? BaseSchemeOf(UserSchemeAt(id)) : FactorySchemeAt(id);
}

AddedScheme<IPrintScheme> AddFactoryScheme()
{
    IFactorySchemeList* list = HostData().GetFactorySchemeList();
    const bool hasRoom = list && list->GetCount() < FIRST_USER_SCHEME;
    IPrintScheme* scheme = hasRoom ? list->AddScheme() : nullptr;
    const int last = static_cast<int>(CountOf(list)) - 1;
    return {scheme, IsFactorySchemeId(last) ? last : NO_SCHEME};
}

AddedScheme<IUserScheme> AddUserScheme()
{
    IUserSchemeList* list = HostData().GetUserSchemeList();
    IUserScheme* scheme = list ? list->AddScheme() : nullptr;
    const int last = static_cast<int>(CountOf(list)) - 1;
    return {scheme, last >= 0 ? UserSchemeId(last) : NO_SCHEME};
}

int FactorySchemeCount()
{
    return static_cast<int>(CountOf(HostData().GetFactorySchemeList()));
}

int UserSchemeCount()
{
    return static_cast<int>(CountOf(HostData().GetUserSchemeList()));
}

void RemoveScheme(int id)
{
    if (IsUserSchemeId(id))
        RemoveFrom(HostData().GetUserSchemeList(), UserSchemeIndex(id));
    else if (IsFactorySchemeId(id))
        RemoveFrom(HostData().GetFactorySchemeList(), id);
}
