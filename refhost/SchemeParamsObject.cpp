#include "refhost/SchemeParamsObject.h"

namespace refhost
{

CSchemeParamsObject::CSchemeParamsObject(FactoryScheme& scheme) : m_values(scheme), m_pFactoryOnly(&scheme) {}

CSchemeParamsObject::CSchemeParamsObject(UserScheme& scheme) : m_values(scheme), m_pUserOnly(&scheme) {}

void CSchemeParamsObject::CopyFrom(ISchemeParams* source)
{
    // Every block that an editor can hold was made by this host.
    const auto* block = static_cast<const CSchemeParamsObject*>(source);
    if (block == nullptr)
        return;
    m_values = block->m_values;
    if (m_pFactoryOnly != nullptr && block->m_pFactoryOnly != nullptr)
        *m_pFactoryOnly = *block->m_pFactoryOnly;
    if (m_pUserOnly != nullptr && block->m_pUserOnly != nullptr)
        *m_pUserOnly = *block->m_pUserOnly;
}

} // namespace refhost
