#include "refhost/HostControlObject.h"

namespace refhost
{

HostControlObject::HostControlObject(HostContext& context) : HostObject(context, "IHostControl") {}

void HostControlObject::SaveParameters(std::uint32_t kind)
{
    Change("SaveParameters", kind);
    Ask(SaveRequest::Parameters);
}

void HostControlObject::SaveCustomEclosionSet()
{
    Change("SaveCustomEclosionSet");
    Ask(SaveRequest::CustomEclosionSet);
}

void HostControlObject::Ask(SaveRequest request) const
{
    if (m_handler)
        m_handler(request);
}

} // namespace refhost
