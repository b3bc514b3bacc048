#include "refhost/HostControlObject.h"

namespace refhost
{

void HostControlObject::SaveParameters(std::uint32_t)
{
    Ask(SaveRequest::Parameters);
}

void HostControlObject::SaveCustomEclosionSet()
{
    Ask(SaveRequest::CustomEclosionSet);
}

void HostControlObject::Ask(SaveRequest request) const
{
    if (m_handler)
        m_handler(request);
}

} // namespace refhost
