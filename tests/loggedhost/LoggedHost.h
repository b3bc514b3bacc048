#pragma once

#include "refhost/Host.h"
#include "tests/loggedhost/CallLog.h"
#include "tests/loggedhost/HostFaults.h"

#include <cstdint>
#include <functional>
#include <memory>

class LoggedData;
class LoggedObjects;

// The reference host behind objects that write every call down, and that behave badly where a test wants it.
class LoggedHost
{
public:
    explicit LoggedHost(const refhost::Machine& machine, const HostFaults& faults = HostFaults());
    ~LoggedHost();

    IHostData* Data();
    IHostControl* Control();

    CallLog& Log() { return m_log; }

    // The values as the editors have left them. To be read on the thread on which the editors run.
    refhost::Machine CurrentMachine() const { return m_host.CurrentMachine(); }

    // Called at SaveParameters and SaveCustomEclosionSet, on the editor's thread.
    void OnSave(std::function<void(refhost::SaveRequest)> handler) { m_host.OnSave(std::move(handler)); }

    // How many configurations were made by CreateConfig and not yet handed back.
    std::uint32_t OutstandingConfigs() const;

private:
    refhost::CHost m_host;
    CallLog m_log;
    HostFaults m_faults;
    std::unique_ptr<LoggedObjects> m_objects;
    LoggedData* m_data = nullptr;
    IHostControl* m_control = nullptr;
};
