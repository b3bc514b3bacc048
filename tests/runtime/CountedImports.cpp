#include "tests/runtime/CountedImports.h"

#include <cstdint>
#include <cstring>
#include <new>

namespace
{
constexpr unsigned char kIncrement = 0x05;
constexpr unsigned char kJump = 0x25;

// An instruction that works on memory: by its address on x86, by the distance from its end on x64.
unsigned char* WriteInstruction(unsigned char* code, unsigned char operation, const void* operand)
{
    unsigned char* const end = code + 6;
#ifdef _WIN64
    const auto address = static_cast<std::int32_t>(static_cast<const unsigned char*>(operand) - end);
#else
    const auto address = reinterpret_cast<std::int32_t>(operand);
#endif
    code[0] = 0xFF;
    code[1] = operation;
    std::memcpy(code + 2, &address, sizeof address);
    return end;
}
} // namespace

CountedImports::CountedImports(HMODULE module, const char* library)
{
    ForEachImport(module, [&](const Import& import) {
        if (_stricmp(import.library, library) == 0)
            m_imports.push_back(import);
    });
    m_stubs = static_cast<Stub*>(
        VirtualAlloc(nullptr, (m_imports.size() + 1) * sizeof(Stub), MEM_COMMIT, PAGE_EXECUTE_READWRITE));
    if (!m_stubs)
        throw std::bad_alloc();
    Stub* stub = m_stubs;
    for (const Import& import : m_imports)
    {
        stub->function = *import.slot;
        WriteInstruction(WriteInstruction(stub->code, kIncrement, &stub->calls), kJump, &stub->function);
        StoreInSlot(import.slot, reinterpret_cast<ULONG_PTR>(stub->code));
        ++stub;
    }
}

CountedImports::~CountedImports()
{
    for (std::size_t i = 0; i < m_imports.size(); ++i)
        StoreInSlot(m_imports[i].slot, m_stubs[i].function);
    VirtualFree(m_stubs, 0, MEM_RELEASE);
}

std::vector<std::string> CountedImports::Called() const
{
    std::vector<std::string> called;
    for (std::size_t i = 0; i < m_imports.size(); ++i)
        if (m_stubs[i].calls > 0)
            called.push_back(m_imports[i].function);
    return called;
}
