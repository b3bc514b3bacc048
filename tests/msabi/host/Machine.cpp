#include "tests/msabi/host/Machine.h"

IParamTable* HostData::GetParamTable(unsigned tableId)
{
    for (ParamTable* table : tables)
        if (table->id == tableId)
            return table;
    Require(false, "there is no such table");
    return nullptr;
}

IPrintConfig* HostData::CreateConfig()
{
    Require(!m_lent, "the configuration before was not given back");
    m_lent = Make<PrintConfig>(InterfaceId::PrintConfig, "lent configuration");
    return m_lent;
}

void HostData::DestroyConfig(IPrintConfig* config)
{
    if (!Require(config == m_lent, "this configuration was not lent"))
        return;
    Remove(m_lent);
    m_lent = nullptr;
}

namespace
{
PrintConfig& AddConfig(ConfigList& list, const char* name, int xResolution, int yResolution, int colors, int bits)
{
    PrintConfig* const config = Make<PrintConfig>(InterfaceId::PrintConfig, name);
    config->name.Set(name);
    config->xResolution = static_cast<unsigned short>(xResolution);
    config->yResolution = static_cast<unsigned short>(yResolution);
    config->colorCount = static_cast<unsigned char>(colors);
    config->dotBits = static_cast<unsigned char>(bits);
    list.items.Append(config);
    return *config;
}

void AddMode(PrintConfig& config, const char* name, int seed)
{
    PrintMode& mode = *config.NewMode(name);
    mode.passCount = static_cast<unsigned short>(seed == 1 ? 6 : 4);
    mode.resident = static_cast<unsigned char>(seed % 2);
    mode.xResolutionIndex = (1 + seed) % 3;
    mode.headDataModes[0] = static_cast<unsigned char>(seed == 0 ? 1 : 2);
    // 0 is what the library stores anew as "none".
    mode.headDataModes[1] = static_cast<unsigned char>(seed == 0 ? 0 : 1);
    for (unsigned group = 0; group < kInkGroups; ++group)
    {
        mode.small[group] = 1.5f + static_cast<float>(group + 10 * static_cast<unsigned>(seed));
        mode.medium[group] = -2.25f - static_cast<float>(group);
        mode.large[group] = 100.125f + static_cast<float>(group);
        mode.front[group] = group == 0;
        mode.back[group] = group == 1;
    }
}

ConfigList* MakeConfigs()
{
    ConfigList* const list = Make<ConfigList>(InterfaceId::ConfigList, "configurations");
    PrintConfig& fast = AddConfig(*list, "Fast", 720, 1200, 4, 2);
    AddMode(fast, "Fast-1", 0);
    AddMode(fast, "Fast-2", 1);
    AddMode(fast, "Fast-3", 2);
    AddMode(AddConfig(*list, "Fine", 60000, 360, 200, 1), "Fine-1", 3);
    AddConfig(*list, "Draft", 360, 180, 3, 1);
    return list;
}

// Every value differs from its neighbours and lies within what the pages can show.
template <class Scheme>
void GiveValues(Scheme& scheme, int config, int seed)
{
    const auto byteOf = [seed](int value) { return static_cast<unsigned char>(value + seed); };
    scheme.m_ConfigIndex = static_cast<unsigned char>(config);
    scheme.m_Speed = static_cast<signed char>(seed % 4 - 1);
    scheme.m_Direction = static_cast<signed char>(1 + seed % 3);
    scheme.m_Material = static_cast<signed char>(1 + seed % 2);
    scheme.m_Channel = static_cast<unsigned char>(seed % 2);
    scheme.m_DotMode = static_cast<unsigned char>(seed % 4);
    scheme.m_DefaultRangeSS = byteOf(111);
    scheme.m_DefaultRangeS = byteOf(122);
    scheme.m_DefaultRangeM = byteOf(133);
    scheme.m_DefaultRangeL = byteOf(144);
    scheme.m_EclosionType = static_cast<unsigned char>(seed % 2 == 0 ? 2 : 0);
    scheme.m_CustomEclosionId = 70000u + static_cast<unsigned>(seed);
    scheme.m_EclosionLevel = static_cast<unsigned char>(1 + seed % 3);
    scheme.m_CustomRange = byteOf(155);
    scheme.m_HeadEclosionType = static_cast<unsigned char>((1 + seed) % 3);
    scheme.m_LampLL = static_cast<unsigned char>(seed % 2 == 0);
    scheme.m_LampLR = static_cast<unsigned char>(seed % 2 != 0);
    scheme.m_LampRL = static_cast<unsigned char>(seed % 3 == 0);
    scheme.m_LampRR = static_cast<unsigned char>(seed % 3 != 0);
    for (unsigned i = 0; i < kInkMultiples; ++i)
        scheme.inkMultiples[i] = static_cast<unsigned short>(10 * (1 + (i + static_cast<unsigned>(seed)) % 8));
    for (unsigned i = 0; i < kInkCuts; ++i)
        scheme.inkCuts[i] = byteOf(60 + static_cast<int>(i));
}

void AddFactoryScheme(FactorySchemeList& list, const char* name, int config, int seed)
{
    FactoryScheme& scheme = *list.New(name);
    GiveValues(scheme, config, seed);
    scheme.m_ModeIndex = static_cast<unsigned char>(config == 0 ? seed % 3 : 0);
    scheme.m_WaitStepStop = 1;
    scheme.m_Wave = static_cast<signed char>(seed % 4 - 1);
    scheme.m_Enabled = static_cast<unsigned char>(seed != 1);
    scheme.m_LayoutId = 40;
    scheme.m_HeadId = 211;
    scheme.m_SmallFormatMode = static_cast<unsigned char>(seed % 2);
    scheme.m_SmallFormatOffset = static_cast<unsigned short>(40000 + seed);
}

FactorySchemeList* MakeFactorySchemes()
{
    FactorySchemeList* const list = Make<FactorySchemeList>(InterfaceId::FactorySchemeList, "factory schemes");
    AddFactoryScheme(*list, "Poster", 0, 0);
    AddFactoryScheme(*list, "Banner", 0, 1);
    AddFactoryScheme(*list, "Photo", 1, 2);
    AddFactoryScheme(*list, "Sign", 0, 3);
    return list;
}

void AddUserScheme(UserSchemeList& list, const char* name, int config, int base, int seed)
{
    UserScheme& scheme = *list.New(name);
    GiveValues(scheme, config, seed);
    scheme.m_BaseScheme = static_cast<unsigned char>(base);
}

UserSchemeList* MakeUserSchemes()
{
    UserSchemeList* const list = Make<UserSchemeList>(InterfaceId::UserSchemeList, "user schemes");
    AddUserScheme(*list, "Mine", 0, 0, 4);
    AddUserScheme(*list, "Yours", 0, 3, 5);
    AddUserScheme(*list, "Album", 1, 2, 6);
    return list;
}

template <class Item, class Items>
Item& AddNamed(Items& items, InterfaceId interface_, const char* name)
{
    Item* const item = Make<Item>(interface_, name);
    item->name.Set(name);
    items.Append(item);
    return *item;
}

HeadLayout& AddHead(HeadLayoutList& list, const char* name, unsigned short id, unsigned layoutId)
{
    HeadLayout& head = AddNamed<HeadLayout>(list.items, InterfaceId::HeadLayout, name);
    head.id = id;
    head.layoutId = layoutId;
    return head;
}

void AddDataModes(HeadLayout& head, const char* first, const char* second, const char* third)
{
    const char* const names[] = {first, second, third};
    for (const char* name : names)
        AddNamed<DataMode>(head.dataModes, InterfaceId::DataMode, name);
}

HeadLayoutList* MakeHeads()
{
    HeadLayoutList* const list = Make<HeadLayoutList>(InterfaceId::HeadLayoutList, "heads");
    AddDataModes(AddHead(*list, "Left", 210, 40), "None", "Normal", "Fine");
    AddDataModes(AddHead(*list, "Right", 211, 40), "None", "Sharp", "Soft");
    AddHead(*list, "Single", 60012, 41);
    return list;
}

LayoutList* MakeLayouts()
{
    LayoutList* const list = Make<LayoutList>(InterfaceId::LayoutList, "layouts");
    AddNamed<Layout>(list->items, InterfaceId::Layout, "Four").id = 40;
    AddNamed<Layout>(list->items, InterfaceId::Layout, "Two").id = 41;
    return list;
}

void AddChannel(InkChannelTable& table, const char* name, unsigned short id, unsigned char colorIndex)
{
    InkChannel& channel = AddNamed<InkChannel>(table.items, InterfaceId::InkChannel, name);
    channel.id = id;
    channel.colorIndex = colorIndex;
}

InkChannelTable* MakeChannels()
{
    InkChannelTable* const table = Make<InkChannelTable>(InterfaceId::InkChannelTable, "channels");
    AddChannel(*table, "Cyan", 0, 3);
    AddChannel(*table, "Magenta", 1, 2);
    AddChannel(*table, "Yellow", 2, 1);
    AddChannel(*table, "Black", 3, 0);
    AddChannel(*table, "White", 4, 15);
    AddChannel(*table, "Varnish", 60005, 4);
    return table;
}

void AddGroup(InkGroupTable& table, const char* name, unsigned short id, unsigned char colorIndex, InkChannel* first,
              InkChannel* second)
{
    InkGroup& group = AddNamed<InkGroup>(table.items, InterfaceId::InkGroup, name);
    group.id = id;
    group.colorIndex = colorIndex;
    group.channels.Append(first);
    group.channels.Append(second);
}

InkGroupTable* MakeGroups(HostArray<InkChannel*>& channels)
{
    InkGroupTable* const table = Make<InkGroupTable>(InterfaceId::InkGroupTable, "groups");
    AddGroup(*table, "Colours", 1, 7, channels[0], channels[1]);
    AddGroup(*table, "Dark", 2, 8, channels[2], channels[3]);
    AddGroup(*table, "Bright", 60003, 31, channels[4], channels[5]);
    return table;
}

DeviceState* MakeState()
{
    DeviceState* const state = Make<DeviceState>(InterfaceId::DeviceState, "state");
    state->active = Make<ActiveSetup>(InterfaceId::ActiveSetup, "active set-up");
    state->active->id = 70005;
    const unsigned short groups[] = {1, 2, 60003};
    for (unsigned short group : groups)
        state->active->groups.Append(group);
    return state;
}

ChannelList* MakeChannelSetups()
{
    ChannelList* const list = Make<ChannelList>(InterfaceId::ChannelList, "channel set-ups");
    const char* const fitting[] = {"CMYK", "CMYKW"};
    for (const char* name : fitting)
        AddNamed<ChannelSetup>(list->items, InterfaceId::ChannelSetup, name).fits = 70005;
    AddNamed<ChannelSetup>(list->items, InterfaceId::ChannelSetup, "Unfit").fits = 6;
    return list;
}

MaterialList* MakeMaterials()
{
    MaterialList* const list = Make<MaterialList>(InterfaceId::MaterialList, "materials");
    AddNamed<Material>(list->items, InterfaceId::Material, "Paper").id = 1;
    AddNamed<Material>(list->items, InterfaceId::Material, "Foil").id = 2;
    return list;
}

XResolutionList* MakeXResolutions()
{
    XResolutionList* const list = Make<XResolutionList>(InterfaceId::XResolutionList, "resolutions");
    const char* const names[] = {"360", "720", "1440"};
    for (const char* name : names)
        AddNamed<XResolution>(list->items, InterfaceId::XResolution, name);
    return list;
}

ParamTable& AddTable(HostData& machine, unsigned id)
{
    ParamTable* const table = Make<ParamTable>(InterfaceId::ParamTable, "table");
    table->id = id;
    machine.tables.Append(table);
    return *table;
}

void AddTables(HostData& machine)
{
    AddTable(machine, 1015).entries.Append(3);
    AddTable(machine, 2057).entries.Append(1);
    ParamTable& types = AddTable(machine, 2055);
    for (int type = 0; type < 20; ++type)
        types.entries.Append(type == 0 || type == 2 || type == 19);
}

// Fewer than the library wants, and another one current than it wants.
CustomEclosionSet* MakeEclosions()
{
    CustomEclosionSet* const set = Make<CustomEclosionSet>(InterfaceId::CustomEclosionSet, "eclosions");
    CustomEclosion& first = *set->New("first eclosion");
    first.range = 77;
    first.AddMode()->AddElement();
    set->New("second eclosion")->locked = true;
    set->currentIndex = 1;
    return set;
}
} // namespace

HostData* MakeMachine()
{
    HostData* const machine = Make<HostData>(InterfaceId::HostData, "machine");
    machine->layouts = MakeLayouts();
    machine->heads = MakeHeads();
    machine->channelSetups = MakeChannelSetups();
    machine->inkChannels = MakeChannels();
    machine->xResolutions = MakeXResolutions();
    machine->inkGroups = MakeGroups(machine->inkChannels->items);
    machine->configs = MakeConfigs();
    machine->factorySchemes = MakeFactorySchemes();
    machine->userSchemes = MakeUserSchemes();
    machine->materials = MakeMaterials();
    machine->eclosions = MakeEclosions();
    machine->state = MakeState();
    AddTables(*machine);
    return machine;
}

void DescribeMachine(const HostData& machine, TextBuffer& text)
{
    for (PrintConfig* config : machine.configs->items)
        for (PrintMode* mode : config->modes)
            mode->Describe(text);
    for (FactoryScheme* scheme : machine.factorySchemes->items)
        scheme->Describe(text);
    for (UserScheme* scheme : machine.userSchemes->items)
        scheme->Describe(text);
}
