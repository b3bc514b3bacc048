// A host over a machine's data in memory, for the program and for tests.
#pragma once

#include <functional>
#include <memory>

#include "host/IHostControl.h"
#include "host/IHostData.h"
#include "refhost/Machine.h"

namespace refhost
{

class CHostDataObject;
class CHostControlObject;

// What an editor asks the host to store.
enum class SaveRequest
{
    Parameters,
    CustomEclosionSet
};

class CHost
{
public:
    explicit CHost(const Machine& machine);
    ~CHost();
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;

    IHostData* Data();
    IHostControl* Control();

    // The values as the editors have left them. To be read on the thread on which the editors run.
    Machine CurrentMachine() const;

    // Called at SaveParameters and SaveCustomEclosionSet, on the editor's thread.
    void OnSave(std::function<void(SaveRequest)> handler);

private:
    std::unique_ptr<CHostDataObject> m_pData;
    std::unique_ptr<CHostControlObject> m_pControl;
};

} // namespace refhost
