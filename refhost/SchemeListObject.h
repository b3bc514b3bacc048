#pragma once

#include "host/ISchemeList.h"
#include "refhost/HostObject.h"
#include "refhost/SchemeObject.h"

namespace refhost
{

/// `Object` is FactorySchemeObject or UserSchemeObject.
template <class Interface, class Object, class Scheme>
class SchemeListObject : public ISchemeList<Interface>, public HostObject
{
public:
    SchemeListObject(HostContext& context, const char* kind, const std::vector<Scheme>& schemes)
        : HostObject(context, "ISchemeList", kind), m_schemes(context, std::string())
    {
        for (const Scheme& scheme : schemes)
            m_schemes.Add(scheme);
    }

    std::vector<Scheme> Values() const
    {
        std::vector<Scheme> values;
        for (const auto& scheme : m_schemes)
            values.push_back(scheme->Values());
        return values;
    }

    std::uint32_t GetCount() override { return Get("GetCount", m_schemes.Count()); }
    Interface* GetAt(std::uint32_t index) override { return Read("GetAt", index) ? m_schemes.At(index) : nullptr; }
    Interface* AddScheme() override { return Change("AddScheme") ? &m_schemes.Add(Scheme()) : nullptr; }

    void RemoveAt(std::uint32_t index) override
    {
        Change("RemoveAt", index);
        m_schemes.Remove(index);
    }

private:
    HostItems<Object> m_schemes;
};

using FactorySchemeListObject = SchemeListObject<IPrintScheme, FactorySchemeObject, FactoryScheme>;
using UserSchemeListObject = SchemeListObject<IUserScheme, UserSchemeObject, UserScheme>;

} // namespace refhost
