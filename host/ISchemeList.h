#pragma once

#include <cstdint>

class IPrintScheme;
class IUserScheme;

/// A list of print schemes in the host's order. Factory and user schemes stand in two lists with the same table of
/// operations; their items differ, so Scheme is IPrintScheme in one and IUserScheme in the other. Hosts implement
/// IFactorySchemeList and IUserSchemeList below.
///
/// The editors name a scheme by its index (a user scheme by index + 1000), so a factory list holds at most 1000
/// schemes. User schemes refer to factory schemes by index: the host's order is part of the data.
///
/// Order of calls: AddScheme, then GetCount to learn the new index. Removals chosen by the operator are held back until
/// "Save & Quit" and then made from the highest index down.
template <typename Scheme>
class ISchemeList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of schemes; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    /// The scheme at an index from 0 to GetCount() - 1. Owned by the host. Null where there is none; it is left out on
    /// the screen. It must keep its address until it is removed or the editor operation returns.
    virtual Scheme* GetAt(std::uint32_t index) = 0; // 3

    /// Appends a scheme with the host's defaults, at index GetCount() - 1, and returns it. Null refuses, and the action
    /// ends silently. Where the new row cannot be shown, the library undoes it by RemoveAt of the last index.
    virtual Scheme* AddScheme() = 0; // 4

    /// Removes the scheme at an index below GetCount(); later ones move down by one.
    virtual void RemoveAt(std::uint32_t index) = 0; // 5

protected:
    ~ISchemeList() = default;
};

/// The factory print schemes of all configurations.
using IFactorySchemeList = ISchemeList<IPrintScheme>;

/// The user print schemes of all configurations.
using IUserSchemeList = ISchemeList<IUserScheme>;
