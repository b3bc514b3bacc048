// A host over a machine's data in memory, for the program and for tests.
#pragma once

#include <functional>
#include <memory>

#include "host/IHostControl.h"
#include "host/IHostData.h"
#include "refhost/Machine.h"

namespace refhost
{

class HostDataObject;
class HostControlObject;

/// What an editor asks the host to store.
enum class SaveRequest
{
    Parameters,
    CustomEclosionSet
};

class Host
{
public:
    explicit Host(const Machine& machine);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    IHostData* Data();
    IHostControl* Control();

    /// The values as the editors have left them. To be read on the thread on which the editors run.
    Machine CurrentMachine() const;

    /// Called at SaveParameters and SaveCustomEclosionSet, on the editor's thread.
    void OnSave(std::function<void(SaveRequest)> handler);

private:
    std::unique_ptr<HostDataObject> m_data;
    std::unique_ptr<HostControlObject> m_control;
};

} // namespace refhost
