#include "tests/msabi/HostApi.h"
#include "tests/msabi/host/GuardedCall.h"
#include "tests/msabi/host/Machine.h"

namespace
{
using NewInterfaceFunction = IQuorvane*(__cdecl*)();
using ReleaseInterfaceFunction = void(__cdecl*)(IQuorvane* object);

HostData* g_data = nullptr;
HostControl* g_control = nullptr;
IQuorvane* g_library = nullptr;
void* g_release = nullptr;

template <class Do>
void ForEachPosition(Do visit)
{
    for (unsigned i = 0; i < static_cast<unsigned>(InterfaceId::Count); ++i)
    {
        InterfaceTable& table = TableOf(static_cast<InterfaceId>(i));
        for (unsigned k = 0; k < table.positionCount; ++k)
            visit(table, table.positions[k]);
    }
}

void ForgetCalls()
{
    for (unsigned i = 0; i < static_cast<unsigned>(InterfaceId::Count); ++i)
        for (unsigned& calls : TableOf(static_cast<InterfaceId>(i)).calls)
            calls = 0;
}

TextBuffer& Scratch()
{
    static TextBuffer scratch;
    scratch.Clear();
    return scratch;
}

void CheckStackPointer(const char* call, uintptr_t before, uintptr_t after)
{
    if (before != after)
        Faults().Add(call).Add(" has moved the stack pointer\n");
}

void __cdecl Start(void* newInterface, void* releaseInterface)
{
    ForgetCalls();
    ForgetDeletes();
    Faults().Clear();
    Changes().Clear();
    g_data = MakeMachine();
    g_control = Make<HostControl>(InterfaceId::HostControl, "control");
    g_release = releaseInterface;
    g_library = reinterpret_cast<IQuorvane*>(GuardedCall("NewInterface", Convention::Export, newInterface, nullptr, 0));
}

int CallOperation(Editor editor, const wchar_t* languageDir)
{
    switch (editor)
    {
    case Editor::PrintModes:
        return g_library->EditPrintModes(g_data, g_control, languageDir);
    case Editor::FactorySchemes:
        return g_library->EditFactorySchemes(g_data, g_control, languageDir);
    default:
        return g_library->EditUserSchemes(g_data, g_control, languageDir);
    }
}

int __cdecl Edit(Editor editor, const wchar_t* languageDir)
{
    const uintptr_t before = StackPointer();
    const int result = CallOperation(editor, languageDir);
    CheckStackPointer("the editor", before, StackPointer());
    return result;
}

int __cdecl EditByPosition(Editor editor, const wchar_t* languageDir)
{
    void* const* const table = *reinterpret_cast<void* const**>(g_library);
    const uintptr_t arguments[] = {reinterpret_cast<uintptr_t>(g_library), reinterpret_cast<uintptr_t>(g_data),
                                   reinterpret_cast<uintptr_t>(g_control), reinterpret_cast<uintptr_t>(languageDir)};
    return static_cast<int>(
        GuardedCall("the editor", Convention::Member, table[1 + static_cast<int>(editor)], arguments, 4));
}

int __cdecl EditAndCatch(Editor editor, const wchar_t* languageDir)
{
    __try
    {
        return CallOperation(editor, languageDir);
    }
    __except (1) // handles every exception
    {
        return kCaught;
    }
}

void __cdecl Release()
{
    const uintptr_t object = reinterpret_cast<uintptr_t>(g_library);
    GuardedCall("ReleaseInterface", Convention::Export, g_release, &object, 1);
    g_library = nullptr;
}

void __cdecl Delete()
{
    const uintptr_t before = StackPointer();
    delete g_library;
    CheckStackPointer("delete", before, StackPointer());
    g_library = nullptr;
}

unsigned __cdecl PositionCount()
{
    unsigned count = 0;
    ForEachPosition([&](const InterfaceTable&, const Position&) { ++count; });
    return count;
}

const char* __cdecl PositionName(unsigned index)
{
    TextBuffer& name = Scratch();
    ForEachPosition([&](const InterfaceTable& table, const Position& position) {
        if (index-- == 0)
            name.Add(table.name).Add(" ").Add(static_cast<long long>(position.number)).Add(" ").Add(position.name);
    });
    return name.Text();
}

unsigned __cdecl PositionCalls(unsigned index)
{
    unsigned calls = 0;
    ForEachPosition([&](const InterfaceTable& table, const Position& position) {
        if (index-- == 0)
            calls = table.calls[position.number];
    });
    return calls;
}

const char* __cdecl FaultText()
{
    return Faults().Text();
}

const char* __cdecl ChangeText()
{
    return Changes().Text();
}

void __cdecl ForgetChanges()
{
    Changes().Clear();
}

const char* __cdecl Values()
{
    TextBuffer& values = Scratch();
    DescribeMachine(*g_data, values);
    return values.Text();
}

void* __cdecl LibraryObject()
{
    return g_library;
}

void* __cdecl Data()
{
    return static_cast<IHostData*>(g_data);
}

unsigned __cdecl DeleteCount()
{
    return Deletes();
}

void __cdecl SetChannelCount(unsigned count)
{
    g_data->inkChannels->channelsOfLayout = count;
}

void __cdecl SetFieldsBeforeArray(unsigned count)
{
    g_data->inkChannels->fieldsBeforeArray = count;
}

unsigned __cdecl ArraysFilled()
{
    return g_data->inkChannels->arraysFilled;
}

unsigned __cdecl ArraysGrown()
{
    return g_data->inkChannels->arraysGrown;
}

const HostApi kApi = {&Start,         &Edit,       &EditByPosition, &EditAndCatch,    &RaiseIn,
                      &HasRaised,     &Release,    &Delete,         &PositionCount,   &PositionName,
                      &PositionCalls, &FaultText,  &ChangeText,     &ForgetChanges,   &Values,
                      &LibraryObject, &Data,       &DeleteCount,    &SetChannelCount, &SetFieldsBeforeArray,
                      &ArraysFilled,  &ArraysGrown};
} // namespace

extern "C" __declspec(dllexport) const HostApi* __cdecl GetHostApi()
{
    return &kApi;
}
