#pragma once

/// The parameter block of a scheme: all its values, reached through GetParams of the scheme. The library never looks
/// inside; it only copies one block into another of the same kind (factory into factory, user into user).
class ISchemeParams
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1

    /// Takes over every value of the source block, configuration index and base scheme included. The source belongs to
    /// another scheme of the same list. The name, and where it must differ the configuration index, are set anew
    /// afterwards.
    virtual void CopyFrom(ISchemeParams* source) = 0; // 2

protected:
    ~ISchemeParams() = default;
};
