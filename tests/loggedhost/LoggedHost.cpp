#include "tests/loggedhost/LoggedHost.h"

#include "tests/loggedhost/LoggedObjects.h"

#include <cstring>

// What CreateConfig made lies below it until it is handed back.
class LoggedData final : public Logged<IHostData>
{
public:
    LoggedData(LoggedObjects& objects, IHostData* soundObject, LoggedObject* itsParent, const std::string& itsPlace)
        : Logged(objects, soundObject, itsParent, itsPlace)
    {
        placeOfItems = "new";
    }

    void DestroyConfig(IPrintConfig* config) override
    {
        LoggedObject* const object = Made(config);
        // The pointer may be dead, so nothing is asked of it.
        if (!object)
            return Objects().ReportViolation("IHostData.DestroyConfig of what CreateConfig did not make");
        Logged::DestroyConfig(config);
        Objects().Remove(*object);
    }

private:
    LoggedObject* Made(const IPrintConfig* config) const
    {
        for (LoggedObject* object : below)
            if (static_cast<Logged<IPrintConfig>*>(object) == config)
                return object;
        return nullptr;
    }
};

namespace
{
class LoggedConfigList final : public Logged<IConfigList>
{
public:
    using Logged::Logged;

    std::uint8_t AddConfig(IPrintConfig* source) override
    {
        const std::uint8_t isAdded = Logged::AddConfig(source);
        if (isAdded)
            Objects().AddItem(*this, Wrapped()->GetAt(Wrapped()->GetCount() - 1));
        return isAdded;
    }
};

template <class List>
class LoggedSchemeList final : public Logged<List>
{
public:
    LoggedSchemeList(LoggedObjects& objects, List* soundObject, LoggedObject* itsParent, const std::string& itsPlace)
        : Logged<List>(objects, soundObject, itsParent, itsPlace)
    {
        this->placeOfItems.clear();
    }
};

class LoggedChannelTable final : public Logged<IInkChannelTable>
{
public:
    using Logged::Logged;

    void GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* channels) override
    {
        const std::size_t before = channels->size();
        Logged::GetChannelsOfLayout(layoutId, channels);
        for (std::size_t i = before; i < channels->size(); ++i)
            (*channels)[i] = Objects().Known((*channels)[i]);
    }
};

class LoggedParamTable final : public Logged<IParamTable>
{
public:
    using Logged::Logged;

    void GetEntry(void* entry, std::uint32_t index) override
    {
        if (entry && index < static_cast<std::uint32_t>(Wrapped()->GetCount()))
            std::memset(entry, 0xA5, Objects().Faults().paramEntryBytes);
        Logged::GetEntry(entry, index);
    }
};

template <class Interface>
void AddAlone(LoggedObjects& objects, Interface* sound)
{
    objects.Add<Logged<Interface>>(nullptr, sound, "");
}

// The table of ink channels has no operation that gives them one after another.
void AddChannel(LoggedObjects& objects, const refhost::Machine& machine, IInkChannel* sound)
{
    if (!sound || objects.Known(sound))
        return;
    std::size_t place = 0;
    while (machine.inkChannels[place].id != sound->GetId())
        ++place;
    objects.Add<Logged<IInkChannel>>(nullptr, sound, std::to_string(place));
}

void AddInks(LoggedObjects& objects, const refhost::Machine& machine, IHostData& sound)
{
    objects.Add<LoggedChannelTable>(nullptr, sound.GetInkChannels(), "");
    AddAlone(objects, sound.GetInkGroups());
    std::vector<IInkChannel*> channels;
    for (const refhost::Layout& layout : machine.layouts)
        sound.GetInkChannels()->GetChannelsOfLayout(static_cast<std::uint8_t>(layout.id), &channels);
    ForEachItem(*sound.GetInkGroups(), [&](IInkGroup* group) {
        for (std::uint32_t i = 0; i < group->GetChannelCount(); ++i)
            channels.push_back(group->GetChannel(i));
    });
    for (IInkChannel* channel : channels)
        AddChannel(objects, machine, channel);
}

void AddParamTables(LoggedObjects& objects, const refhost::Machine& machine, IHostData& sound)
{
    for (std::size_t i = 0; i < machine.paramTables.size(); ++i)
        objects.Add<LoggedParamTable>(nullptr, sound.GetParamTable(machine.paramTables[i].id), std::to_string(i));
}

void AddLists(LoggedObjects& objects, IHostData& sound)
{
    objects.Add<LoggedConfigList>(nullptr, sound.GetConfigList(), "");
    objects.Add<LoggedSchemeList<IFactorySchemeList>>(nullptr, sound.GetFactorySchemeList(), "factory");
    objects.Add<LoggedSchemeList<IUserSchemeList>>(nullptr, sound.GetUserSchemeList(), "user");
    AddAlone(objects, sound.GetLayoutList());
    AddAlone(objects, sound.GetHeadLayoutList());
    AddAlone(objects, sound.GetChannelList());
    AddAlone(objects, sound.GetXResolutionList());
    AddAlone(objects, sound.GetMaterialList());
    AddAlone(objects, sound.GetCustomEclosionSet());
    AddAlone(objects, sound.GetDeviceState());
    AddAlone(objects, sound.GetDeviceState()->GetActiveSetup());
}
} // namespace

LoggedHost::LoggedHost(const refhost::Machine& machine, const HostFaults& faults)
    : m_host(machine), m_faults(faults), m_objects(std::make_unique<LoggedObjects>(m_log, m_faults))
{
    IHostData& sound = *m_host.Data();
    AddLists(*m_objects, sound);
    AddInks(*m_objects, machine, sound);
    AddParamTables(*m_objects, machine, sound);
    m_data = &m_objects->Add<LoggedData>(nullptr, &sound, "");
    m_control = &m_objects->Add<Logged<IHostControl>>(nullptr, m_host.Control(), "");
}

LoggedHost::~LoggedHost() = default;

IHostData* LoggedHost::Data()
{
    return m_data;
}

IHostControl* LoggedHost::Control()
{
    return m_control;
}

std::uint32_t LoggedHost::OutstandingConfigs() const
{
    return static_cast<std::uint32_t>(m_data->below.size());
}
