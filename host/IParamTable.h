#pragma once

#include <cstdint>

/// A table of host options, reached through IHostData::GetParamTable. Read only.
class IParamTable
{
public:
    virtual void Reserved0() {}  // 0
    virtual void Reserved1() {}  // 1
    virtual void Reserved2() {}  // 2
    virtual void Reserved3() {}  // 3
    virtual void Reserved4() {}  // 4
    virtual void Reserved5() {}  // 5
    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12
    virtual void Reserved13() {} // 13
    virtual void Reserved14() {} // 14
    virtual void Reserved15() {} // 15
    virtual void Reserved16() {} // 16

    /// Number of entries; 0 for none.
    virtual std::int32_t GetCount() = 0; // 17

    virtual void Reserved18() {} // 18
    virtual void Reserved19() {} // 19
    virtual void Reserved20() {} // 20

    /// Copies the entry at an index into the caller's buffer. The buffer holds 256 bytes, all zero, and is aligned for
    /// a pointer. The library reads the first 32 bits as a number: the value of the option, or non-zero for
    /// "available". If there is no such entry, leave the buffer as it is.
    virtual void GetEntry(void* entry, std::uint32_t index) = 0; // 21

protected:
    ~IParamTable() = default;
};
