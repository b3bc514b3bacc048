#include "dialogs/data/HostRun.h"

namespace
{
IHostData* currentData = nullptr;
IHostControl* currentControl = nullptr;
} // namespace

IHostData& HostData()
{
    return *currentData;
}

IHostControl& HostControl()
{
    return *currentControl;
}

void SetHost(IHostData& data, IHostControl& control)
{
    currentData = &data;
    currentControl = &control;
}
