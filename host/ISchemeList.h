#pragma once

#include <cstdint>

class IPrintScheme;
class IUserScheme;

/// A list of print schemes in the host's order. Factory and user schemes are in two lists. Both lists have the same
/// table, but Scheme is IPrintScheme in one and IUserScheme in the other. Hosts implement IFactorySchemeList and
/// IUserSchemeList below.
///
/// The editors identify a factory scheme by its index and a user scheme by its index + 1000. So a factory list holds at
/// most 1000 schemes; the editors do not list the others. User schemes refer to factory schemes by index, so the order
/// of the host's list is part of its data.
///
/// Order of calls: AddScheme, then GetCount to learn the new index. Schemes that the operator deletes are removed at
/// "Save & Quit", from the highest index down.
template <typename Scheme>
class ISchemeList
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Number of schemes; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 2

    /// The scheme at an index from 0 to GetCount() - 1, or null for none, which is not listed. Owned by the host. It
    /// must stay at its address until it is removed or the editor operation returns.
    virtual Scheme* GetAt(std::uint32_t index) = 0; // 3

    /// Appends a scheme with the host's defaults and returns it; its index is GetCount() - 1. Null refuses: the action
    /// ends silently. If the editor cannot show the new row, it calls RemoveAt for that index.
    virtual Scheme* AddScheme() = 0; // 4

    /// Removes the scheme at an index below GetCount(). Later ones move down by one.
    virtual void RemoveAt(std::uint32_t index) = 0; // 5

protected:
    ~ISchemeList() = default;
};

/// The factory print schemes of all configurations.
using IFactorySchemeList = ISchemeList<IPrintScheme>;

/// The user print schemes of all configurations.
using IUserSchemeList = ISchemeList<IUserScheme>;
