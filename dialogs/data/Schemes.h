#pragma once

#include "dialogs/data/HostList.h"
#include "dialogs/data/HostRun.h"
#include "dialogs/data/SchemeFields.h"
#include "dialogs/data/SchemeIds.h"
#include "host/ISchemeList.h"

// The host's schemes, by their ids. Each look-up asks the host again, so a scheme that has gone is simply not found.

// Null where the id names no scheme of that kind or the host has none there.
IPrintScheme* FactorySchemeAt(int id);
IUserScheme* UserSchemeAt(int id);

// The factory scheme that a user scheme was made from, null for a null scheme; the scheme itself for the id of a
// factory scheme.
IPrintScheme* BaseSchemeOf(IUserScheme* scheme);
IPrintScheme* FactorySchemeOf(int id);

// Calls the visitor with the factory or the user record: two interfaces with operations of equal names. False when the
// record is missing.
template <class Visitor>
bool VisitScheme(int id, Visitor visit)
{
    const auto visitRecord = [&](auto* scheme) {
        if (scheme)
            visit(*scheme);
        return scheme != nullptr;
    };
    return IsUserSchemeId(id) ? visitRecord(UserSchemeAt(id)) : visitRecord(FactorySchemeAt(id));
}

// A configuration's index is as wide as a scheme stores it.
template <class Scheme>
bool BelongsTo(Scheme& scheme, int config)
{
    return GetField(scheme, SchemeField::ConfigIndex) == config;
}

// Calls the visitor with each factory scheme of a configuration that has an id, and the id.
template <class Visitor>
void ForEachFactorySchemeOf(int config, Visitor visit)
{
    ForEach(HostData().GetFactorySchemeList(), [&](IPrintScheme& scheme, int index) {
        if (IsFactorySchemeId(index) && BelongsTo(scheme, config))
            visit(scheme, index);
    });
}

// The enabled factory schemes are the presets of the user editor.
template <class Visitor>
void ForEachPresetOf(int config, Visitor visit)
{
    ForEachFactorySchemeOf(config, [&](IPrintScheme& scheme, int id) {
        if (GetField(scheme, SchemeField::Enabled))
            visit(scheme, id);
    });
}

template <class Visitor>
void ForEachUserSchemeOf(int config, Visitor visit)
{
    ForEach(HostData().GetUserSchemeList(), [&](IUserScheme& scheme, int index) {
        if (BelongsTo(scheme, config))
            visit(scheme, UserSchemeId(index));
    });
}

// What was added, always at the end of its list, and its id. The scheme is null where the host refuses, and where a
// factory scheme would have no id left. The id is NO_SCHEME where the host's count is none that could give one.
template <class Scheme>
struct AddedScheme
{
    Scheme* scheme;
    int id;
};

AddedScheme<IPrintScheme> AddFactoryScheme();
AddedScheme<IUserScheme> AddUserScheme();

// Of all configurations.
int FactorySchemeCount();
int UserSchemeCount();

// Nothing where the host has no such scheme. Later schemes of its list move down.
void RemoveScheme(int id);
