#pragma once

#include "tests/msabi/host/Lists.h"

// The parts of the machine that the editors only read.

class InkChannel final : public Object<IInkChannel>
{
public:
    unsigned short GetId() override { return id; }
    const char* GetName() override { return name.Text(); }

    Name name;
    unsigned short id = 0;
    unsigned char colorIndex = 0;
};

class InkChannelTable final : public Object<IInkChannelTable>
{
public:
    unsigned char GetColorIndex(unsigned short channelId) override;
    void GetChannelsOfLayout(unsigned char layoutId, HostArray<IInkChannel*>* channels) override;

    HostArray<InkChannel*> items;
    // Of a layout: its own ones in turn, as often as it takes.
    unsigned channelsOfLayout = 0;
    unsigned fieldsBeforeArray = 0;
    unsigned arraysFilled = 0;
    unsigned arraysGrown = 0;
};

class InkGroup final : public Object<IInkGroup>
{
public:
    unsigned short GetId() override { return id; }
    const char* GetName() override { return name.Text(); }
    unsigned GetChannelCount() override { return channels.Size(); }
    IInkChannel* GetChannel(unsigned index) override { return ItemAt(channels, index); }

    Name name;
    unsigned short id = 0;
    unsigned char colorIndex = 0;
    HostArray<InkChannel*> channels;
};

class InkGroupTable final : public Object<IInkGroupTable>
{
public:
    unsigned GetCount() override { return items.Size(); }
    IInkGroup* GetAt(unsigned index) override { return ItemAt(items, index); }
    IInkGroup* GetGroup(unsigned short groupId) override { return Find(groupId); }
    unsigned char GetColorIndex(unsigned short groupId) override;

    HostArray<InkGroup*> items;

private:
    InkGroup* Find(unsigned short groupId);
};

class Layout final : public Object<ILayout>
{
public:
    const char* GetName() override { return name.Text(); }
    unsigned GetId() override { return id; }

    Name name;
    unsigned id = 0;
};
using LayoutList = ReadOnlyList<ILayoutList, ILayout, Layout>;

using DataMode = Named<IDataMode>;

class HeadLayout final : public Object<IHeadLayout>
{
public:
    const char* GetName() override { return name.Text(); }
    unsigned short GetId() override { return id; }
    unsigned GetLayoutId() override { return layoutId; }
    unsigned GetDataModeCount() override { return dataModes.Size(); }
    IDataMode* GetDataMode(unsigned index) override { return ItemAt(dataModes, index); }

    Name name;
    unsigned short id = 0;
    unsigned layoutId = 0;
    HostArray<DataMode*> dataModes;
};

class HeadLayoutList final : public Object<IHeadLayoutList>
{
public:
    unsigned GetCount() override { return items.Size(); }
    IHeadLayout* GetAt(unsigned index) override { return ItemAt(items, index); }
    IHeadLayout* FindById(unsigned short id) override;
    int IndexOfId(unsigned short id) override;

    HostArray<HeadLayout*> items;
};

using XResolution = Named<IXResolution>;
using XResolutionList = ReadOnlyList<IXResolutionList, IXResolution, XResolution>;

class ChannelSetup final : public Object<IChannelSetup>
{
public:
    const char* GetName() override { return name.Text(); }
    int FindSetup(unsigned setupId) override;

    Name name;
    unsigned fits = 0;
};
using ChannelList = ReadOnlyList<IChannelList, IChannelSetup, ChannelSetup>;

class Material final : public Object<IMaterial>
{
public:
    unsigned short GetId() override { return id; }
    const char* GetName() override { return name.Text(); }

    Name name;
    unsigned short id = 0;
};
using MaterialList = ReadOnlyList<IMaterialList, IMaterial, Material>;

class ActiveSetup final : public Object<IActiveSetup>
{
public:
    unsigned GetId() override { return id; }
    unsigned GetGroupCount() override { return groups.Size(); }
    unsigned short GetGroupId(unsigned index) override;

    unsigned id = 0;
    HostArray<unsigned short> groups;
};

class DeviceState final : public Object<IDeviceState>
{
public:
    IActiveSetup* GetActiveSetup() override { return active; }

    ActiveSetup* active = nullptr;
};

class ParamTable final : public Object<IParamTable>
{
public:
    int GetCount() override { return static_cast<int>(entries.Size()); }
    void GetEntry(void* entry, unsigned index) override;

    unsigned id = 0;
    HostArray<int> entries;
};
