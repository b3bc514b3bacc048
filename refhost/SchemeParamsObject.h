#pragma once

#include "host/ISchemeParams.h"
#include "refhost/Machine.h"

namespace refhost
{

/// The parameter block of a scheme of either kind. Copying takes over every value that both kinds have, the name and
/// the configuration index included.
class SchemeParamsObject : public ISchemeParams
{
public:
    explicit SchemeParamsObject(FactoryScheme& scheme);
    explicit SchemeParamsObject(UserScheme& scheme);

    void CopyFrom(ISchemeParams* source) override;

private:
    SchemeValues& m_values;
    FactoryOnlyValues* m_factoryOnly = nullptr;
    UserOnlyValues* m_userOnly = nullptr;
};

} // namespace refhost
