#include "refhost/Host.h"

#include "refhost/HostControlObject.h"
#include "refhost/HostDataObject.h"

namespace refhost
{

Host::Host(const Machine& machine, const HostFaults& faults) : m_context{{}, faults}
{
    m_data = std::make_unique<HostDataObject>(m_context, machine);
    m_control = std::make_unique<HostControlObject>(m_context);
}

Host::~Host() = default;

IHostData* Host::Data()
{
    return m_data.get();
}

IHostControl* Host::Control()
{
    return m_control.get();
}

Machine Host::CurrentMachine() const
{
    return m_data->Values();
}

void Host::OnSave(std::function<void(SaveRequest)> handler)
{
    m_control->OnSave(std::move(handler));
}

std::uint32_t Host::OutstandingConfigs() const
{
    return m_data->OutstandingConfigs();
}

} // namespace refhost
