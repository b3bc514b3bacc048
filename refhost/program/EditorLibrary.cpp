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

EditorLibrary::EditorLibrary(const wchar_t* path) : m_module(LoadLibraryW(path))
{
    if (m_module == nullptr)
        return;
    const auto create = Export<NewInterfaceFunction>(m_module, "NewInterface");
    m_release = Export<ReleaseInterfaceFunction>(m_module, "ReleaseInterface");
    if (create != nullptr && m_release != nullptr)
        m_editors = create();
}

EditorLibrary::~EditorLibrary()
{
    if (m_editors != nullptr)
        m_release(m_editors);
    if (m_module != nullptr)
        FreeLibrary(m_module);
}

} // namespace refhost
