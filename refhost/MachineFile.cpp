#include "refhost/MachineFile.h"

#include <new>

#include "refhost/AtomicFile.h"
#include "refhost/TextConversion.h"

namespace refhost
{

Machine LoadMachine(const std::wstring& path)
{
    const std::string text = ReadWholeFile(path);
    try
    {
        return ParseMachine(text);
    }
    catch (const CMachineFileError& error)
    {
        throw CMachineFileError(Utf8FromWide(path) + ": " + error.what());
    }
    catch (const std::bad_alloc&)
    {
        throw CMachineFileError(Utf8FromWide(path) + ": there is not enough memory for it");
    }
}

void SaveMachine(const Machine& machine, const std::wstring& path)
{
    ReplaceWholeFile(path, FormatMachine(machine));
}

} // namespace refhost
