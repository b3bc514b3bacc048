#pragma once

#include <windows.h>

// What the system keeps of the current thread: where its stack ends, and on x86 the chain of exception handlers. The
// header's own access to it makes GCC 12 warn of an array of no bounds.
inline NT_TIB& AfxThreadBlock()
{
    NT_TIB* block = nullptr;
#if defined(__x86_64__)
    asm("movq %%gs:0x30, %0" : "=r"(block));
#else
    asm("movl %%fs:0x18, %0" : "=r"(block));
#endif
    return *block;
}
