#include "tests/robustness/HostileHost.h"

#include "tests/robustness/GuardedText.h"
#include "tests/robustness/ReachableControls.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <windows.h>

namespace
{
constexpr std::uint32_t kChannelRoom = 65536; // as docs/abi.md promises it
constexpr std::size_t kEntryBytes = 256;
constexpr std::uint32_t kMostMessages = 10;
// A message that is dispatched while the host saves may lead to the next save.
constexpr int kDeepestDispatch = 3;

// A host's own type, derived from nothing.
struct ForeignException
{
    std::string text;
};
} // namespace

HostileObject::HostileObject(void* const* operations, HostileHost& owner, void* object)
    : table(operations), host(owner), sound(object)
{
}

HostileObject::~HostileObject() = default;

HostileHost::HostileHost(LoggedHost& sound, const Temper& temper) : m_sound(sound), m_temper(temper) {}

HostileHost::~HostileHost() = default;

void HostileHost::Enter(HostileObject& object, std::size_t position)
{
    ActIfAwaited(object, position);
    m_temper.CountCall();
    if (object.text)
        object.text->Forbid();
    if (m_temper.LosesObjects())
        LoseObject();
    if (object.table == HostileTable<IHostControl>() && m_dispatching < kDeepestDispatch &&
        m_temper.DispatchesMessages())
        DispatchMessages();
    if (m_temper.Throws())
        Throw();
}

void HostileHost::ActIfAwaited(const HostileObject& object, std::size_t position)
{
    if (!m_awaited.action || object.table != m_awaited.table || position != m_awaited.position)
        return;
    if (m_awaited.callsBefore-- > 0)
        return;
    const auto action = std::exchange(m_awaited.action, nullptr);
    action();
}

bool HostileHost::GivesNull()
{
    return std::exchange(m_nextIsNull, false) || m_temper.GivesNull();
}

const char* HostileHost::Text(HostileObject& object, const char* sound)
{
    if (GivesNull() || !sound)
        return nullptr;
    if (!object.text)
        object.text = std::make_unique<GuardedText>();
    return object.text->Hold(m_temper.GivesText() ? m_temper.Text() : sound);
}

void HostileHost::LoseObject()
{
    IHostData& data = *m_sound.Data();
    switch (m_temper.Below(4))
    {
    case 0:
        return data.GetConfigList()->RemoveAt(m_temper.Below(data.GetConfigList()->GetCount()));
    case 1:
        return data.GetFactorySchemeList()->RemoveAt(m_temper.Below(data.GetFactorySchemeList()->GetCount()));
    case 2:
        return data.GetUserSchemeList()->RemoveAt(m_temper.Below(data.GetUserSchemeList()->GetCount()));
    default:
        if (IPrintConfig* config = data.GetConfigList()->GetAt(0))
            config->RemoveMode(m_temper.Below(config->GetModeCount()));
    }
}

// As a host does that shows its progress while the operator goes on; now and then it also closes the front window.
void HostileHost::DispatchMessages()
{
    ++m_dispatching;
    const HWND front = GetActiveWindow();
    for (std::uint32_t clicks = m_temper.Below(3); clicks > 0; --clicks)
        ClickSomewhere(front);
    MSG message;
    for (std::uint32_t left = m_temper.Below(kMostMessages);
         left > 0 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); --left)
    {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    if (m_temper.Below(20) == 0)
        SendMessageW(front, WM_COMMAND, m_temper.Below(2) == 0 ? IDOK : IDCANCEL, 0);
    --m_dispatching;
}

void HostileHost::ClickSomewhere(HWND dialog)
{
    const std::vector<HWND> controls = ReachableControls(dialog);
    if (controls.empty())
        return;
    const HWND control = controls[m_temper.Below(static_cast<std::uint32_t>(controls.size()))];
    RECT area{};
    GetClientRect(control, &area);
    const auto within = [this](LONG size) { return m_temper.Below(static_cast<std::uint32_t>(std::max(1L, size))); };
    const LPARAM at = MAKELPARAM(within(area.right), within(area.bottom));
    const bool isDouble = m_temper.Below(4) == 0;
    PostMessageW(control, isDouble ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(control, WM_LBUTTONUP, 0, at);
}

void HostileHost::Throw()
{
    switch (m_temper.Below(3))
    {
    case 0:
        throw std::runtime_error("a host's exception");
    case 1:
        throw 7;
    default:
        throw ForeignException{"of no known type"};
    }
}

void HostileHost::SpoilChannels(std::vector<IInkChannel*>& channels)
{
    if (m_temper.GivesNull())
        channels.push_back(nullptr);
    if (!channels.empty() && m_temper.GivesCount())
        channels.resize(m_temper.Below(kChannelRoom + 1),
                        channels[m_temper.Below(static_cast<std::uint32_t>(channels.size()))]);
}

void HostileHost::SpoilEntry(void* entry)
{
    if (!m_temper.GivesNumber())
        return;
    auto* bytes = static_cast<unsigned char*>(entry);
    for (std::size_t i = 0; i < kEntryBytes; ++i)
        bytes[i] = static_cast<unsigned char>(m_temper.Bits());
    const auto value = static_cast<std::int32_t>(m_temper.Number());
    if (m_temper.Below(2) == 0)
        std::memcpy(bytes, &value, sizeof(value));
}

void HostileHost::Lend(IPrintConfig* config)
{
    if (config)
        m_lent.insert(config);
}

void HostileHost::TakeBack(IPrintConfig* config)
{
    const auto found = m_lent.find(config);
    if (found == m_lent.end())
        ++m_neverLent;
    else
        m_lent.erase(found);
}
