#pragma once

#include "tables/Operations.h"
#include "tests/host/RawTable.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <type_traits>

class GuardedText;
class HostileHost;

// A host object as the library sees it: nothing but a table of operations. Each of them asks the hostile host what
// becomes of the call to the sound object behind it.
struct HostileObject
{
    HostileObject(void* const* operations, HostileHost& owner, void* object);
    ~HostileObject();

    template <class Interface>
    Interface* As()
    {
        return reinterpret_cast<Interface*>(this);
    }

    void* const* table; // must be first
    HostileHost& host;
    void* sound;
    std::unique_ptr<GuardedText> text; // the name that was given out last
};

// As a result lies in its register: what is narrower than the register has something else above it.
template <class Result>
using RegisterOf = std::conditional_t<std::is_integral_v<Result>, std::uintptr_t, Result>;

template <auto kOperation, class = decltype(kOperation)>
struct HostileOperation;

constexpr std::size_t kTableSize = 80;

// An operation's position in its table. GCC's pointer to a virtual member is one more than the offset there.
template <class Operation>
std::size_t PositionOf(Operation operation)
{
    static_assert(sizeof(operation) >= sizeof(std::uintptr_t));
    std::uintptr_t word;
    std::memcpy(&word, &operation, sizeof(word));
    return (word - 1) / sizeof(void*);
}

template <class Operations>
struct TableOf;

template <auto... kOperations>
struct TableOf<tables::Operations<kOperations...>>
{
    static void* const* Make()
    {
        static const auto table = [] {
            std::array<void*, kTableSize> positions;
            positions.fill(reinterpret_cast<void*>(&NotForTheLibrary));
            ((positions[PositionOf(kOperations)] = reinterpret_cast<void*>(&HostileOperation<kOperations>::Call)), ...);
            return positions;
        }();
        return table.data();
    }

private:
    static void NotForTheLibrary() { __builtin_trap(); }
};

// What the library may call of an interface; a call of anything else ends the program.
template <class Interface>
void* const* HostileTable()
{
    return TableOf<typename tables::OperationsOf<Interface>::Type>::Make();
}
