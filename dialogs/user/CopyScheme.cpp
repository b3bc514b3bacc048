#include "dialogs/user/CopyScheme.h"

#include "dialogs/scheme/SchemeRecords.h"
#include "host/IPrintScheme.h"
#include "host/ISchemeParams.h"
#include "host/IUserScheme.h"

namespace
{
void CopyEclosion(IUserScheme& target, IPrintScheme& source)
{
    target.SetDotMode(source.GetDotMode());
    target.SetDefaultRangeSS(source.GetDefaultRangeSS());
    target.SetDefaultRangeS(source.GetDefaultRangeS());
    target.SetDefaultRangeM(source.GetDefaultRangeM());
    target.SetDefaultRangeL(source.GetDefaultRangeL());
    target.SetEclosionType(source.GetEclosionType());
    target.SetCustomEclosionId(source.GetCustomEclosionId());
    target.SetEclosionLevel(source.GetEclosionLevel());
    target.SetCustomRange(source.GetCustomRange());
    target.SetHeadEclosionType(source.GetHeadEclosionType());
}

void CopyInk(IUserScheme& target, IPrintScheme& source)
{
    for (std::uint8_t i = 0; i < INK_MULTIPLE_COUNT; ++i)
        target.SetInkMultiple(source.GetInkMultiple(i), i);
    for (std::uint8_t i = 0; i < INK_CUT_COUNT; ++i)
        target.SetInkCut(source.GetInkCut(i), i);
}

// In the order of the user record's setters. Small-format settings are not copied: they are read through the base.
void CopyFactoryScheme(IUserScheme& target, IPrintScheme& source, int nSourceId)
{
    target.SetConfigIndex(source.GetConfigIndex());
    target.SetBaseScheme(static_cast<std::uint8_t>(nSourceId));
    target.SetSpeed(static_cast<std::uint8_t>(source.GetSpeed()));
    target.SetDirection(static_cast<std::uint8_t>(source.GetDirection()));
    target.SetMaterial(static_cast<std::uint8_t>(source.GetMaterial()));
    CopyEclosion(target, source);
    CopyInk(target, source);
    target.SetLampLL(source.GetLampLL());
    target.SetLampLR(source.GetLampLR());
    target.SetLampRL(source.GetLampRL());
    target.SetLampRR(source.GetLampRR());
    target.SetChannel(source.GetChannel());
}

void CopyUserScheme(IUserScheme& target, IUserScheme& source)
{
    ISchemeParams* pTarget = target.GetParams();
    ISchemeParams* pSource = source.GetParams();
    if (pTarget && pSource)
        pTarget->CopyFrom(pSource);
}
} // namespace

void CopySchemeInto(IUserScheme& target, int nSourceId)
{
    if (nSourceId >= FIRST_USER_SCHEME)
    {
        if (IUserScheme* pSource = UserSchemeAt(nSourceId - FIRST_USER_SCHEME))
            CopyUserScheme(target, *pSource);
    }
    else if (IPrintScheme* pSource = FactorySchemeAt(nSourceId))
        CopyFactoryScheme(target, *pSource, nSourceId);
}
