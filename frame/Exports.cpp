#include "frame/QuorvaneIns.h"
#include "host/Quorvane.h"

#include <new>

extern "C" IQuorvane* QUORVANE_CALL NewInterface()
{
    return new (std::nothrow) CQuorvaneIns;
}

extern "C" void QUORVANE_CALL ReleaseInterface(IQuorvane* object)
{
    if (object)
        object->Destroy(1);
}
