#pragma once

#include <cstring>
#include <type_traits>

// Room for what the function of an undo keeps.
struct UndoData
{
    void* words[3];
};

// Puts something right when a scope is left. It does so even where the scope is cut off: an exception that is not a C++
// one of this compiler passes the scope by without running a destructor. Whoever finds the scope cut off then calls the
// function, which therefore may not use what lies in that scope.
class CUndo
{
public:
    template <class Function>
    explicit CUndo(Function function)
    {
        static_assert(std::is_trivially_copyable_v<Function> && sizeof(Function) <= sizeof(UndoData));
        UndoData data = {};
        std::memcpy(&data, &function, sizeof(function));
        Register(&Call<Function>, data);
    }
    ~CUndo() { Run(); }
    CUndo(const CUndo&) = delete;
    CUndo& operator=(const CUndo&) = delete;

    // Now, and not again.
    void Run();

private:
    template <class Function>
    static void Call(UndoData& data)
    {
        (*reinterpret_cast<Function*>(&data))();
    }
    void Register(void (*function)(UndoData&), const UndoData& data);
};

// Undoes the scopes of this stack that lie deeper than the caller: those were cut off, or they would have been left
// before the caller could run. Windows of dialogs that lay in them are destroyed without a word to their objects.
void AfxUndoCutScopes();
// The same for what lies deeper than a frame, while that frame is being cut off.
void AfxUndoCutScopes(const void* frame);

// Whether the object lies in the scopes that are being undone, so that it no longer exists.
bool AfxIsBeingUndone(const void* object);
