#pragma once

// What MsAbiHost.dll gives to the tests: plain C, because the tests are built by another compiler. Texts stay valid
// until the next call.

enum class Editor : int
{
    PrintModes,
    FactorySchemes,
    UserSchemes
};

// What an operation of the host may do instead of its work.
enum class Raised : int
{
    CxxException, // as Microsoft's compiler throws it
    Fault         // of the processor
};

// What EditAndCatch gives for an exception.
constexpr int kCaught = -77;

struct HostApi
{
    // Makes a new machine and asks the library for its object. Forgets what was counted and written down before.
    void(__cdecl* Start)(void* newInterface, void* releaseInterface);
    // As the host's compiler calls an operation of a class. Gives the operation's result.
    int(__cdecl* Edit)(Editor editor, const wchar_t* languageDir);
    // By the position in the table, with a known value in every register that the library must leave as it is.
    int(__cdecl* EditByPosition)(Editor editor, const wchar_t* languageDir);
    // As Edit, by a host that catches whatever comes out of it.
    int(__cdecl* EditAndCatch)(Editor editor, const wchar_t* languageDir);
    // The next call of an operation of that name raises it.
    void(__cdecl* RaiseIn)(const char* operation, Raised raised);
    // Whether it has.
    int(__cdecl* HasRaised)();
    // The two ways to be rid of the library's object.
    void(__cdecl* Release)();
    void(__cdecl* Delete)();

    // The operations that a host offers, in no special order.
    unsigned(__cdecl* PositionCount)();
    const char*(__cdecl* PositionName)(unsigned index);
    unsigned(__cdecl* PositionCalls)(unsigned index);

    // One line each. A fault is a call that a host cannot expect: an argument out of range, an object that was removed,
    // an operation that is not to be called, a register or the stack pointer changed.
    const char*(__cdecl* Faults)();
    // The calls that changed something, with their arguments as the host's compiler reads them.
    const char*(__cdecl* Changes)();
    void(__cdecl* ForgetChanges)();
    // Every value of the schemes and print modes.
    const char*(__cdecl* Values)();

    // What NewInterface gave.
    void*(__cdecl* LibraryObject)();
    // The host's IHostData.
    void*(__cdecl* Data)();
    // How often the host's own operator delete ran.
    unsigned(__cdecl* Deletes)();
    // The number of ink channels of each layout from now on.
    void(__cdecl* SetChannelCount)(unsigned count);
    // From now on the host's compiler has so many fields before the pointers of a growing array that it is given.
    void(__cdecl* SetFieldsBeforeArray)(unsigned count);
    // How often an array of the library was filled, and how often it had to grow.
    unsigned(__cdecl* ArraysFilled)();
    unsigned(__cdecl* ArraysGrown)();
};

using GetHostApiFunction = const HostApi*(__cdecl*)();
