#include "WatchedCall.h"

#include "ThreadBlock.h"
#include "Undo.h"

#include <excpt.h>

// The system asks it on every exception that passes the frame: first who wants to handle it, and once that is settled,
// again while the stack is being unwound.
extern "C" __attribute__((used)) EXCEPTION_DISPOSITION AfxPassedBy(EXCEPTION_RECORD* record, void* frame, CONTEXT*,
                                                                   void*)
{
    constexpr DWORD UNWINDING = 0x2;
    if (record->ExceptionFlags & UNWINDING)
        AfxUndoCutScopes(frame);
    return ExceptionContinueSearch;
}

#if defined(__x86_64__)

// It has no object to destroy, or the compiler would name a handler of its own.
__attribute__((noinline)) void AfxCallWatched(void (*function)(void*), void* context)
{
    asm volatile(".seh_handler AfxPassedBy, @unwind");
    function(context);
    asm volatile("nop"); // whoever stands before the last instructions of a function has left it, to the system
}

#else

namespace
{
struct Registration
{
    void* next;
    void* handler;
};
} // namespace

void AfxCallWatched(void (*function)(void*), void* context)
{
    NT_TIB& thread = AfxThreadBlock();
    Registration registration = {thread.ExceptionList, reinterpret_cast<void*>(&AfxPassedBy)};
    thread.ExceptionList = reinterpret_cast<decltype(thread.ExceptionList)>(&registration);
    function(context);
    thread.ExceptionList = reinterpret_cast<decltype(thread.ExceptionList)>(registration.next);
}

#endif
