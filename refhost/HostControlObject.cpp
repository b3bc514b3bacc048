#include "refhost/HostControlObject.h"

namespace refhost
{

void CHostControlObject::SaveParameters(std::uint32_t)
{
    Ask(SaveRequest::Parameters);
}

void CHostControlObject::SaveCustomEclosionSet()
{
    Ask(SaveRequest::CustomEclosionSet);
}

void CHostControlObject::Ask(SaveRequest request) const
{
    if (m_handler)
        m_handler(request);
}

} // namespace refhost
