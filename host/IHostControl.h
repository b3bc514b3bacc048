#pragma once

#include <cstdint>

/// The host's actions: the second of the two objects that a host passes to every editor operation.
///
/// Order of calls: the editors change the host's objects in place, at once, through their setters. Only when the
/// operator leaves with "Save & Quit" follows one SaveParameters as the last call of that editor; Cancel and closing
/// the window call nothing, and whether the host then keeps or drops what was changed in memory is its own decision.
/// SaveCustomEclosionSet comes from the custom feathering dialog, on its own "Save", while the scheme editor is still
/// open.
///
/// Both are called under the wait cursor and may take their time. Their failure is the host's to report.
class IHostControl
{
public:
    virtual void Reserved0() {} // 0

    /// Take over and store what was edited. kind: 2 after the print-mode and the factory scheme editor (configurations,
    /// modes, factory schemes; user schemes too, where they went with a deleted configuration), 3 after the user scheme
    /// editor (user schemes, and the small-format values of their base schemes).
    virtual void SaveParameters(std::uint32_t kind) = 0; // 1

    virtual void Reserved2() {} // 2

    /// Store the custom feathering definitions of IHostData::GetCustomEclosionSet.
    virtual void SaveCustomEclosionSet() = 0; // 3

protected:
    ~IHostControl() = default;
};
