#include "tests/support/Library.h"

#include "tests/support/BesideProgram.h"

#include <stdexcept>
#include <string>

namespace
{
template <class Function>
Function Export(HMODULE module, const char* name)
{
    const auto address = reinterpret_cast<void*>(GetProcAddress(module, name));
    if (!address)
        throw std::runtime_error(std::string("Quorvane.dll does not export ") + name);
    return reinterpret_cast<Function>(address);
}

HMODULE Load()
{
    const HMODULE module = LoadLibraryW(BesideProgram(L"Quorvane.dll").c_str());
    if (!module)
        throw std::runtime_error("Quorvane.dll cannot be loaded from the program's folder");
    return module;
}
} // namespace

Library& Library::Loaded()
{
    static Library library;
    return library;
}

Library::Library()
    : m_module(Load()), m_new(Export<NewInterfaceFunction>(m_module, "NewInterface")),
      m_release(Export<ReleaseInterfaceFunction>(m_module, "ReleaseInterface"))
{
}
