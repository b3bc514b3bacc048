#pragma once

#if defined(__i386__)
#define RAW_MEMBER_CALL __attribute__((thiscall))
#else
#define RAW_MEMBER_CALL
#endif

// Calls the operation at a position of an object's table as a foreign compiler does: by number, knowing no class.
template <typename Result, typename... Arguments>
Result CallPosition(void* object, unsigned position, Arguments... arguments)
{
    using Operation = Result(RAW_MEMBER_CALL*)(void*, Arguments...);
    void** table = *static_cast<void***>(object);
    return reinterpret_cast<Operation>(table[position])(object, arguments...);
}
