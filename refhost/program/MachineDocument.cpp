#include "refhost/program/MachineDocument.h"

#include <filesystem>

#include "refhost/MachineFile.h"

namespace refhost
{

CMachineDocument::CMachineDocument(const std::wstring& path)
    : m_strPath(std::filesystem::absolute(path).wstring()), m_accepted(LoadMachine(m_strPath))
{
}

void CMachineDocument::Edit(const std::function<void(IHostData*, IHostControl*)>& editor)
{
    m_pHost = std::make_unique<CHost>(m_accepted);
    m_pHost->OnSave([this](SaveRequest request) { Accept(request); });
    editor(m_pHost->Data(), m_pHost->Control());
}

void CMachineDocument::Accept(SaveRequest request)
{
    // Called from within an editor: nothing may be thrown through its library.
    try
    {
        Take(request);
        SaveMachine(m_accepted, m_strPath);
        GetLocalTime(&m_saveTime);
        m_state = SaveState::Saved;
    }
    catch (const std::exception& error)
    {
        m_state = SaveState::Failed;
        m_strError = error.what();
    }
}

void CMachineDocument::Take(SaveRequest request)
{
    Machine edited = m_pHost->CurrentMachine();
    if (request == SaveRequest::Parameters)
        m_accepted = std::move(edited);
    else
        m_accepted.customEclosions = std::move(edited.customEclosions);
}

} // namespace refhost
