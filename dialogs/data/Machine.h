#pragma once

#include "dialogs/data/HostList.h"
#include "dialogs/data/HostRun.h"
#include "host/IActiveSetup.h"
#include "host/IChannelList.h"
#include "host/IChannelSetup.h"
#include "host/IHeadLayout.h"
#include "host/IHeadLayoutList.h"
#include "host/ILayout.h"
#include "host/ILayoutList.h"
#include "host/IMaterial.h"
#include "host/IMaterialList.h"

// What the machine offers: its active set-up, its option tables, and the lists that schemes choose from.

// What the machine prints with now; null when the host tells nothing of it.
IActiveSetup* ActiveSetup();

// 0 where the host offers none.
int WaveformCount();

bool OffersCustomLevel();

// Whether a type of eclosion, by its index in the host's table, is offered.
bool OffersEclosionType(int type);
// How many types the table has that a scheme can store in a byte.
int EclosionTypeCount();

// Without an active set-up no material is offered.
template <class Visitor>
void ForEachMaterial(Visitor visit)
{
    if (ActiveSetup())
        ForEach(HostData().GetMaterialList(), visit);
}

// Calls the visitor with the channel set-ups that fit the active set-up, and their indices in the host's list.
template <class Visitor>
void ForEachFittingSetup(Visitor visit)
{
    IActiveSetup* active = ActiveSetup();
    if (!active)
        return;
    ForEach(HostData().GetChannelList(), [&](IChannelSetup& setup, int index) {
        if (setup.FindSetup(active->GetId()) >= 0)
            visit(setup, index);
    });
}

// Calls the visitor with the heads of a layout.
template <class Visitor>
void ForEachHeadOf(ILayout& layout, Visitor visit)
{
    ForEach(HostData().GetHeadLayoutList(), [&](IHeadLayout& head, int) {
        if (head.GetLayoutId() == layout.GetId())
            visit(head);
    });
}
