#pragma once

#include <cstdint>

class ICustomEclosion;

/// The custom eclosion (feathering) definitions. The custom eclosion dialog edits them in place;
/// IHostControl::SaveCustomEclosionSet stores them.
///
/// Order of calls: when the dialog opens, it adds definitions until there are four (AddEclosion), locks the first four,
/// makes definition 0 the current one, and edits that one. Changes made before Cancel stay in the set.
class ICustomEclosionSet
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Index of the definition that is being edited or was used last. After "Save" the library stores it in the scheme
    /// (SetCustomEclosionId).
    virtual std::int32_t GetCurrentIndex() = 0; // 2

    /// Makes a definition the current one. The library passes 0.
    virtual void SetCurrentIndex(std::int32_t index) = 0; // 3

    /// Number of definitions; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 4

    /// Appends a definition without modes, unlocked, and returns it; null refuses. Owned by the host.
    virtual ICustomEclosion* AddEclosion() = 0; // 5

    /// The definition at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual ICustomEclosion* GetEclosion(std::uint32_t index) = 0; // 6

protected:
    ~ICustomEclosionSet() = default;
};
