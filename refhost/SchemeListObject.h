#pragma once

#include "host/ISchemeList.h"
#include "refhost/HostItems.h"
#include "refhost/SchemeObject.h"

namespace refhost
{

// `Object` is CFactorySchemeObject or CUserSchemeObject.
template <class Interface, class Object, class Scheme>
class CSchemeListObject final : public ISchemeList<Interface>
{
public:
    explicit CSchemeListObject(const std::vector<Scheme>& schemes) : m_schemes(schemes) {}

    std::vector<Scheme> Values() const { return m_schemes.Values(); }

    std::uint32_t GetCount() override { return m_schemes.Count(); }
    Interface* GetAt(std::uint32_t index) override { return m_schemes.At(index); }
    Interface* AddScheme() override { return &m_schemes.Add(Scheme()); }
    void RemoveAt(std::uint32_t index) override { m_schemes.Remove(index); }

private:
    CHostItems<Object> m_schemes;
};

using CFactorySchemeListObject = CSchemeListObject<IPrintScheme, CFactorySchemeObject, FactoryScheme>;
using CUserSchemeListObject = CSchemeListObject<IUserScheme, CUserSchemeObject, UserScheme>;

} // namespace refhost
