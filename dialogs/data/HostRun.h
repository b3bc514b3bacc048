#pragma once

#include "host/IHostControl.h"
#include "host/IHostData.h"

// The host's two objects of the editor operation that runs, or of the last one that ran: they stay until the next
// operation names others. No dialog exists before the first. Used on the host's user-interface thread only.
IHostData& HostData();
IHostControl& HostControl();

void SetHost(IHostData& data, IHostControl& control);
