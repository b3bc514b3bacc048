#include "refhost/Host.h"

#include "refhost/HostControlObject.h"
#include "refhost/HostDataObject.h"

namespace refhost
{

CHost::CHost(const Machine& machine)
    : m_pData(std::make_unique<CHostDataObject>(machine)), m_pControl(std::make_unique<CHostControlObject>())
{
}

CHost::~CHost() = default;

IHostData* CHost::Data()
{
    return m_pData.get();
}

IHostControl* CHost::Control()
{
    return m_pControl.get();
}

Machine CHost::CurrentMachine() const
{
    return m_pData->Values();
}

void CHost::OnSave(std::function<void(SaveRequest)> handler)
{
    m_pControl->OnSave(std::move(handler));
}

} // namespace refhost
