#include "CaughtException.h"

#include <afxwin.h>

#include <cstdio>
#include <exception>

namespace
{
void Trace(const char* what, const char* where, unsigned number) noexcept
{
    const CWinApp* app = AfxGetApp();
    char line[512]; // on the stack: memory may be what ran out
    std::snprintf(line, sizeof line, "%ls: caught in %s %u: %.400s\n", app ? app->m_pszAppName : L"mfc", where, number,
                  what);
    ::OutputDebugStringA(line);
}
} // namespace

void AfxTraceCaught(const char* where, unsigned number) noexcept
{
    try
    {
        throw;
    }
    catch (const std::exception& exception)
    {
        Trace(exception.what(), where, number);
    }
    catch (...)
    {
        Trace("an exception of no standard type", where, number);
    }
}
