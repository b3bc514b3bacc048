#pragma once

#include "tables/Forwarding.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

// How a list of the host counts its items and gives them.
template <class List, class Item>
struct ItemAccess
{
    std::uint32_t (List::*count)();
    Item* (List::*at)(std::uint32_t);
};
template <class List, class Item>
ItemAccess(std::uint32_t (List::*)(), Item* (List::*)(std::uint32_t)) -> ItemAccess<List, Item>;

inline auto AccessTo(IConfigList*)
{
    return ItemAccess{&IConfigList::GetCount, &IConfigList::GetAt};
}
inline auto AccessTo(IPrintConfig*)
{
    return ItemAccess{&IPrintConfig::GetModeCount, &IPrintConfig::GetMode};
}
template <class Scheme>
auto AccessTo(ISchemeList<Scheme>*)
{
    return ItemAccess{&ISchemeList<Scheme>::GetCount, &ISchemeList<Scheme>::GetAt};
}
inline auto AccessTo(ICustomEclosionSet*)
{
    return ItemAccess{&ICustomEclosionSet::GetCount, &ICustomEclosionSet::GetEclosion};
}
inline auto AccessTo(ICustomEclosion*)
{
    return ItemAccess{&ICustomEclosion::GetModeCount, &ICustomEclosion::GetMode};
}
inline auto AccessTo(IEclosionMode*)
{
    return ItemAccess{&IEclosionMode::GetElementCount, &IEclosionMode::GetElement};
}
inline auto AccessTo(ILayoutList*)
{
    return ItemAccess{&ILayoutList::GetCount, &ILayoutList::GetAt};
}
inline auto AccessTo(IHeadLayoutList*)
{
    return ItemAccess{&IHeadLayoutList::GetCount, &IHeadLayoutList::GetAt};
}
inline auto AccessTo(IHeadLayout*)
{
    return ItemAccess{&IHeadLayout::GetDataModeCount, &IHeadLayout::GetDataMode};
}
inline auto AccessTo(IXResolutionList*)
{
    return ItemAccess{&IXResolutionList::GetCount, &IXResolutionList::GetAt};
}
inline auto AccessTo(IChannelList*)
{
    return ItemAccess{&IChannelList::GetCount, &IChannelList::GetAt};
}
inline auto AccessTo(IMaterialList*)
{
    return ItemAccess{&IMaterialList::GetCount, &IMaterialList::GetAt};
}
inline auto AccessTo(IInkGroupTable*)
{
    return ItemAccess{&IInkGroupTable::GetCount, &IInkGroupTable::GetAt};
}
// Any other object holds no items of its own.
inline std::nullptr_t AccessTo(const void*)
{
    return nullptr;
}

template <class Interface>
constexpr bool kHasItems = !std::is_null_pointer_v<decltype(AccessTo(static_cast<Interface*>(nullptr)))>;

template <class List>
auto* ItemAt(List& list, std::uint32_t index)
{
    return (list.*AccessTo(&list).at)(index);
}

template <class Interface, class Visit>
void ForEachItem(Interface& object, Visit visit)
{
    if constexpr (kHasItems<Interface>)
    {
        const std::uint32_t count = (object.*AccessTo(&object).count)();
        for (std::uint32_t i = 0; i < count; ++i)
            visit(ItemAt(object, i));
    }
}
