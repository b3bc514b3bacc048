#include "refhost/program/EditorLibrary.h"

namespace refhost
{
namespace
{

template <class Function>
Function Export(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

} // namespace

CEditorLibrary::CEditorLibrary(const wchar_t* path) : m_hModule(LoadLibraryW(path))
{
    if (m_hModule == nullptr)
        return;
    const auto create = Export<NewInterfaceFunction>(m_hModule, "NewInterface");
    m_pRelease = Export<ReleaseInterfaceFunction>(m_hModule, "ReleaseInterface");
    if (create != nullptr && m_pRelease != nullptr)
        m_pEditors = create();
}

CEditorLibrary::~CEditorLibrary()
{
    if (m_pEditors != nullptr)
        m_pRelease(m_pEditors);
    if (m_hModule != nullptr)
        FreeLibrary(m_hModule);
}

} // namespace refhost
