#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "refhost/Host.h"

namespace refhost
{

// A machine file that is being worked on.
class CMachineDocument
{
public:
    enum class SaveState
    {
        NothingSaved,
        Saved,
        Failed
    };

    // Throws CMachineFileError.
    explicit CMachineDocument(const std::wstring& path);

    const std::wstring& Path() const { return m_strPath; }

    // The machine as it was last accepted: what the file holds or, after a failed save, should hold.
    const Machine& Accepted() const { return m_accepted; }

    // Lets `editor` work on the machine. What it asks to store is accepted and written to the file at once; what it
    // changed and did not ask to store is gone when the next editor opens.
    void Edit(const std::function<void(IHostData*, IHostControl*)>& editor);

    SaveState LastSave() const { return m_state; }
    const SYSTEMTIME& SaveTime() const { return m_saveTime; }   // local, after a save
    const std::string& SaveError() const { return m_strError; } // UTF-8, after a failed save

private:
    void Accept(SaveRequest request);
    void Take(SaveRequest request);

    std::wstring m_strPath;
    Machine m_accepted;
    std::unique_ptr<CHost> m_pHost; // lives until the next edit: an editor's library remembers its pointers
    SaveState m_state = SaveState::NothingSaved;
    SYSTEMTIME m_saveTime = {};
    std::string m_strError;
};

} // namespace refhost
