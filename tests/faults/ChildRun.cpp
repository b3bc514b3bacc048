#include "tests/faults/ChildRun.h"

#include "tests/support/BesideProgram.h"

#include <stdexcept>
#include <windows.h>

namespace
{
std::string ReadAll(HANDLE pipe)
{
    std::string all;
    char bytes[512];
    for (DWORD count = 0; ReadFile(pipe, bytes, sizeof bytes, &count, nullptr) && count > 0;)
        all.append(bytes, count);
    return all;
}

PROCESS_INFORMATION Start(std::wstring commandLine, HANDLE output)
{
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = output;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
        throw std::runtime_error("a child program cannot be started");
    return process;
}
} // namespace

ChildRun RunChild(const std::wstring& program, const std::wstring& arguments)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    CreatePipe(&reading, &writing, &inherited, 0);
    SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0);
    const PROCESS_INFORMATION process = Start(L"\"" + BesideProgram(program) + L"\" " + arguments, writing);
    CloseHandle(writing); // else reading would never end
    ChildRun run = {0, ReadAll(reading)};
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &run.exitCode);
    for (const HANDLE handle : {reading, process.hThread, process.hProcess})
        CloseHandle(handle);
    return run;
}
