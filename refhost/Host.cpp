#include "refhost/Host.h"

#include "refhost/HostControlObject.h"
#include "refhost/HostDataObject.h"

namespace refhost
{

Host::Host(const Machine& machine)
    : m_data(std::make_unique<HostDataObject>(machine)), m_control(std::make_unique<HostControlObject>())
{
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

} // namespace refhost
