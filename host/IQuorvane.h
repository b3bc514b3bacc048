#pragma once

#include <cstdint>

class IHostControl;
class IHostData;

/// The library's object: what NewInterface returns and ReleaseInterface takes back.
///
/// Order of calls: NewInterface once; then any of the three editor operations, any number of times, one at a time; then
/// ReleaseInterface once. Each operation opens one modal dialog and returns when it is closed.
///
/// Thread: the host's user-interface thread, for all of it. The host objects are called on the same thread, inside the
/// editor operation, and never after it has returned; they must live until then.
///
/// languageDir, in all three operations: the folder of the language file "Quorvane.ini", with or without a trailing
/// backslash. It is read during the call only. Where the file or a key is missing, the built-in text stands, often an
/// empty one; that is no error.
///
/// No exception leaves an operation, and none may leave a host object that the library calls.
class IQuorvane
{
public:
    /// Stands where Microsoft's compilers put the deleting destructor, and behaves as one. flags: bit 0 frees the
    /// memory. Returns the object's address. Hosts call ReleaseInterface instead.
    virtual void* Destroy(std::uint32_t flags) = 0; // 0

    /// Opens the print-mode editor: configurations and their print modes.
    /// Returns 0 and shows nothing when data or control is null; 1 in every other case, whatever button closed the
    /// dialog. What was edited shows in the host's own objects, and in IHostControl::SaveParameters(2) after "Save &
    /// Quit".
    virtual std::int32_t EditPrintModes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0; // 1

    /// Opens the factory scheme editor. Arguments and results as in EditPrintModes; saves with kind 2.
    virtual std::int32_t EditFactorySchemes(IHostData* data, IHostControl* control,
                                            const wchar_t* languageDir) = 0; // 2

    /// Opens the user scheme editor. Arguments and results as in EditPrintModes; saves with kind 3.
    virtual std::int32_t EditUserSchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0; // 3

protected:
    ~IQuorvane() = default;
};
