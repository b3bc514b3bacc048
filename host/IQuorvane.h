#pragma once

#include <cstdint>

class IHostControl;
class IHostData;

/// The library's object. NewInterface creates it, ReleaseInterface destroys it.
///
/// Order of calls: NewInterface; then any of the three editor operations, as often as you like, but one at a time; then
/// ReleaseInterface. Each editor operation opens one modal dialog and returns when the dialog is closed. An operation
/// that is called while an editor is open, by any object, on any thread, from a host's operation too, returns 0 at
/// once: it shows nothing, calls nothing and leaves the open editor as it is.
///
/// Thread: make every call on the host's user-interface thread. The library calls the host objects on that thread,
/// while the editor operation runs and never afterwards. The host objects must live until the operation returns.
///
/// languageDir, in all three operations: the folder of the language file "Quorvane.ini", with or without a trailing
/// backslash. The string is read during the call only. A missing file or key is no error: the built-in text appears
/// instead, which is often empty.
///
/// No exception leaves an operation. The host's operations must not let one out either.
class IQuorvane
{
public:
    /// The deleting destructor, in the position and form that Microsoft's compilers give it. If bit 0 of flags is set,
    /// it frees the memory as well. Returns the object's address. ReleaseInterface calls it; hosts do not.
    virtual void* Destroy(std::uint32_t flags) = 0; // 0

    /// Opens the print-mode editor: configurations and their print modes. Returns 0 and shows nothing if data or
    /// control is null or an editor is open. Otherwise returns 1, whichever button closed the dialog. The edits are in
    /// the host's own objects. "Save & Quit" also calls IHostControl::SaveParameters(2).
    virtual std::int32_t EditPrintModes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0; // 1

    /// Opens the factory scheme editor. Arguments and results as in EditPrintModes; saves with kind 2.
    virtual std::int32_t EditFactorySchemes(IHostData* data, IHostControl* control,
                                            const wchar_t* languageDir) = 0; // 2

    /// Opens the user scheme editor. Arguments and results as in EditPrintModes; saves with kind 3.
    virtual std::int32_t EditUserSchemes(IHostData* data, IHostControl* control, const wchar_t* languageDir) = 0; // 3

protected:
    ~IQuorvane() = default;
};
