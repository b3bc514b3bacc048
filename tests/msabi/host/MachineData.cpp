#include "tests/msabi/host/MachineData.h"

namespace
{
// What the host's tables hold; the library knows of the first value alone.
struct ParamEntry
{
    int value;
    char unit[12];
    double lowest;
    double highest;
};
} // namespace

unsigned char InkChannelTable::GetColorIndex(unsigned short channelId)
{
    for (InkChannel* channel : items)
        if (channel->id == channelId)
            return channel->colorIndex;
    Require(false, "there is no such channel");
    return 0;
}

void InkChannelTable::GetChannelsOfLayout(unsigned char layoutId, HostArray<IInkChannel*>* channels)
{
    if (!Require(layoutId == 40 || layoutId == 41, "there is no such layout"))
        return;
    if (fieldsBeforeArray == 0)
        Require(channels->Size() == 0, "the array is not empty");
    channels = reinterpret_cast<HostArray<IInkChannel*>*>(reinterpret_cast<void**>(channels) + fieldsBeforeArray);
    const void* const storage = channels->Storage();
    const unsigned first = layoutId == 40 ? 0 : 4;
    const unsigned own = layoutId == 40 ? 4 : 2;
    const unsigned count = channelsOfLayout ? channelsOfLayout : own;
    for (unsigned i = 0; i < count; ++i)
        channels->Append(items[first + i % own]);
    ++arraysFilled;
    arraysGrown += channels->Storage() != storage ? 1 : 0;
}

unsigned char InkGroupTable::GetColorIndex(unsigned short groupId)
{
    InkGroup* const group = Find(groupId);
    return group ? group->colorIndex : 0;
}

InkGroup* InkGroupTable::Find(unsigned short groupId)
{
    for (InkGroup* group : items)
        if (group->id == groupId)
            return group;
    Require(false, "there is no such group");
    return nullptr;
}

IHeadLayout* HeadLayoutList::FindById(unsigned short id)
{
    const int index = IndexOfId(id);
    return index >= 0 ? items[static_cast<unsigned>(index)] : nullptr;
}

int HeadLayoutList::IndexOfId(unsigned short id)
{
    for (unsigned i = 0; i < items.Size(); ++i)
        if (items[i]->id == id)
            return static_cast<int>(i);
    Require(false, "there is no such head");
    return -1;
}

int ChannelSetup::FindSetup(unsigned setupId)
{
    Require(setupId == 70005, "this is not the active set-up");
    return setupId == fits ? 0 : -1;
}

unsigned short ActiveSetup::GetGroupId(unsigned index)
{
    return Require(index < groups.Size(), "the index is out of range") ? groups[index] : static_cast<unsigned short>(0);
}

void ParamTable::GetEntry(void* entry, unsigned index)
{
    if (Require(index < entries.Size(), "the index is out of range"))
        *static_cast<ParamEntry*>(entry) = {entries[index], "dots", -1.0, 1.0e9};
}
