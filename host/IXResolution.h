#pragma once

/// A horizontal resolution that a print mode can have. Read only.
class IXResolution
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4

    /// Name of the resolution as the operator reads it: narrow text in the thread's ANSI code page, zero terminated.
    /// The host owns it; it stays valid at least until the next call on this object. Null counts as no name.
    virtual const char* GetName() = 0; // 5

protected:
    ~IXResolution() = default;
};
