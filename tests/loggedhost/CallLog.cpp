#include "tests/loggedhost/CallLog.h"

using Lock = std::lock_guard<std::mutex>;

bool CallLog::Wants(Kind kind) const
{
    return m_level == Level::Everything || (m_level == Level::Changes && kind == Kind::Change);
}

void CallLog::Record(Kind kind, const std::string& call)
{
    if (!Wants(kind))
        return;
    const Lock lock(m_mutex);
    m_calls.push_back({kind, call});
}

void CallLog::RecordViolation(const std::string& what)
{
    const Lock lock(m_mutex);
    m_violations.push_back(what);
}

std::vector<std::string> CallLog::Changes() const
{
    const Lock lock(m_mutex);
    std::vector<std::string> changes;
    for (const Call& call : m_calls)
        if (call.kind == Kind::Change)
            changes.push_back(call.text);
    return changes;
}

std::vector<std::string> CallLog::Everything() const
{
    const Lock lock(m_mutex);
    std::vector<std::string> calls;
    for (const Call& call : m_calls)
        calls.push_back(call.text);
    return calls;
}

std::vector<std::string> CallLog::Violations() const
{
    const Lock lock(m_mutex);
    return m_violations;
}

void CallLog::Clear()
{
    const Lock lock(m_mutex);
    m_calls.clear();
    m_violations.clear();
}
