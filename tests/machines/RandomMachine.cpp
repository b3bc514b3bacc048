#include "tests/machines/RandomMachine.h"

#include <algorithm>

namespace
{
constexpr unsigned kWestern = 1252;
constexpr unsigned kChinese = 936;
constexpr std::uint32_t kNoLayout = 7;

const std::vector<int> kMaterialIds = {0, 1, 2, 5, 127, 128, 255, 256, 65535};
const std::vector<std::string> kPlainNames = {"Fast", "Fine", "720X600", "A", "", "No", "Poster 1", "[720 X 720]"};
const std::vector<std::string> kWesternNames = {"Entw\xFCrfe", "\xC9tiquette", "50 \x80"};
const std::vector<std::string> kChineseNames = {"\xB4\xF2\xD3\xA1", "\xC5\xE4\xD6\xC3 1", "\xB7\xBD\xB0\xB8"};

class MachineMaker
{
public:
    explicit MachineMaker(Chance& chance) : m_chance(chance) {}

    refhost::Machine Make()
    {
        m_machine.codePage = m_chance.OneIn(3) ? kChinese : kWestern;
        MakeInks();
        MakeTables();
        Repeat(Count(4), [&] { m_machine.configurations.push_back(Config()); });
        Repeat(m_chance.Below(9), [&] { m_machine.factorySchemes.push_back(FactoryScheme()); });
        Repeat(m_chance.Below(7), [&] { m_machine.userSchemes.push_back(UserScheme()); });
        MakeCustomEclosions();
        return m_machine;
    }

private:
    template <class Action>
    static void Repeat(int count, Action action)
    {
        for (int i = 0; i < count; ++i)
            action();
    }

    // Seldom none.
    int Count(int most) { return m_chance.OneIn(8) ? 0 : m_chance.Between(1, most); }
    std::uint8_t Byte() { return static_cast<std::uint8_t>(m_chance.Below(256)); }
    // Mostly below the limit, else any.
    int Mostly(int limit, int beyond) { return m_chance.OneIn(6) ? m_chance.Below(beyond) : m_chance.Below(limit); }
    std::uint8_t MostlyByte(int limit) { return static_cast<std::uint8_t>(Mostly(limit, 256)); }

    // An id that none of the items has.
    template <class Item>
    int Another(const std::vector<Item>& items, const std::vector<int>& ids)
    {
        int id = m_chance.OneOf(ids);
        const auto isTaken = [&](const Item& item) { return static_cast<int>(item.id) == id; };
        while (std::any_of(items.begin(), items.end(), isTaken))
            id = m_chance.OneOf(ids);
        return id;
    }

    std::string Name()
    {
        if (m_chance.OneIn(20))
            return std::string(static_cast<std::size_t>(m_chance.Between(59, 62)), 'n');
        if (m_chance.OneIn(3))
            return m_chance.OneOf(m_machine.codePage == kChinese ? kChineseNames : kWesternNames);
        return m_chance.OneOf(kPlainNames);
    }

    refhost::PrintConfig Config()
    {
        refhost::PrintConfig config;
        config.name = Name();
        config.xResolution = static_cast<std::uint16_t>(m_chance.OneOf({0, 360, 720, 1440, 65535}));
        config.yResolution = static_cast<std::uint16_t>(m_chance.OneOf({0, 600, 720, 1200}));
        config.colorCount = static_cast<std::uint8_t>(m_chance.OneOf({0, 4, 6, 255}));
        config.dotBits = static_cast<std::uint8_t>(m_chance.Below(4));
        config.enabled = !m_chance.OneIn(4);
        Repeat(Count(4), [&] { config.modes.push_back(Mode()); });
        return config;
    }

    refhost::PrintMode Mode()
    {
        refhost::PrintMode mode;
        mode.name = Name();
        mode.passCount = static_cast<std::uint16_t>(m_chance.OneOf({0, 1, 2, 3, 4, 5, 6, 8, 12, 16, 65535}));
        mode.disabled = m_chance.OneIn(3);
        mode.resident = static_cast<std::uint8_t>(m_chance.OneOf({0, 1, 1, 2, 255}));
        mode.xResolutionIndex = m_chance.Between(-1, 4);
        for (auto* values : {&mode.smallDotCompensation, &mode.mediumDotCompensation, &mode.largeDotCompensation})
            Repeat(m_chance.Below(5), [&] { values->push_back(Compensation()); });
        for (auto* values : {&mode.frontCompensation, &mode.backCompensation})
            Repeat(m_chance.Below(5), [&] { values->push_back(m_chance.OneIn(2)); });
        Repeat(m_chance.Below(6), [&] { mode.headDataModes.push_back(DataMode()); });
        return mode;
    }

    float Compensation() { return m_chance.OneOf({0.0f, 1.5f, -2.25f, 0.1f, 123456.7f, 2e9f, 0.00001f}); }

    std::uint8_t DataMode() { return static_cast<std::uint8_t>(m_chance.OneOf({0, 1, 1, 2, 2, 3, 7, 255})); }

    void FillShared(refhost::SchemeValues& scheme)
    {
        scheme.name = Name();
        scheme.configIndex = static_cast<std::uint8_t>(Mostly(std::max(1, Configs()), 6));
        scheme.speed = Signed({-1, 0, 1, 2, 2, 3, 127, -128});
        scheme.direction = Signed({-1, 0, 1, 2, 3, 4, 100});
        scheme.material = Signed({-1, 0, 1, 2, 5, 127, -128});
        scheme.channel = MostlyByte(4);
        scheme.dotMode = MostlyByte(4);
        for (auto* range : {&scheme.defaultRangeSS, &scheme.defaultRangeS, &scheme.defaultRangeM, &scheme.defaultRangeL,
                            &scheme.customRange})
            *range = m_chance.OneIn(25) ? Byte() : static_cast<std::uint8_t>(m_chance.Below(201));
        scheme.eclosionType = m_chance.OneIn(5) ? std::uint8_t{19} : MostlyByte(22);
        scheme.customEclosionId = static_cast<std::uint32_t>(m_chance.OneOf({0, 3, 70000}));
        scheme.eclosionLevel = MostlyByte(6);
        scheme.headEclosionType = MostlyByte(3);
        FillInks(scheme);
        for (auto* lamp : {&scheme.lampLL, &scheme.lampLR, &scheme.lampRL, &scheme.lampRR})
            *lamp = MostlyByte(2);
    }

    void FillInks(refhost::SchemeValues& scheme)
    {
        for (std::uint16_t& multiple : scheme.inkMultiple)
            multiple = static_cast<std::uint16_t>(m_chance.OneOf({0, 9, 10, 20, 25, 35, 80, 90, 65535}));
        for (std::uint8_t& cut : scheme.inkCut)
            cut = MostlyByte(101);
    }

    std::int8_t Signed(const std::vector<int>& values) { return static_cast<std::int8_t>(m_chance.OneOf(values)); }
    int Configs() const { return static_cast<int>(m_machine.configurations.size()); }

    refhost::FactoryScheme FactoryScheme()
    {
        refhost::FactoryScheme scheme;
        FillShared(scheme);
        scheme.enabled = !m_chance.OneIn(4);
        scheme.modeIndex = MostlyByte(4);
        scheme.waitStepStop = MostlyByte(2);
        scheme.wave = Signed({-1, 0, 1, 2, 3, 100, -128});
        scheme.layoutId = LayoutId();
        scheme.headId = static_cast<std::uint8_t>(m_chance.OneOf({10, 11, 12, 0, 255}));
        scheme.smallFormatMode = MostlyByte(2);
        scheme.smallFormatOffset = static_cast<std::uint16_t>(m_chance.OneOf({0, 1, 32768, 65535}));
        return scheme;
    }

    // Mostly one that the machine has.
    std::uint8_t LayoutId()
    {
        if (m_machine.layouts.empty() || m_chance.OneIn(6))
            return Byte();
        return static_cast<std::uint8_t>(m_chance.OneOf(m_machine.layouts).id);
    }

    refhost::UserScheme UserScheme()
    {
        refhost::UserScheme scheme;
        FillShared(scheme);
        scheme.baseScheme = MostlyByte(std::max(1, static_cast<int>(m_machine.factorySchemes.size())));
        return scheme;
    }

    void MakeInks()
    {
        Repeat(Count(14), [&] {
            const auto id = static_cast<std::uint16_t>(m_machine.inkChannels.size());
            m_machine.inkChannels.push_back({Name(), id, MostlyByte(16)});
        });
        Repeat(Count(5), [&] {
            const auto id = static_cast<std::uint16_t>(m_machine.inkGroups.size() + 1);
            m_machine.inkGroups.push_back({Name(), id, MostlyByte(32), Channels(5)});
        });
        Repeat(Count(3), [&] {
            const auto id = static_cast<std::uint32_t>(Another(m_machine.layouts, {0, 40, 41, 255, 296}));
            m_machine.layouts.push_back({Name(), id, Channels(14)});
        });
        m_machine.activeSetup.id = 5;
        Repeat(Count(5), [&] { m_machine.activeSetup.groups.push_back(GroupId()); });
    }

    std::uint16_t GroupId() { return static_cast<std::uint16_t>(m_chance.Between(1, 6)); }

    // Ids of ink channels, some of which the machine may not have.
    std::vector<std::uint16_t> Channels(int most)
    {
        std::vector<std::uint16_t> ids;
        Repeat(m_chance.Below(most + 1), [&] { ids.push_back(static_cast<std::uint16_t>(Mostly(8, 16))); });
        return ids;
    }

    void MakeTables()
    {
        Repeat(Count(3), [&] { m_machine.xResolutions.push_back(Name()); });
        Repeat(Count(4), [&] { m_machine.headLayouts.push_back(HeadLayout()); });
        Repeat(Count(4), [&] { m_machine.channelSetups.push_back({Name(), Fits()}); });
        Repeat(Count(4), [&] {
            m_machine.materials.push_back(
                {Name(), static_cast<std::uint16_t>(Another(m_machine.materials, kMaterialIds))});
        });
        MakeParamTable(1015, {m_chance.Between(-1, 4)});
        MakeParamTable(2055, EclosionTypes());
        MakeParamTable(2057, {m_chance.Below(2)});
    }

    refhost::HeadLayout HeadLayout()
    {
        refhost::HeadLayout head;
        head.name = Name();
        head.id = static_cast<std::uint16_t>(m_chance.OneOf({10, 11, 12, 300}));
        head.layoutId = m_machine.layouts.empty() ? kNoLayout : m_chance.OneOf(m_machine.layouts).id;
        // A list of heads in which two have the same id tells nobody which of them is meant.
        for (const refhost::HeadLayout& other : m_machine.headLayouts)
            if (other.id == head.id && other.layoutId == head.layoutId)
                head.layoutId = kNoLayout;
        Repeat(m_chance.Below(5), [&] { head.dataModes.push_back(DataModeName()); });
        return head;
    }

    std::string DataModeName() { return m_chance.OneOf({"None", "Normal", "NORMAL", "Fine", "no", ""}); }

    std::vector<std::uint32_t> Fits()
    {
        return m_chance.OneIn(3) ? std::vector<std::uint32_t>{6} : std::vector<std::uint32_t>{6, 5};
    }

    std::vector<std::int32_t> EclosionTypes()
    {
        std::vector<std::int32_t> entries(static_cast<std::size_t>(m_chance.OneOf({0, 3, 20, 20, 22})));
        for (std::int32_t& entry : entries)
            entry = m_chance.Below(3) - 1;
        if (entries.size() > 19)
            entries[19] = 1;
        return entries;
    }

    void MakeParamTable(std::uint32_t id, const std::vector<std::int32_t>& entries)
    {
        if (!m_chance.OneIn(10))
            m_machine.paramTables.push_back({id, entries});
    }

    void MakeCustomEclosions()
    {
        refhost::CustomEclosionSet& set = m_machine.customEclosions;
        set.currentIndex = m_chance.OneOf({0, 0, 1, 5, -1});
        Repeat(m_chance.Below(7), [&] {
            refhost::CustomEclosion eclosion;
            eclosion.currentMode = m_chance.Below(3);
            eclosion.locked = m_chance.OneIn(2);
            eclosion.range = m_chance.Below(201);
            Repeat(m_chance.OneIn(2) ? 3 : m_chance.Below(4), [&] { eclosion.modes.push_back(EclosionMode()); });
            set.definitions.push_back(eclosion);
        });
    }

    refhost::EclosionMode EclosionMode()
    {
        refhost::EclosionMode mode;
        Repeat(m_chance.OneIn(2) ? 2 : m_chance.Below(3), [&] { mode.elements.push_back({Size(), Size()}); });
        return mode;
    }

    std::uint8_t Size() { return static_cast<std::uint8_t>(m_chance.Between(1, 8)); }

    Chance& m_chance;
    refhost::Machine m_machine;
};
} // namespace

refhost::Machine RandomMachine(Chance& chance)
{
    return MachineMaker(chance).Make();
}
