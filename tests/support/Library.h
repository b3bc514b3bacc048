#pragma once

#include "host/Quorvane.h"

#include <memory>
#include <windows.h>

// Quorvane.dll as a host gets it: loaded at run time from the program's folder.
class Library
{
public:
    // Loaded once for the whole program, and left loaded.
    static Library& Loaded();

    Library();

    struct Release
    {
        ReleaseInterfaceFunction release;
        void operator()(IQuorvane* object) const { release(object); }
    };
    using Interface = std::unique_ptr<IQuorvane, Release>;

    Interface NewInterface() const { return Interface(m_new(), Release{m_release}); }
    ReleaseInterfaceFunction ReleaseFunction() const { return m_release; }
    HMODULE Module() const { return m_module; }

private:
    HMODULE m_module;
    NewInterfaceFunction m_new;
    ReleaseInterfaceFunction m_release;
};
