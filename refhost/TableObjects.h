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
#include "refhost/HostObject.h"
#include "refhost/Machine.h"

namespace refhost
{

/// A list with GetCount and GetAt. `Record` is what the machine holds of one item.
template <class ListInterface, class ItemInterface, class Item, class Record>
class TableObject : public ListInterface, public HostObject
{
public:
    TableObject(HostContext& context, const char* interfaceName, const std::vector<Record>& records)
        : HostObject(context, interfaceName), m_items(context, std::string())
    {
        for (const Record& record : records)
            m_items.Add(record);
    }

    std::uint32_t GetCount() override { return Get("GetCount", m_items.Count()); }
    ItemInterface* GetAt(std::uint32_t index) override { return Read("GetAt", index) ? m_items.At(index) : nullptr; }

protected:
    const HostItems<Item>& Items() const { return m_items; }

private:
    HostItems<Item> m_items;
};

class LayoutObject : public ILayout, public HostObject
{
public:
    LayoutObject(HostContext& context, const std::string& place, const Layout& layout)
        : HostObject(context, "ILayout", place), m_layout(layout)
    {
    }

    const char* GetName() override { return GetText("GetName", m_layout.name); }
    std::uint32_t GetId() override { return Get("GetId", m_layout.id); }

private:
    Layout m_layout;
};

using LayoutListObject = TableObject<ILayoutList, ILayout, LayoutObject, Layout>;

/// An item of which editors read nothing but the name.
template <class Interface>
class NamedObject : public Interface, public HostObject
{
public:
    NamedObject(HostContext& context, const char* interfaceName, const std::string& place, const std::string& name)
        : HostObject(context, interfaceName, place), m_itemName(name)
    {
    }

    const char* GetName() override { return GetText("GetName", m_itemName); }

private:
    std::string m_itemName;
};

class DataModeObject : public NamedObject<IDataMode>
{
public:
    DataModeObject(HostContext& context, const std::string& place, const std::string& name)
        : NamedObject(context, "IDataMode", place, name)
    {
    }
};

class XResolutionObject : public NamedObject<IXResolution>
{
public:
    XResolutionObject(HostContext& context, const std::string& place, const std::string& name)
        : NamedObject(context, "IXResolution", place, name)
    {
    }
};

using XResolutionListObject = TableObject<IXResolutionList, IXResolution, XResolutionObject, std::string>;

class HeadLayoutObject : public IHeadLayout, public HostObject
{
public:
    HeadLayoutObject(HostContext& context, const std::string& place, const HeadLayout& head);

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

class ChannelSetupObject : public IChannelSetup, public HostObject
{
public:
    ChannelSetupObject(HostContext& context, const std::string& place, const ChannelSetup& setup);

    const char* GetName() override;
    std::int32_t FindSetup(std::uint32_t id) override;

private:
    ChannelSetup m_setup;
};

using ChannelListObject = TableObject<IChannelList, IChannelSetup, ChannelSetupObject, ChannelSetup>;

class MaterialObject : public IMaterial, public HostObject
{
public:
    MaterialObject(HostContext& context, const std::string& place, const Material& material)
        : HostObject(context, "IMaterial", place), m_material(material)
    {
    }

    std::uint16_t GetId() override { return Get("GetId", m_material.id); }
    const char* GetName() override { return GetText("GetName", m_material.name); }

private:
    Material m_material;
};

using MaterialListObject = TableObject<IMaterialList, IMaterial, MaterialObject, Material>;

class ActiveSetupObject : public IActiveSetup, public HostObject
{
public:
    ActiveSetupObject(HostContext& context, const ActiveSetup& setup);

    std::uint32_t GetId() override;
    std::uint32_t GetGroupCount() override;
    std::uint16_t GetGroupId(std::uint32_t index) override;

private:
    ActiveSetup m_setup;
};

class DeviceStateObject : public IDeviceState, public HostObject
{
public:
    DeviceStateObject(HostContext& context, const ActiveSetup& setup)
        : HostObject(context, "IDeviceState"), m_setup(context, setup)
    {
    }

    IActiveSetup* GetActiveSetup() override { return Read("GetActiveSetup") ? &m_setup : nullptr; }

private:
    ActiveSetupObject m_setup;
};

class ParamTableObject : public IParamTable, public HostObject
{
public:
    ParamTableObject(HostContext& context, const std::string& place, const ParamTable& table);

    std::uint32_t Id() const { return m_table.id; }

    std::int32_t GetCount() override;
    void GetEntry(void* entry, std::uint32_t index) override;

private:
    ParamTable m_table;
};

} // namespace refhost
