#pragma once

/// The block of all values of a scheme, from its GetParams. The library never looks inside. It only copies one block
/// into another of the same kind: factory into factory, user into user.
class ISchemeParams
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Copies every value of the source block, including configuration index and base scheme. The source belongs to
    /// another scheme of the same list. Afterwards the library sets the new name and, in a factory scheme, the new
    /// configuration index.
    virtual void CopyFrom(ISchemeParams* source) = 0; // 2

protected:
    ~ISchemeParams() = default;
};
