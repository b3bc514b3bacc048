#pragma once

#include <windows.h>

// Has a loaded module call another function in place of one that it imports, until this object goes. Only what that
// module itself calls is led elsewhere.
class ImportHook
{
public:
    // A function is known by its name alone. Throws std::runtime_error where the module does not import it.
    ImportHook(HMODULE module, const char* function, const void* replacement);
    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

    // What the module called before.
    template <class Function>
    Function Original() const
    {
        return reinterpret_cast<Function>(m_original);
    }

private:
    ULONG_PTR* m_slot;
    ULONG_PTR m_original;
};
