#include "tests/loggedhost/LoggedObjects.h"

#include <algorithm>

namespace
{
CallLog::Kind KindOf(std::string_view operation)
{
    for (const std::string_view asking : {"Get", "Is", "Find", "IndexOf"})
        if (operation.substr(0, asking.size()) == asking)
            return CallLog::Kind::Read;
    return CallLog::Kind::Change;
}

// Both scheme lists are of one interface; their places tell them apart.
std::string InterfaceOf(const tables::Operation& operation)
{
    const std::string name = operation.interfaceName;
    return name == "IFactorySchemeList" || name == "IUserSchemeList" ? "ISchemeList" : name;
}

std::string CallText(const LoggedObject& object, const tables::Operation& operation, const std::string& arguments)
{
    const std::string place = object.place.empty() ? "" : "[" + object.place + "]";
    return InterfaceOf(operation) + place + "." + operation.name + "(" + arguments + ")";
}
} // namespace

bool LoggedObjects::Wants(const LoggedObject& object, const tables::Operation& operation) const
{
    return object.isRemoved || m_log.Wants(KindOf(operation.name)) || !m_faults.failing.empty();
}

bool LoggedObjects::Report(const LoggedObject& object, const tables::Operation& operation,
                           const std::string& arguments) const
{
    const std::string call = CallText(object, operation, arguments);
    m_log.Record(KindOf(operation.name), call);
    if (object.isRemoved)
        m_log.RecordViolation(call + " after its removal");
    return m_faults.Fails(call);
}

void LoggedObjects::Keep(std::unique_ptr<LoggedObject> object)
{
    if (object->parent)
        object->parent->below.push_back(object.get());
    m_known[object->sound] = std::move(object);
}

void LoggedObjects::Remove(LoggedObject& object)
{
    while (!object.below.empty())
        Remove(*object.below.back());
    object.isRemoved = true;
    if (object.parent)
    {
        auto& siblings = object.parent->below;
        siblings.erase(std::find(siblings.begin(), siblings.end(), &object));
    }
    auto known = m_known.extract(object.sound);
    if (m_faults.keepRemoved)
        m_removed.push_back(std::move(known.mapped()));
}
