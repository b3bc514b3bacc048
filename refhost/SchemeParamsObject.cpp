#include "refhost/SchemeParamsObject.h"

namespace refhost
{

SchemeParamsObject::SchemeParamsObject(FactoryScheme& scheme) : m_values(scheme), m_factoryOnly(&scheme) {}

SchemeParamsObject::SchemeParamsObject(UserScheme& scheme) : m_values(scheme), m_userOnly(&scheme) {}

void SchemeParamsObject::CopyFrom(ISchemeParams* source)
{
    // Every block that an editor can hold was made by this host.
    const auto* block = static_cast<const SchemeParamsObject*>(source);
    if (block == nullptr)
        return;
    m_values = block->m_values;
    if (m_factoryOnly != nullptr && block->m_factoryOnly != nullptr)
        *m_factoryOnly = *block->m_factoryOnly;
    if (m_userOnly != nullptr && block->m_userOnly != nullptr)
        *m_userOnly = *block->m_userOnly;
}

} // namespace refhost
