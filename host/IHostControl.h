#pragma once

#include <cstdint>

/// The host's actions. A host passes one object of this interface to every editor operation, beside its IHostData.
///
/// Order of calls: the editors change the host's objects in place, through their setters. "Save & Quit" makes one call
/// of SaveParameters, the last call of that editor. Cancel and closing the window call nothing; the host decides
/// whether it keeps what was changed in memory. SaveCustomEclosionSet comes earlier, when the operator presses "Save"
/// in the custom eclosion dialog.
///
/// Both calls are made under the wait cursor and may take their time. Reporting a failure is up to the host.
class IHostControl
{
public:
    virtual void Reserved0() {} // 0

    /// Take over and store what was edited. kind is 2 after the print-mode editor and the factory scheme editor:
    /// configurations, print modes, factory schemes, and the user schemes that were removed with a configuration. It is
    /// 3 after the user scheme editor: user schemes, and the small-format values of the factory schemes they were made
    /// from.
    virtual void SaveParameters(std::uint32_t kind) = 0; // 1

    virtual void Reserved2() {} // 2

    /// Store the custom eclosion definitions of IHostData::GetCustomEclosionSet.
    virtual void SaveCustomEclosionSet() = 0; // 3

protected:
    ~IHostControl() = default;
};
