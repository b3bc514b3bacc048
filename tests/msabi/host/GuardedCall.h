#pragma once

#include <stdint.h>

// A call of the library with a known value in every register that it must leave as it is.
enum class Convention
{
    Member, // on x86 the callee clears the stack
    Export  // on x86 the caller does
};

constexpr unsigned kMaxArguments = 4;

// Member: the first argument is the object. Whatever the library changed against the rules is a fault; the name says
// in which call.
uintptr_t GuardedCall(const char* name, Convention convention, void* target, const uintptr_t* arguments,
                      unsigned argumentCount);

inline uintptr_t StackPointer()
{
    uintptr_t pointer;
#if defined(_M_IX86)
    __asm__ volatile("movl %%esp, %0" : "=r"(pointer)::"memory");
#else
    __asm__ volatile("movq %%rsp, %0" : "=r"(pointer)::"memory");
#endif
    return pointer;
}
