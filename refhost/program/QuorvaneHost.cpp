// A small host application around Quorvane.dll: it keeps a machine's data in a file and opens the editors on it.
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <memory>

#include "refhost/MachineFileError.h"
#include "refhost/TextConversion.h"
#include "refhost/program/CommandLine.h"
#include "refhost/program/Dialogs.h"
#include "refhost/program/LanguageFolders.h"
#include "refhost/program/MainWindow.h"

namespace refhost
{
namespace
{

constexpr int EXIT_FAILED = 1;
constexpr int EXIT_BAD_COMMAND_LINE = 2;

struct LocalMemory
{
    void operator()(wchar_t** memory) const { LocalFree(memory); }
};

std::vector<std::wstring> Arguments()
{
    int count = 0;
    const std::unique_ptr<wchar_t*, LocalMemory> words(CommandLineToArgvW(GetCommandLineW(), &count));
    return {words.get() + 1, words.get() + count};
}

std::wstring ProgramFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

void ChooseLanguage(Start& start, const std::wstring& wanted)
{
    start.languages = LanguagesIn(start.languageDir);
    const auto offered = [&](const std::wstring& tag) {
        return std::find(start.languages.begin(), start.languages.end(), tag) != start.languages.end();
    };
    if (!wanted.empty() && !offered(wanted))
        throw CCommandLineError("There is no language \"" + Utf8FromWide(wanted) + "\" in " +
                                Utf8FromWide(start.languageDir) + ".");
    if (!wanted.empty())
        start.language = wanted;
    else if (!start.languages.empty())
        start.language = offered(L"en") ? L"en" : start.languages.front();
}

Start PrepareStart(const CommandLine& line, const std::wstring& folder)
{
    Start start;
    start.languageDir = line.languageDir.empty() ? folder + L"\\lang" : line.languageDir;
    start.open = line.open;
    ChooseLanguage(start, line.language);
    if (!line.machine.empty())
        start.document = std::make_unique<CMachineDocument>(line.machine);
    return start;
}

int Fail(int code, const std::wstring& text)
{
    ReportError(text);
    return code;
}

int RunProgram()
{
    const CommandLine line = ParseCommandLine(Arguments());
    const std::wstring folder = ProgramFolder();
    Start start = PrepareStart(line, folder);
    const CEditorLibrary library((folder + L"\\Quorvane.dll").c_str());
    start.editors = library.Editors();
    if (start.open != nullptr && start.editors == nullptr)
        return Fail(EXIT_FAILED, L"Quorvane.dll cannot be loaded from " + folder + L".");
    CMainWindow window(std::move(start));
    return window.Run() ? 0 : Fail(EXIT_FAILED, L"The main window cannot be shown.");
}

int RunAndReport()
{
    try
    {
        return RunProgram();
    }
    catch (const CCommandLineError& error)
    {
        return Fail(EXIT_BAD_COMMAND_LINE, WideFromUtf8(error.what()) + L"\n\n" + USAGE);
    }
    catch (const std::exception& error)
    {
        return Fail(EXIT_FAILED, WideFromUtf8(error.what()));
    }
}

} // namespace
} // namespace refhost

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    return refhost::RunAndReport();
}
