#include "refhost/program/MachineDocument.h"

#include <filesystem>

#include "refhost/MachineFile.h"

namespace refhost
{

MachineDocument::MachineDocument(const std::wstring& path)
    : m_path(std::filesystem::absolute(path).wstring()), m_accepted(LoadMachine(m_path))
{
}

void MachineDocument::Edit(const std::function<void(IHostData*, IHostControl*)>& editor)
{
    m_host = std::make_unique<Host>(m_accepted);
    m_host->OnSave([this](SaveRequest request) { Accept(request); });
    editor(m_host->Data(), m_host->Control());
}

void MachineDocument::Accept(SaveRequest request)
{
    // Called from within an editor: nothing may be thrown through its library.
    try
    {
        Take(request);
        SaveMachine(m_accepted, m_path);
        GetLocalTime(&m_saveTime);
        m_state = SaveState::Saved;
    }
    catch (const std::exception& error)
    {
        m_state = SaveState::Failed;
        m_error = error.what();
    }
}

void MachineDocument::Take(SaveRequest request)
{
    Machine edited = m_host->CurrentMachine();
    if (request == SaveRequest::Parameters)
        m_accepted = std::move(edited);
    else
        m_accepted.customEclosions = std::move(edited.customEclosions);
}

} // namespace refhost
