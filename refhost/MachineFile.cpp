#include "refhost/MachineFile.h"

#include "refhost/AtomicFile.h"
#include "refhost/SystemText.h"

namespace refhost
{

Machine LoadMachine(const std::wstring& path)
{
    const std::string text = ReadWholeFile(path);
    try
    {
        return ParseMachine(text);
    }
    catch (const MachineFileError& error)
    {
        throw MachineFileError(Utf8FromWide(path) + ": " + error.what());
    }
}

void SaveMachine(const Machine& machine, const std::wstring& path)
{
    ReplaceWholeFile(path, FormatMachine(machine));
}

} // namespace refhost
