#pragma once

#include <cstdint>

class IMaterial;

/// The print materials in the host's order. Read only. They are offered only while the machine has an active set-up.
class IMaterialList
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
    virtual void Reserved17() {} // 17
    virtual void Reserved18() {} // 18
    virtual void Reserved19() {} // 19
    virtual void Reserved20() {} // 20
    virtual void Reserved21() {} // 21
    virtual void Reserved22() {} // 22
    virtual void Reserved23() {} // 23
    virtual void Reserved24() {} // 24

    /// Number of materials; 0 for none.
    virtual std::uint32_t GetCount() = 0; // 25

    /// The material at an index from 0 to GetCount() - 1, or null for none. Owned by the host.
    virtual IMaterial* GetAt(std::uint32_t index) = 0; // 26

protected:
    ~IMaterialList() = default;
};
