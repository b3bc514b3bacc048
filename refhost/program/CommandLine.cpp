#include "refhost/program/CommandLine.h"

#include "refhost/TextConversion.h"

namespace refhost
{

const wchar_t* const USAGE = L"Usage: QuorvaneHost.exe [--machine FILE] [--lang TAG] [--lang-dir DIR]\n"
                             L"                        [--open printmodes|factory|user]\n\n"
                             L"  --machine FILE   the machine file to work on\n"
                             L"  --lang TAG       the editors' language: a folder of the language folder\n"
                             L"  --lang-dir DIR   the language folder; \"lang\" beside the program by default\n"
                             L"  --open EDITOR    open an editor at once; needs --machine";

namespace
{

[[noreturn]] void Refuse(const std::wstring& reason)
{
    throw CCommandLineError(Utf8FromWide(reason));
}

const Editor* EditorNamed(const std::wstring& name)
{
    for (const Editor& editor : EDITORS)
        if (editor.name == name)
            return &editor;
    Refuse(L"There is no editor \"" + name + L"\".");
}

std::wstring* OptionValue(CommandLine& line, const std::wstring& option, std::wstring& editor)
{
    if (option == L"--machine")
        return &line.machine;
    if (option == L"--lang")
        return &line.language;
    if (option == L"--lang-dir")
        return &line.languageDir;
    if (option == L"--open")
        return &editor;
    Refuse(L"Unknown option \"" + option + L"\".");
}

} // namespace

CommandLine ParseCommandLine(const std::vector<std::wstring>& arguments)
{
    CommandLine line;
    std::wstring editor;
    for (std::size_t i = 0; i < arguments.size(); i += 2)
    {
        std::wstring& value = *OptionValue(line, arguments[i], editor);
        if (!value.empty())
            Refuse(L"The option " + arguments[i] + L" is given twice.");
        if (i + 1 == arguments.size() || arguments[i + 1].empty())
            Refuse(L"The option " + arguments[i] + L" needs a value.");
        value = arguments[i + 1];
    }
    if (!editor.empty())
        line.open = EditorNamed(editor);
    if (line.open != nullptr && line.machine.empty())
        Refuse(L"--open needs --machine.");
    return line;
}

} // namespace refhost
