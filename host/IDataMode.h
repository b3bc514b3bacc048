#pragma once

/// A way of processing the image data of a head. Read only; print modes refer to it by its index in its head.
class IDataMode
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4

    /// Name of the data processing mode: narrow text in the thread's ANSI code page, zero terminated. The host owns it;
    /// it stays valid at least until the next call on this object. Null counts as no name. Modes of one head need
    /// different names, none of them "No": a choice is found again by name, in any case of letters.
    virtual const char* GetName() = 0; // 5

protected:
    ~IDataMode() = default;
};
