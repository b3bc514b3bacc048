#pragma once

/// The one header that a host includes: every interface, and the two functions that Quorvane.dll exports.
///
/// Order of use: load "Quorvane.dll", which must lie beside the host's executable under this name; look up NewInterface
/// and ReleaseInterface by their plain names; call NewInterface; pass objects of your own, derived from IHostData and
/// IHostControl, to the editor operations of IQuorvane; call ReleaseInterface. Leave the library loaded: each editor
/// run raises its load count by one and does not lower it again.
///
/// Rules that hold for every interface, unless its own header says otherwise:
/// - Objects and texts that a host returns stay the host's. Texts are narrow, in the thread's ANSI code page.
/// - Texts and buffers that the library passes are its own and are valid during the call only.
/// - A null object is "there is none": the editor ends the action at hand silently.
/// - Small results are read in the width declared. A boolean result is one byte, non-zero for true; a boolean argument
/// is
///   a clean 0 or 1 in 32 bits.
/// - A setter takes effect at once. Cancel undoes nothing.
/// - The number behind an operation is its position in the table of virtual operations. The library never calls the
///   operations named Reserved; they keep later positions where they are. A host leaves them alone or overrides them.

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
    /// Makes a new object at every call. Returns null when there is no memory for it. The caller owns the object until
    /// it hands it to ReleaseInterface; it never deletes it.
    IQuorvane* QUORVANE_CALL NewInterface();

    /// Destroys an object of NewInterface. Null is ignored. Not to be called while one of its editors is open.
    void QUORVANE_CALL ReleaseInterface(IQuorvane* object);
}

/// The types of the two exports, for GetProcAddress.
using NewInterfaceFunction = IQuorvane*(QUORVANE_CALL*)();
using ReleaseInterfaceFunction = void(QUORVANE_CALL*)(IQuorvane* object);
