#pragma once

/// A way of processing the image data of a head. Print modes refer to it by its index in its head. Read only.
class IDataMode
{
public:
    virtual void Reserved0() {} // 0
    virtual void Reserved1() {} // 1
    virtual void Reserved2() {} // 2
    virtual void Reserved3() {} // 3
    virtual void Reserved4() {} // 4

    /// Name of the data processing mode: narrow text in the thread's ANSI code page, zero terminated. The host owns it;
    /// it stays valid at least until the next call on this object. Null counts as no name. The editor finds the
    /// operator's choice by its name, ignoring case: give the modes of one head different names, and call none of them
    /// "No".
    virtual const char* GetName() = 0; // 5

protected:
    ~IDataMode() = default;
};
