#pragma once

class IActiveSetup;

/// The machine's present state, reached through IHostData::GetDeviceState. Read only.
class IDeviceState
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

    /// The set-up that the machine uses now, or null for none: the editors then offer no materials and no channel
    /// set-ups and show no ink cut. Owned by the host.
    virtual IActiveSetup* GetActiveSetup() = 0; // 16

protected:
    ~IDeviceState() = default;
};
