#pragma once

#include "tests/msabi/HostApi.h"
#include "tests/msabi/host/Positions.h"
#include "tests/msabi/host/Runtime.h"

// A host object whose calls are watched. Its table is replaced by one that, at every position, writes down the call,
// passes it on to the compiler's own table, and leaves junk wherever a result may have some: above the width of a
// narrow result, in every register that a call may change.
//
// Right behind its table pointer, where the watch finds it from the object alone.
struct WatchedPart
{
    InterfaceTable* table = nullptr;
    bool isRemoved = false;
    char label[32] = {};
};

template <class Interface>
class Object : public Interface
{
public:
    WatchedPart& Watched() { return m_watched; }

private:
    WatchedPart m_watched;
};

void StartWatch(void* object, WatchedPart& watched, InterfaceTable& table, const char* label);

void __cdecl RaiseIn(const char* operation, Raised raised);
int __cdecl HasRaised();

// Every object of the host is made by this.
template <class Concrete>
Concrete* Make(InterfaceId interface_, const char* label)
{
    Concrete* const object = new Concrete;
    StartWatch(object, object->Watched(), TableOf(interface_), label);
    return object;
}

// From now on, a call of it is a fault.
template <class Concrete>
void Remove(Concrete* object)
{
    object->Watched().isRemoved = true;
}
