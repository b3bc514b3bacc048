// What all host objects have in common: their calls are logged, they fail when a test wants it, and a list hands out
// items that stay where they are until they are removed.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "refhost/CallLog.h"
#include "refhost/HostFaults.h"

namespace refhost
{

/// Shared by all objects of one host.
struct HostContext
{
    CallLog log;
    HostFaults faults;
};

class HostObject
{
public:
    virtual ~HostObject() = default;

    /// "0.2": the places of the parents and its own.
    const std::string& Place() const { return m_place; }

    /// From now on each call on the object, or on one below it, is a violation.
    virtual void MarkRemoved() { m_removed = true; }

protected:
    HostObject(HostContext& context, std::string interfaceName, std::string place = std::string());

    HostContext& Context() const { return m_context; }

    /// Each operation calls one of these first. False when the call is to fail.
    template <class... Args>
    bool Read(const char* operation, const Args&... args) const
    {
        return Called(CallLog::Kind::Read, operation, args...);
    }

    template <class... Args>
    bool Change(const char* operation, const Args&... args) const
    {
        return Called(CallLog::Kind::Change, operation, args...);
    }

    template <class Field>
    Field Get(const char* operation, const Field& field) const
    {
        Read(operation);
        return field;
    }

    template <class Field, class Value>
    void Set(const char* operation, Field& field, Value value) const
    {
        Change(operation, value);
        field = static_cast<Field>(value);
    }

    const char* GetText(const char* operation, const std::string& text) const
    {
        return Read(operation) ? text.c_str() : nullptr;
    }

    void SetText(const char* operation, std::string& text, const char* value) const
    {
        Change(operation, value);
        text = value == nullptr ? "" : value;
    }

private:
    template <class... Args>
    bool Called(CallLog::Kind kind, const char* operation, const Args&... args) const
    {
        if (!m_removed && !m_context.log.Wants(kind) && m_context.faults.failing.empty())
            return true;
        std::string list;
        ((list += (list.empty() ? "" : ", ") + Argument(args)), ...);
        return Report(kind, operation, list);
    }

    bool Report(CallLog::Kind kind, const char* operation, const std::string& arguments) const;

    template <class T>
    static std::enable_if_t<std::is_integral_v<T>, std::string> Argument(T value)
    {
        return std::to_string(value);
    }
    static std::string Argument(float value);
    static std::string Argument(const char* text);
    static std::string Argument(const HostObject* object);

    HostContext& m_context;
    std::string m_name; // "IPrintMode[0.2]"
    std::string m_place;
    bool m_removed = false;
};

/// The items of a list: they are numbered in the order in which they came to be.
template <class T>
class HostItems
{
public:
    HostItems(HostContext& context, std::string parentPlace) : m_context(context), m_parentPlace(std::move(parentPlace))
    {
    }

    /// Makes an item of the arguments that follow context and place in its constructor.
    template <class... Args>
    T& Add(Args&&... args)
    {
        const std::string number = std::to_string(m_made++);
        const std::string place = m_parentPlace.empty() ? number : m_parentPlace + "." + number;
        m_items.push_back(std::make_unique<T>(m_context, place, std::forward<Args>(args)...));
        return *m_items.back();
    }

    /// Null beyond the end.
    T* At(std::uint32_t index) const { return index < m_items.size() ? m_items[index].get() : nullptr; }
    std::uint32_t Count() const { return static_cast<std::uint32_t>(m_items.size()); }

    /// Later items move down. Nothing happens beyond the end.
    void Remove(std::uint32_t index)
    {
        if (index >= m_items.size())
            return;
        m_items[index]->MarkRemoved();
        if (m_context.faults.keepRemoved)
            m_removed.push_back(std::move(m_items[index]));
        m_items.erase(m_items.begin() + index);
    }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    HostContext& m_context;
    std::string m_parentPlace;
    std::vector<std::unique_ptr<T>> m_items;
    std::vector<std::unique_ptr<T>> m_removed;
    unsigned m_made = 0;
};

} // namespace refhost
