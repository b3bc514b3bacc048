#include "DebugOutput.h"

#include <windows.h>

namespace
{
test::DebugOutput* current = nullptr;

// The system hands the text over as an exception, which a debugger would take.
LONG CALLBACK Keep(EXCEPTION_POINTERS* raised)
{
    const EXCEPTION_RECORD& record = *raised->ExceptionRecord;
    if (record.ExceptionCode != DBG_PRINTEXCEPTION_C)
        return EXCEPTION_CONTINUE_SEARCH;
    current->lines.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    return EXCEPTION_CONTINUE_EXECUTION;
}
} // namespace

test::DebugOutput::DebugOutput() : m_handler(::AddVectoredExceptionHandler(TRUE, &Keep))
{
    current = this;
}

test::DebugOutput::~DebugOutput()
{
    ::RemoveVectoredExceptionHandler(m_handler);
    current = nullptr;
}
