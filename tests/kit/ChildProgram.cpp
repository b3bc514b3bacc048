#include "tests/kit/ChildProgram.h"

#include <windows.h>

namespace
{
class ClosedHandle
{
public:
    explicit ClosedHandle(HANDLE handle) : m_handle(handle) {}
    ~ClosedHandle() { CloseHandle(m_handle); }
    ClosedHandle(const ClosedHandle&) = delete;
    ClosedHandle& operator=(const ClosedHandle&) = delete;

    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

HANDLE OpenInherited(const std::wstring& path, DWORD access, DWORD disposition)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition, 0, nullptr);
}

// The system's error; 0 where it has started.
DWORD Start(const std::wstring& program, const std::wstring& arguments, const std::wstring& log,
            PROCESS_INFORMATION& process)
{
    const ClosedHandle output(OpenInherited(log, GENERIC_WRITE, CREATE_ALWAYS));
    const ClosedHandle input(OpenInherited(L"NUL", GENERIC_READ, OPEN_EXISTING));
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input.Get();
    start.hStdOutput = start.hStdError = output.Get();
    std::wstring commandLine = L"\"" + program + L"\" " + arguments;
    const std::wstring folder = program.substr(0, program.rfind(L'\\'));
    const BOOL hasStarted = CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE,
                                           CREATE_SUSPENDED, nullptr, folder.c_str(), &start, &process);
    return hasStarted ? 0 : GetLastError();
}

// A system that puts this program into a job of its own may refuse another one: then a program's children outlive it.
HANDLE JobOf(HANDLE process)
{
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    AssignProcessToJobObject(job, process);
    return job;
}

constexpr UINT kEnded = 124;

bool Hangs(HANDLE process, HANDLE job, unsigned timeoutSeconds)
{
    if (WaitForSingleObject(process, 1000 * timeoutSeconds) != WAIT_TIMEOUT)
        return false;
    TerminateJobObject(job, kEnded);
    TerminateProcess(process, kEnded);
    WaitForSingleObject(process, INFINITE);
    return true;
}
} // namespace

ChildEnd RunToEnd(const std::wstring& program, const std::wstring& arguments, const std::wstring& log,
                  unsigned timeoutSeconds)
{
    ChildEnd end;
    PROCESS_INFORMATION child = {};
    end.startError = Start(program, arguments, log, child);
    if (end.startError != 0)
        return end;
    const ClosedHandle process(child.hProcess);
    const ClosedHandle thread(child.hThread);
    const ClosedHandle job(JobOf(process.Get()));
    ResumeThread(thread.Get());
    end.hung = Hangs(process.Get(), job.Get(), timeoutSeconds);
    GetExitCodeProcess(process.Get(), &end.exitCode);
    return end;
}
