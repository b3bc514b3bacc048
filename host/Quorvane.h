#pragma once

/// The one header that a host includes. It brings in every interface and declares the two functions that Quorvane.dll
/// exports.
///
/// Order of use:
/// 1. Load "Quorvane.dll". It must lie beside the host's executable under this name.
/// 2. Look up NewInterface and ReleaseInterface by their plain names, and call NewInterface.
/// 3. Pass objects of your own, derived from IHostData and IHostControl, to the editor operations of IQuorvane. One
///    editor can be open at a time: a second operation that is called meanwhile returns 0 and does nothing.
/// 4. Call ReleaseInterface.
///
/// Leave the library loaded until the process ends. Its load count rises by one with each editor run, and with each
/// dialog for a custom eclosion or a new user scheme that is opened during a run. The library never lowers it.
///
/// Rules for every interface, unless its own header says otherwise:
/// - Objects and texts that a host returns stay the host's. Texts are narrow, in the thread's ANSI code page, zero
///   terminated.
/// - Texts and buffers that the library passes stay the library's and are valid during the call only.
/// - A null object means that there is none. The editor then ends the current action silently.
/// - The library reads a result of 8 or 16 bits in that width and ignores the rest of the register. A boolean result is
///   one byte, non-zero for true. A boolean argument is 0 or 1 in 32 bits.
/// - A setter takes effect at once. Cancel undoes nothing.
/// - The number behind an operation is its position in the table of virtual operations. The library never calls the
///   operations named Reserved; they keep the later positions in place. A host need not override them.
///
/// Eclosion is the feathering of swath edges, which hides the seam between two passes. It has a type (the pattern of
/// the edge), a range (how far it reaches) and a level. The levels are named as in the dialogs and stored as 0 close
/// (no feathering), 1 light, 2 normal, 3 depth, 4 custom and 5 super.

#include "IQuorvane.h"

#include "IActiveSetup.h"
#include "IChannelList.h"
#include "IChannelSetup.h"
#include "IConfigList.h"
#include "ICustomEclosion.h"
#include "ICustomEclosionSet.h"
#include "IDataMode.h"
#include "IDeviceState.h"
#include "IEclosionElement.h"
#include "IEclosionMode.h"
#include "IHeadLayout.h"
#include "IHeadLayoutList.h"
#include "IHostControl.h"
#include "IHostData.h"
#include "IInkChannel.h"
#include "IInkChannelTable.h"
#include "IInkGroup.h"
#include "IInkGroupTable.h"
#include "ILayout.h"
#include "ILayoutList.h"
#include "IMaterial.h"
#include "IMaterialList.h"
#include "IParamTable.h"
#include "IPrintConfig.h"
#include "IPrintMode.h"
#include "IPrintScheme.h"
#include "ISchemeList.h"
#include "ISchemeParams.h"
#include "IUserScheme.h"
#include "IXResolution.h"
#include "IXResolutionList.h"

// Spelled out so that a host built with another default convention still declares the exports as they are.
#if defined(_WIN32)
#define QUORVANE_CALL __cdecl
#else
#define QUORVANE_CALL
#endif

extern "C"
{
    /// Creates an interface object on the library's heap, a new one at each call. Returns null when there is no memory
    /// for it. Give the object back through ReleaseInterface; never delete it.
    IQuorvane* QUORVANE_CALL NewInterface();

    /// Destroys an object of NewInterface, by Destroy(1), and frees its memory. Null is ignored. Do not call it while
    /// an editor of the object is open.
    void QUORVANE_CALL ReleaseInterface(IQuorvane* object);
}

/// The types of the two exports, for GetProcAddress.
using NewInterfaceFunction = IQuorvane*(QUORVANE_CALL*)();
using ReleaseInterfaceFunction = void(QUORVANE_CALL*)(IQuorvane* object);
