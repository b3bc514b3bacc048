#pragma once

#include "host/ISchemeParams.h"
#include "refhost/Machine.h"

namespace refhost
{

// The parameter block of a scheme of either kind. Copying takes over every value that both kinds have, the name and
// the configuration index included.
class CSchemeParamsObject final : public ISchemeParams
{
public:
    explicit CSchemeParamsObject(FactoryScheme& scheme);
    explicit CSchemeParamsObject(UserScheme& scheme);

    void CopyFrom(ISchemeParams* source) override;

private:
    SchemeValues& m_values;
    FactoryOnlyValues* m_pFactoryOnly = nullptr;
    UserOnlyValues* m_pUserOnly = nullptr;
};

} // namespace refhost
