#pragma once

#include "tests/loggedhost/LoggedHost.h"
#include "tests/robustness/HostileObject.h"
#include "tests/robustness/Temper.h"

#include <functional>
#include <map>
#include <set>
#include <vector>
#include <windows.h>

// Stands between the library and a sound host, and spoils what comes back as its temper says. Every object that it
// gives out stays readable until it goes; a text is readable until the next call on its object only.
class HostileHost
{
    template <class Operation, class Interface>
    using Member = Operation Interface::*;

public:
    HostileHost(LoggedHost& sound, const Temper& temper);
    ~HostileHost();

    IHostData* Data() { return Wrap(m_sound.Data()); }
    IHostControl* Control() { return Wrap(m_sound.Control()); }
    // Done once, within the first call of the operation that is not counted off by the number before.
    template <class Interface, class Operation>
    void Within(Member<Operation, Interface> operation, std::function<void()> action, unsigned callsBefore = 0)
    {
        m_awaited = {HostileTable<Interface>(), PositionOf(operation), callsBefore, std::move(action)};
    }
    // Whether that call came.
    bool HasActed() const { return !m_awaited.action; }
    // From now on the operation gives this number, whatever it is asked.
    template <class Interface, class Operation>
    void Always(Member<Operation, Interface> operation, std::uint32_t number)
    {
        m_fixed[{HostileTable<Interface>(), PositionOf(operation)}] = number;
    }
    // The object or name that the call being handled is about to give is null.
    void GiveNull() { m_nextIsNull = true; }
    std::string Describe() const { return m_temper.Describe(); }
    const FaultCounts& Faults() const { return m_temper.Happened(); }
    // What was lent and not taken back, or taken back and never lent.
    std::size_t WrongLoans() const { return m_lent.size() + m_neverLent; }

    // From here on for the operations of the objects.

    // May throw or lose objects, and dispatch messages while it saves.
    void Enter(HostileObject& object, std::size_t position);

    template <class Interface>
    Interface* Wrap(Interface* sound);

    template <class Interface>
    static Interface* Sound(Interface* object)
    {
        return object ? static_cast<Interface*>(reinterpret_cast<HostileObject*>(object)->sound) : nullptr;
    }

    template <class Result>
    RegisterOf<Result> Spoilt(HostileObject& object, Result sound, std::size_t position);

    bool IgnoresChange() { return m_temper.IgnoresChange(); }
    void SpoilChannels(std::vector<IInkChannel*>& channels);
    void SpoilEntry(void* entry);

    // CreateConfig and DestroyConfig.
    void Lend(IPrintConfig* config);
    void TakeBack(IPrintConfig* config);

private:
    using Objects = std::vector<HostileObject*>;

    struct Awaited
    {
        void* const* table;
        std::size_t position;
        unsigned callsBefore;
        std::function<void()> action;
    };

    void ActIfAwaited(const HostileObject& object, std::size_t position);
    bool GivesNull();
    const char* Text(HostileObject& object, const char* sound);
    void LoseObject();
    void DispatchMessages();
    void ClickSomewhere(HWND dialog);
    [[noreturn]] void Throw();

    LoggedHost& m_sound;
    Temper m_temper;
    std::map<std::pair<void*, void* const*>, std::unique_ptr<HostileObject>> m_objects;
    std::map<void* const*, Objects> m_ofInterface;
    Awaited m_awaited{};
    bool m_nextIsNull = false;
    std::map<std::pair<void* const*, std::size_t>, std::uint32_t> m_fixed;
    int m_dispatching = 0;
    std::multiset<IPrintConfig*> m_lent;
    std::size_t m_neverLent = 0;
};

template <class Interface>
Interface* HostileHost::Wrap(Interface* sound)
{
    if (!sound)
        return nullptr;
    void* const* table = HostileTable<Interface>();
    std::unique_ptr<HostileObject>& object = m_objects[{sound, table}];
    if (!object)
    {
        object = std::make_unique<HostileObject>(table, *this, sound);
        m_ofInterface[table].push_back(object.get());
    }
    return object->As<Interface>();
}

template <class Result>
RegisterOf<Result> HostileHost::Spoilt([[maybe_unused]] HostileObject& object, Result sound,
                                       [[maybe_unused]] std::size_t position)
{
    if constexpr (std::is_same_v<Result, const char*>)
        return Text(object, sound);
    else if constexpr (std::is_same_v<Result, float>)
        return m_temper.GivesNumber() ? m_temper.Float() : sound;
    else if constexpr (std::is_pointer_v<Result>)
    {
        Result wrapped = Wrap(sound);
        if (GivesNull())
            return nullptr;
        const Objects& known = m_ofInterface[HostileTable<std::remove_pointer_t<Result>>()];
        if (!known.empty() && m_temper.GivesAnotherObject())
            return known[m_temper.Below(static_cast<std::uint32_t>(known.size()))]
                ->template As<std::remove_pointer_t<Result>>();
        return wrapped;
    }
    else
    {
        std::uint64_t value = static_cast<std::uint64_t>(sound);
        const auto fixed = m_fixed.find({object.table, position});
        if (fixed != m_fixed.end())
            value = fixed->second;
        else if (std::is_same_v<Result, std::uint32_t> && m_temper.GivesCount())
            value = m_temper.Count(static_cast<std::uint32_t>(sound));
        else if (!std::is_same_v<Result, std::uint32_t> && m_temper.GivesNumber())
            value = m_temper.Number();
        const std::uint64_t junk = std::uint64_t{m_temper.Bits()} << 32 | m_temper.Bits();
        const std::uint64_t low = (std::uint64_t{1} << (8 * sizeof(Result))) - 1;
        return static_cast<std::uintptr_t>((value & low) | (junk & ~low));
    }
}

template <auto kOperation, class Interface, class Result, class... Arguments>
struct HostileOperation<kOperation, Result (Interface::*)(Arguments...)>
{
    static RegisterOf<Result> RAW_MEMBER_CALL Call(HostileObject* object, Arguments... arguments)
    {
        HostileHost& host = object->host;
        if constexpr (std::is_void_v<Result> && std::is_same_v<Interface, IHostData>)
            host.TakeBack(arguments...);
        host.Enter(*object, PositionOf(kOperation));
        auto& sound = *static_cast<Interface*>(object->sound);
        if constexpr (std::is_void_v<Result>)
            return Change(host, sound, arguments...);
        else
        {
            const Result given = (sound.*kOperation)(Given(arguments)...);
            const auto result = host.Spoilt(*object, given, PositionOf(kOperation));
            if constexpr (std::is_same_v<Result, IPrintConfig*> && std::is_same_v<Interface, IHostData>)
                host.Lend(result);
            return result;
        }
    }

private:
    static void Change(HostileHost& host, Interface& sound, Arguments... arguments)
    {
        if constexpr (std::is_same_v<Interface, IInkChannelTable>)
            Channels(host, sound, arguments...);
        else if constexpr (std::is_same_v<Interface, IParamTable>)
        {
            (sound.*kOperation)(arguments...);
            Entry(host, arguments...);
        }
        else if (!std::is_same_v<Interface, IHostData> && !host.IgnoresChange())
            (sound.*kOperation)(Given(arguments)...);
    }

    static void Channels(HostileHost& host, IInkChannelTable& sound, std::uint8_t layoutId,
                         std::vector<IInkChannel*>* channels)
    {
        std::vector<IInkChannel*> known;
        sound.GetChannelsOfLayout(layoutId, &known);
        for (IInkChannel*& channel : known)
            channel = host.Wrap(channel);
        host.SpoilChannels(known);
        channels->insert(channels->end(), known.begin(), known.end());
    }

    static void Entry(HostileHost& host, void* entry, std::uint32_t) { host.SpoilEntry(entry); }

    template <class Argument>
    static Argument Given(Argument argument)
    {
        if constexpr (std::is_pointer_v<Argument> && std::is_class_v<std::remove_pointer_t<Argument>>)
            return HostileHost::Sound(argument);
        else
            return argument;
    }
};
