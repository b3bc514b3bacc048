// The machine's lists that editors only read: layouts, heads, resolutions, channel set-ups, materials, the device's
// state and the parameter tables.
#pragma once

#include "host/IActiveSetup.h"
#include "host/IChannelList.h"
#include "host/IChannelSetup.h"
#include "host/IDataMode.h"
#include "host/IDeviceState.h"
#include "host/IHeadLayout.h"
#include "host/IHeadLayoutList.h"
#include "host/ILayout.h"
#include "host/ILayoutList.h"
#include "host/IMaterial.h"
#include "host/IMaterialList.h"
#include "host/IParamTable.h"
#include "host/IXResolution.h"
#include "host/IXResolutionList.h"
#include "refhost/HostItems.h"
#include "refhost/Machine.h"

namespace refhost
{

/// A list with GetCount and GetAt. `Record` is what the machine holds of one item.
template <class ListInterface, class ItemInterface, class Item, class Record>
class TableObject : public ListInterface
{
public:
    explicit TableObject(const std::vector<Record>& records) : m_items(records) {}

    std::uint32_t GetCount() override { return m_items.Count(); }
    ItemInterface* GetAt(std::uint32_t index) override { return m_items.At(index); }

protected:
    const HostItems<Item>& Items() const { return m_items; }

private:
    HostItems<Item> m_items;
};

class LayoutObject : public ILayout
{
public:
    explicit LayoutObject(const Layout& layout) : m_layout(layout) {}

    const char* GetName() override { return m_layout.name.c_str(); }
    std::uint32_t GetId() override { return m_layout.id; }

private:
    Layout m_layout;
};

using LayoutListObject = TableObject<ILayoutList, ILayout, LayoutObject, Layout>;

/// An item of which editors read nothing but the name.
template <class Interface>
class NamedObject : public Interface
{
public:
    explicit NamedObject(const std::string& name) : m_strName(name) {}

    const char* GetName() override { return m_strName.c_str(); }

private:
    std::string m_strName;
};

using DataModeObject = NamedObject<IDataMode>;
using XResolutionObject = NamedObject<IXResolution>;
using XResolutionListObject = TableObject<IXResolutionList, IXResolution, XResolutionObject, std::string>;

class HeadLayoutObject : public IHeadLayout
{
public:
    explicit HeadLayoutObject(const HeadLayout& head);

    std::uint16_t Id() const { return m_head.id; }

    const char* GetName() override;
    std::uint16_t GetId() override;
    std::uint32_t GetLayoutId() override;
    std::uint32_t GetDataModeCount() override;
    IDataMode* GetDataMode(std::uint32_t index) override;

private:
    HeadLayout m_head;
    HostItems<DataModeObject> m_dataModes;
};

class HeadLayoutListObject : public TableObject<IHeadLayoutList, IHeadLayout, HeadLayoutObject, HeadLayout>
{
public:
    using TableObject::TableObject;

    IHeadLayout* FindById(std::uint16_t id) override;
    std::int32_t IndexOfId(std::uint16_t id) override;

private:
    std::int32_t Find(std::uint16_t id) const;
};

class ChannelSetupObject : public IChannelSetup
{
public:
    explicit ChannelSetupObject(const ChannelSetup& setup);

    const char* GetName() override;
    std::int32_t FindSetup(std::uint32_t id) override;

private:
    ChannelSetup m_setup;
};

using ChannelListObject = TableObject<IChannelList, IChannelSetup, ChannelSetupObject, ChannelSetup>;

class MaterialObject : public IMaterial
{
public:
    explicit MaterialObject(const Material& material) : m_material(material) {}

    std::uint16_t GetId() override { return m_material.id; }
    const char* GetName() override { return m_material.name.c_str(); }

private:
    Material m_material;
};

using MaterialListObject = TableObject<IMaterialList, IMaterial, MaterialObject, Material>;

class ActiveSetupObject : public IActiveSetup
{
public:
    explicit ActiveSetupObject(const ActiveSetup& setup);

    std::uint32_t GetId() override;
    std::uint32_t GetGroupCount() override;
    std::uint16_t GetGroupId(std::uint32_t index) override;

private:
    ActiveSetup m_setup;
};

class DeviceStateObject : public IDeviceState
{
public:
    explicit DeviceStateObject(const ActiveSetup& setup) : m_setup(setup) {}

    IActiveSetup* GetActiveSetup() override { return &m_setup; }

private:
    ActiveSetupObject m_setup;
};

class ParamTableObject : public IParamTable
{
public:
    explicit ParamTableObject(const ParamTable& table);

    std::uint32_t Id() const { return m_table.id; }

    std::int32_t GetCount() override;
    void GetEntry(void* entry, std::uint32_t index) override;

private:
    ParamTable m_table;
};

} // namespace refhost
