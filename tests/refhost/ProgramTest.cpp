#include <gtest/gtest.h>
#include <windows.h>

#include "refhost/MachineFile.h"
#include "refhost/program/Editors.h"
#include "tests/machines/DetailedMachine.h"
#include "tests/support/BesideProgram.h"
#include "tests/support/FileContent.h"
#include "tests/support/TempFolder.h"

using namespace refhost;

namespace
{

// Far longer than anything takes; only what never comes gets there.
constexpr ULONGLONG kWaitLimit = 60000;

// QuorvaneHost.exe, run with a command line and its standard error in a file.
class HostProgram
{
public:
    HostProgram(const std::wstring& arguments, const std::wstring& errorFile);
    ~HostProgram();
    HostProgram(const HostProgram&) = delete;
    HostProgram& operator=(const HostProgram&) = delete;

    // Null when the program ends without showing it.
    HWND WaitForWindow();
    DWORD WaitForEnd();

private:
    static BOOL CALLBACK Consider(HWND window, LPARAM self);
    bool HasEnded(DWORD milliseconds) const
    {
        return WaitForSingleObject(m_process.hProcess, milliseconds) == WAIT_OBJECT_0;
    }

    HANDLE m_errors;
    PROCESS_INFORMATION m_process = {};
    HWND m_found = nullptr;
};

HostProgram::HostProgram(const std::wstring& arguments, const std::wstring& errorFile)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    // An earlier program that has just ended may hold it for a moment more.
    const DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE;
    m_errors = CreateFileW(errorFile.c_str(), GENERIC_WRITE, share, &inherited, CREATE_ALWAYS, 0, nullptr);
    if (m_errors == INVALID_HANDLE_VALUE)
        ADD_FAILURE() << "the file for the program's errors cannot be made: " << GetLastError();
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdError = m_errors;
    std::wstring commandLine = L"\"" + BesideProgram(L"QuorvaneHost.exe") + L"\" " + arguments;
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &m_process))
        ADD_FAILURE() << "QuorvaneHost.exe cannot be started: " << GetLastError();
}

HostProgram::~HostProgram()
{
    TerminateProcess(m_process.hProcess, 99); // no effect on one that has ended
    CloseHandle(m_process.hProcess);
    CloseHandle(m_process.hThread);
    CloseHandle(m_errors);
}

BOOL CALLBACK HostProgram::Consider(HWND window, LPARAM self)
{
    auto* program = reinterpret_cast<HostProgram*>(self);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == program->m_process.dwProcessId && IsWindowVisible(window))
        program->m_found = window;
    return program->m_found == nullptr;
}

HWND HostProgram::WaitForWindow()
{
    const ULONGLONG limit = GetTickCount64() + kWaitLimit;
    while (m_found == nullptr && GetTickCount64() < limit && !HasEnded(10))
        EnumWindows(Consider, reinterpret_cast<LPARAM>(this));
    return m_found;
}

DWORD HostProgram::WaitForEnd()
{
    if (!HasEnded(kWaitLimit))
        ADD_FAILURE() << "the program does not end";
    DWORD code = 99;
    GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

class ProgramTest : public testing::Test
{
protected:
    ProgramTest() { SaveMachine(DetailedMachine(), m_machine); }

    // Runs a program that only says what is wrong.
    void ExpectComplaint(const std::wstring& arguments, DWORD exitCode, const std::string& text)
    {
        HostProgram program(arguments, m_errors);
        const HWND box = program.WaitForWindow();
        ASSERT_NE(box, nullptr);
        PostMessageW(box, WM_CLOSE, 0, 0);
        EXPECT_EQ(program.WaitForEnd(), exitCode);
        EXPECT_NE(ContentOf(m_errors).find(text), std::string::npos) << ContentOf(m_errors);
    }

    std::wstring MachineArgument() const { return L"--machine \"" + m_machine + L"\" "; }

    TempFolder m_folder;
    std::wstring m_machine = m_folder.PathOf(L"machine.json");
    std::wstring m_errors = m_folder.PathOf(L"errors.txt");
};

} // namespace

TEST_F(ProgramTest, BadCommandLineGivesTheUsage)
{
    ExpectComplaint(L"--size 5", 2, "Unknown option \"--size\".");
    ExpectComplaint(L"--machine", 2, "Usage: QuorvaneHost.exe");
    ExpectComplaint(MachineArgument() + L"--lang tlh", 2, "There is no language \"tlh\"");
}

TEST_F(ProgramTest, BrokenMachineFileIsNamedAndUntouched)
{
    WriteBytes(m_machine, "{\n\"format\": 7}");
    ExpectComplaint(MachineArgument(), 1, "machine.json: format: 7 is no text");
    EXPECT_EQ(ContentOf(m_machine), "{\n\"format\": 7}");
}

TEST_F(ProgramTest, MainWindowOffersTheThreeEditors)
{
    HostProgram program(MachineArgument(), m_errors);
    const HWND window = program.WaitForWindow();
    ASSERT_NE(window, nullptr) << ContentOf(m_errors);
    for (const Editor& editor : EDITORS)
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(window, editor.button))) << editor.button;
    wchar_t status[64] = {};
    SendDlgItemMessageW(window, IDC_STATUS, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(status));
    EXPECT_STREQ(status, L"Nothing saved yet.");
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForEnd(), 0u);
}

TEST_F(ProgramTest, WithoutAMachineNoEditorCanBeOpened)
{
    HostProgram program(L"", m_errors);
    const HWND window = program.WaitForWindow();
    ASSERT_NE(window, nullptr) << ContentOf(m_errors);
    for (const Editor& editor : EDITORS)
        EXPECT_FALSE(IsWindowEnabled(GetDlgItem(window, editor.button)));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForEnd(), 0u);
}
