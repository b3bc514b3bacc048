#pragma once

// Has every fault of the processor in this program, Quorvane.dll or what they call in the C library end the program
// with a report. Windows and Wine throw such a fault away where the system calls a window procedure (a message from
// another thread, one that a system call sends), so without this a test passes over it.
void EndOnFaults();

// While it lives, such a fault is left to whoever catches it.
class AllowedFaults
{
public:
    AllowedFaults();
    ~AllowedFaults();
    AllowedFaults(const AllowedFaults&) = delete;
    AllowedFaults& operator=(const AllowedFaults&) = delete;
};

// The exit code of a program that ended so and wants no debugger (SEM_NOGPFAULTERRORBOX).
constexpr unsigned kFaultExitCode = 70;
