#pragma once

#include "tables/Forwarding.h"
#include "tests/loggedhost/CallLog.h"
#include "tests/loggedhost/CallText.h"
#include "tests/loggedhost/HostFaults.h"
#include "tests/loggedhost/ListItems.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the log knows of an object that the library gets.
struct LoggedObject
{
    LoggedObject(const void* soundObject, LoggedObject* itsParent, const std::string& itsPlace)
        : sound(soundObject), parent(itsParent), place(itsPlace), placeOfItems(itsPlace)
    {
    }
    virtual ~LoggedObject() = default;

    const void* sound; // the host's own object
    LoggedObject* parent;
    std::string place; // "0.2": the places of the parents and its own
    std::string placeOfItems;
    unsigned itemsMade = 0;
    std::vector<LoggedObject*> below;
    bool isRemoved = false;
};

template <class Interface>
class Logged;

// All objects of one host. The library gets one object for each of the host's, always the same.
class LoggedObjects
{
public:
    LoggedObjects(CallLog& log, const HostFaults& faults) : m_log(log), m_faults(faults) {}

    const HostFaults& Faults() const { return m_faults; }

    // With all that lies below it.
    template <class Object, class Interface>
    Object& Add(LoggedObject* parent, Interface* sound, const std::string& place);
    // The place of an item is how many came to be before it in its list.
    template <class Interface>
    Interface* AddItem(LoggedObject& list, Interface* sound);

    template <class Interface>
    Interface* Known(Interface* sound) const;
    // Null for what was removed.
    template <class Interface>
    static Interface* Sound(Interface* given);
    template <class Interface>
    static std::string Place(Interface* given);

    // With all that lies below it. Each later call of it is a violation.
    void Remove(LoggedObject& object);
    template <class Interface>
    void Remove(Interface* sound);

    // Whether anybody wants to know of the call.
    bool Wants(const LoggedObject& object, const tables::Operation& operation) const;
    // Whether the call is to fail, if it can.
    bool Report(const LoggedObject& object, const tables::Operation& operation, const std::string& arguments) const;
    void ReportViolation(const std::string& what) const { m_log.RecordViolation(what); }

private:
    template <class Interface>
    void AddBelow(LoggedObject& object, Interface& sound);
    void Keep(std::unique_ptr<LoggedObject> object);

    CallLog& m_log;
    const HostFaults& m_faults;
    std::map<const void*, std::unique_ptr<LoggedObject>> m_known; // by the host's own objects
    std::vector<std::unique_ptr<LoggedObject>> m_removed;
};

// Reports each call of an object, and makes it unless it is to fail.
class CallHook
{
public:
    CallHook(LoggedObjects& objects, LoggedObject& object) : m_objects(&objects), m_object(&object) {}

    template <class Interface, class Result, class... Arguments>
    Result Pass(const tables::Operation& operation, Interface* sound, Result (Interface::*function)(Arguments...),
                Arguments... arguments);

private:
    template <class... Arguments>
    bool IsToFail(const tables::Operation& operation, Arguments... arguments) const;
    template <class Result>
    static bool CanFail(const tables::Operation& operation);
    template <class Argument>
    static std::string Text(Argument argument);
    template <class Argument>
    static Argument Taken(Argument argument);
    template <class Interface>
    Interface* Given(Interface* sound) const;

    LoggedObjects* m_objects;
    LoggedObject* m_object;
};

template <class Interface>
class Logged : public LoggedObject, public tables::CForwarding<Interface, CallHook>
{
    using Forwarding = tables::CForwarding<Interface, CallHook>;

public:
    Logged(LoggedObjects& objects, Interface* soundObject, LoggedObject* itsParent, const std::string& itsPlace)
        : LoggedObject(soundObject, itsParent, itsPlace), Forwarding(soundObject, CallHook(objects, *this)),
          m_objects(objects)
    {
    }

protected:
    LoggedObjects& Objects() { return m_objects; }

private:
    LoggedObjects& m_objects;
};

template <class Object, class Interface>
Object& LoggedObjects::Add(LoggedObject* parent, Interface* sound, const std::string& place)
{
    auto object = std::make_unique<Object>(*this, sound, parent, place);
    Object& added = *object;
    Keep(std::move(object));
    AddBelow(added, *sound);
    return added;
}

template <class Interface>
Interface* LoggedObjects::AddItem(LoggedObject& list, Interface* sound)
{
    const std::string number = std::to_string(list.itemsMade++);
    const std::string& parents = list.placeOfItems;
    return &Add<Logged<Interface>>(&list, sound, parents.empty() ? number : parents + "." + number);
}

template <class Interface>
void LoggedObjects::AddBelow(LoggedObject& object, Interface& sound)
{
    ForEachItem(sound, [&](auto* item) { AddItem(object, item); });
    if constexpr (std::is_same_v<Interface, IPrintScheme>)
        Add<Logged<ISchemeParams>>(&object, sound.GetParams(), "factory." + object.place);
    if constexpr (std::is_same_v<Interface, IUserScheme>)
        Add<Logged<ISchemeParams>>(&object, sound.GetParams(), "user." + object.place);
}

template <class Interface>
Interface* LoggedObjects::Known(Interface* sound) const
{
    const auto found = m_known.find(sound);
    return found == m_known.end() ? nullptr : static_cast<Logged<Interface>*>(found->second.get());
}

template <class Interface>
Interface* LoggedObjects::Sound(Interface* given)
{
    const auto* object = static_cast<Logged<Interface>*>(given);
    return object && !object->isRemoved ? object->Wrapped() : nullptr;
}

template <class Interface>
std::string LoggedObjects::Place(Interface* given)
{
    return given ? static_cast<Logged<Interface>*>(given)->place : "null";
}

template <class Interface>
void LoggedObjects::Remove(Interface* sound)
{
    const auto found = m_known.find(sound);
    if (found != m_known.end())
        Remove(*found->second);
}

// A pointer to an interface, and nothing else.
template <class Value>
constexpr bool kIsObject = std::is_polymorphic_v<std::remove_pointer_t<Value>>;

template <class Interface, class Result, class... Arguments>
Result CallHook::Pass(const tables::Operation& operation, Interface* sound, Result (Interface::*function)(Arguments...),
                      Arguments... arguments)
{
    const bool fails = IsToFail(operation, arguments...);
    if (m_object->isRemoved || (fails && CanFail<Result>(operation)))
        return Result();
    if constexpr (kHasItems<Interface> && std::is_same_v<Result(Arguments...), void(std::uint32_t)>)
        m_objects->Remove(ItemAt(*sound, arguments...));
    if constexpr (kIsObject<Result>)
        return Given((sound->*function)(Taken(arguments)...));
    else
        return (sound->*function)(Taken(arguments)...);
}

template <class... Arguments>
bool CallHook::IsToFail(const tables::Operation& operation, Arguments... arguments) const
{
    return m_objects->Wants(*m_object, operation) &&
           m_objects->Report(*m_object, operation, ListText({Text(arguments)...}));
}

// An object or a name that does not come, or a configuration that is not taken.
template <class Result>
bool CallHook::CanFail(const tables::Operation& operation)
{
    return std::is_pointer_v<Result> || std::string_view(operation.name) == "AddConfig";
}

template <class Argument>
std::string CallHook::Text(Argument argument)
{
    if constexpr (kIsObject<Argument>)
        return LoggedObjects::Place(argument);
    else
        return ArgumentText(argument);
}

template <class Argument>
Argument CallHook::Taken(Argument argument)
{
    if constexpr (kIsObject<Argument>)
        return LoggedObjects::Sound(argument);
    else
        return argument;
}

template <class Interface>
Interface* CallHook::Given(Interface* sound) const
{
    if (!sound)
        return nullptr;
    Interface* const known = m_objects->Known(sound);
    return known ? known : m_objects->AddItem(*m_object, sound);
}
