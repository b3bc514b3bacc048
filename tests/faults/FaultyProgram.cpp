// FaultyProgram FAULT: makes one mistake. When it gets past that, it prints so and ends well.
#include "tests/support/FaultReport.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>
#include <windows.h>

namespace
{
// The compiler must not know what is wrong.
int* volatile nowhere = nullptr;

void WriteToNull()
{
    *nowhere = 1;
}

void CallNull()
{
    reinterpret_cast<void (*)()>(nowhere)();
}

// The system, not this program, calls the window procedure.
template <void fault()>
LRESULT CALLBACK FaultyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_WINDOWPOSCHANGING)
        fault();
    return DefWindowProcW(window, message, wParam, lParam);
}

template <void fault()>
void InWindowProcedure()
{
    WNDCLASSW description = {};
    description.lpfnWndProc = FaultyProcedure<fault>;
    description.lpszClassName = L"FaultyProgram";
    RegisterClassW(&description);
    const HWND window = CreateWindowW(description.lpszClassName, L"", WS_OVERLAPPED, 0, 0, 9, 9, {}, {}, {}, {});
    SetWindowPos(window, nullptr, 0, 0, 20, 20, SWP_NOZORDER | SWP_NOACTIVATE);
    DestroyWindow(window);
}

#ifdef QUORVANE_CHECKED
volatile std::size_t length = 21;
volatile char sink;

void WritePastBlock()
{
    volatile char* volatile block = new char[length];
    block[length] = 1;
    delete[] block;
}

void ReadPastBlock()
{
    const volatile char* volatile block = new char[length];
    sink = block[length];
    delete[] block;
}

void CopyPastBlock()
{
    char* volatile block = new char[length];
    std::memset(block, 0, length + 1);
    sink = block[0];
    delete[] block;
}

void WriteBeforeBlock()
{
    volatile char* volatile block = new char[length];
    *(block - length) = 1;
    delete[] block;
}

void ReadFreedBlock()
{
    const volatile char* volatile block = new char[length];
    delete[] block;
    sink = block[0];
}

void FreeTwice()
{
    char* volatile block = new char[length];
    delete[] block;
    delete[] block;
}

void FreeInTheMiddle()
{
    char* const block = static_cast<char*>(std::malloc(length));
    char* volatile middle = block + 8;
    std::free(middle);
}

void FreeWhatNobodyAllocated()
{
    static char bytes[64];
    char* volatile middle = bytes + 32;
    std::free(middle);
}

void ReadResizedBlock()
{
    void* volatile block = std::malloc(length);
    void* const moved = std::realloc(const_cast<void*>(block), length + 1);
    sink = *static_cast<const volatile char*>(block);
    std::free(moved);
}

void IndexPastVector()
{
    std::vector<int> values(length);
    values.reserve(2 * length);
    values[length] = 1;
}

void IndexPastText()
{
    const std::string text(length, 'a');
    sink = text[length + 1];
}

volatile int most = INT_MAX;

void OverflowInteger()
{
    most = most + 1;
}

void ShiftTooFar()
{
    most = 1 << (length + 11);
}

void IndexPastArray()
{
    volatile int values[4] = {};
    sink = static_cast<char>(values[length]);
}

void WritePastLocalBuffer()
{
    wchar_t buffer[8];
    wchar_t* volatile start = buffer;
    std::wmemset(start, L'a', 2 * 8);
    sink = static_cast<char>(buffer[0]);
}
#endif

void DoNothing() {}

const std::map<std::string, void (*)()> kFaults = {
    {"nothing", DoNothing},
    {"write-to-null", WriteToNull},
    {"call-null", CallNull},
    {"write-to-null-in-window-procedure", InWindowProcedure<WriteToNull>},
#ifdef QUORVANE_CHECKED
    {"write-past-block", WritePastBlock},
    {"read-past-block", ReadPastBlock},
    {"copy-past-block", CopyPastBlock},
    {"write-before-block", WriteBeforeBlock},
    {"read-freed-block", ReadFreedBlock},
    {"read-freed-block-in-window-procedure", InWindowProcedure<ReadFreedBlock>},
    {"free-twice", FreeTwice},
    {"free-in-the-middle", FreeInTheMiddle},
    {"free-what-nobody-allocated", FreeWhatNobodyAllocated},
    {"read-resized-block", ReadResizedBlock},
    {"index-past-vector", IndexPastVector},
    {"index-past-text", IndexPastText},
    {"overflow-integer", OverflowInteger},
    {"overflow-integer-in-window-procedure", InWindowProcedure<OverflowInteger>},
    {"shift-too-far", ShiftTooFar},
    {"index-past-array", IndexPastArray},
    {"write-past-local-buffer", WritePastLocalBuffer},
#endif
};
} // namespace

int main(int argc, char** argv)
{
    const auto fault = kFaults.find(argc > 1 ? argv[1] : "");
    if (fault == kFaults.end())
        return 2;
    SetErrorMode(SEM_NOGPFAULTERRORBOX); // no debugger for what is meant to fail
    EndOnFaults();
    fault->second();
    std::puts("survived");
    return 0;
}
