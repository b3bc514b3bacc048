#include "refhost/HostObject.h"

#include <charconv>

namespace refhost
{
namespace
{

std::string Quoted(const std::string& text)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string quoted = "\"";
    for (char c : text)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7F)
            quoted += c;
        else
            quoted += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
    }
    return quoted + "\"";
}

} // namespace

HostObject::HostObject(HostContext& context, std::string interfaceName, std::string place)
    : m_context(context), m_name(std::move(interfaceName)), m_place(std::move(place))
{
    if (!m_place.empty())
        m_name += "[" + m_place + "]";
}

bool HostObject::Report(CallLog::Kind kind, const char* operation, const std::string& arguments) const
{
    const std::string call = m_name + "." + operation + "(" + arguments + ")";
    m_context.log.Record(kind, call);
    if (m_removed)
        m_context.log.RecordViolation(call + " after its removal");
    return !m_context.faults.Fails(call);
}

std::string HostObject::Argument(float value)
{
    char text[32] = {};
    std::to_chars(text, text + sizeof text - 1, value);
    return text;
}

std::string HostObject::Argument(const char* text)
{
    return text == nullptr ? "null" : Quoted(text);
}

std::string HostObject::Argument(const HostObject* object)
{
    return object == nullptr ? "null" : object->Place();
}

} // namespace refhost
