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

// A list with GetCount and GetAt. `Record` is what the machine holds of one item.
template <class ListInterface, class ItemInterface, class Item, class Record>
class CTableObject : public ListInterface
{
public:
    explicit CTableObject(const std::vector<Record>& records) : m_items(records) {}

    std::uint32_t GetCount() override { return m_items.Count(); }
    ItemInterface* GetAt(std::uint32_t index) override { return m_items.At(index); }

protected:
    const CHostItems<Item>& Items() const { return m_items; }

private:
    CHostItems<Item> m_items;
};

class CLayoutObject final : public ILayout
{
public:
    explicit CLayoutObject(const Layout& layout) : m_layout(layout) {}

    const char* GetName() override { return m_layout.name.c_str(); }
    std::uint32_t GetId() override { return m_layout.id; }

private:
    Layout m_layout;
};

using CLayoutListObject = CTableObject<ILayoutList, ILayout, CLayoutObject, Layout>;

// An item of which editors read nothing but the name.
template <class Interface>
class CNamedObject final : public Interface
{
public:
    explicit CNamedObject(const std::string& name) : m_strName(name) {}

    const char* GetName() override { return m_strName.c_str(); }

private:
    std::string m_strName;
};

using CDataModeObject = CNamedObject<IDataMode>;
using CXResolutionObject = CNamedObject<IXResolution>;
using CXResolutionListObject = CTableObject<IXResolutionList, IXResolution, CXResolutionObject, std::string>;

class CHeadLayoutObject final : public IHeadLayout
{
public:
    explicit CHeadLayoutObject(const HeadLayout& head);

    std::uint16_t Id() const { return m_head.id; }

    const char* GetName() override;
    std::uint16_t GetId() override;
    std::uint32_t GetLayoutId() override;
    std::uint32_t GetDataModeCount() override;
    IDataMode* GetDataMode(std::uint32_t index) override;

private:
    HeadLayout m_head;
    CHostItems<CDataModeObject> m_dataModes;
};

class CHeadLayoutListObject final : public CTableObject<IHeadLayoutList, IHeadLayout, CHeadLayoutObject, HeadLayout>
{
public:
    using CTableObject::CTableObject;

    IHeadLayout* FindById(std::uint16_t id) override;
    std::int32_t IndexOfId(std::uint16_t id) override;

private:
    std::int32_t Find(std::uint16_t id) const;
};

class CChannelSetupObject final : public IChannelSetup
{
public:
    explicit CChannelSetupObject(const ChannelSetup& setup);

    const char* GetName() override;
    std::int32_t FindSetup(std::uint32_t id) override;

private:
    ChannelSetup m_setup;
};

using CChannelListObject = CTableObject<IChannelList, IChannelSetup, CChannelSetupObject, ChannelSetup>;

class CMaterialObject final : public IMaterial
{
public:
    explicit CMaterialObject(const Material& material) : m_material(material) {}

    std::uint16_t GetId() override { return m_material.id; }
    const char* GetName() override { return m_material.name.c_str(); }

private:
    Material m_material;
};

using CMaterialListObject = CTableObject<IMaterialList, IMaterial, CMaterialObject, Material>;

class CActiveSetupObject final : public IActiveSetup
{
public:
    explicit CActiveSetupObject(const ActiveSetup& setup);

    std::uint32_t GetId() override;
    std::uint32_t GetGroupCount() override;
    std::uint16_t GetGroupId(std::uint32_t index) override;

private:
    ActiveSetup m_setup;
};

class CDeviceStateObject final : public IDeviceState
{
public:
    explicit CDeviceStateObject(const ActiveSetup& setup) : m_setup(setup) {}

    IActiveSetup* GetActiveSetup() override { return &m_setup; }

private:
    CActiveSetupObject m_setup;
};

class CParamTableObject final : public IParamTable
{
public:
    explicit CParamTableObject(const ParamTable& table);

    std::uint32_t Id() const { return m_table.id; }

    std::int32_t GetCount() override;
    void GetEntry(void* entry, std::uint32_t index) override;

private:
    ParamTable m_table;
};

} // namespace refhost
