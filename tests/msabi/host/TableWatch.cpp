#include "tests/msabi/host/TableWatch.h"

#include "tests/msabi/host/Report.h"

extern "C" __declspec(dllimport) void __stdcall RaiseException(unsigned long code, unsigned long flags,
                                                               unsigned long count, const uintptr_t* arguments);

namespace
{
constexpr uintptr_t kJunk = static_cast<uintptr_t>(0xDEADBEEF5A5AA500u);

// An object as the library sees it, with what the host keeps behind the table pointer.
struct WatchedObject
{
    void* const* operations;
    WatchedPart watched;
};

// Made by the assembly below; its order and size stand there too.
struct CallFrame
{
    WatchedObject* object;
    uintptr_t argument1;
    uintptr_t argument2;
    uintptr_t floatArgument; // the first argument, where it is a float
    uintptr_t number;
    uintptr_t stackPointer; // at the operation's first instruction
    uintptr_t result;
    uintptr_t popped; // x64: the float result
    const Position* position;
    uintptr_t argumentBytes; // on the stack
};
static_assert(sizeof(CallFrame) == 10 * sizeof(void*));

CallFrame* g_current = nullptr;

const Position* FindPosition(const InterfaceTable& table, unsigned number)
{
    for (unsigned i = 0; i < table.positionCount; ++i)
        if (table.positions[i].number == number)
            return &table.positions[i];
    return nullptr;
}

unsigned LastPosition(const InterfaceTable& table)
{
    return table.positions[table.positionCount - 1].number;
}

void __cdecl PastTheTable() {}

bool StartsWith(const char* text, const char* start)
{
    while (*start && *text == *start)
    {
        ++text;
        ++start;
    }
    return !*start;
}

bool OnlyAsks(const char* name)
{
    const char* const starts[] = {"Get", "Is", "Find", "IndexOf"};
    for (const char* start : starts)
        if (StartsWith(name, start))
            return true;
    return false;
}

float FloatOf(uintptr_t bits)
{
    float value = 0;
    __builtin_memcpy(&value, &bits, sizeof(value));
    return value;
}

const char* LabelOf(uintptr_t object)
{
    return object ? reinterpret_cast<WatchedObject*>(object)->watched.label : "null";
}

void AddArgument(TextBuffer& text, char kind, uintptr_t value, const CallFrame& frame)
{
    switch (kind)
    {
    case 'f':
        text.Add(FloatOf(frame.floatArgument));
        break;
    case 't':
        text.Add("\"").Add(value ? reinterpret_cast<const char*>(value) : "null").Add("\"");
        break;
    case 'p':
        text.Add(LabelOf(value));
        break;
    case 'a':
        text.Add("storage");
        break;
    case 'c':
        text.Add(static_cast<long long>(static_cast<uint8_t>(value)));
        break;
    case 'w':
        text.Add(static_cast<long long>(static_cast<uint16_t>(value)));
        break;
    default:
        text.Add(static_cast<long long>(static_cast<int32_t>(value)));
        break;
    }
}

// As the host's own declaration reads the arguments.
void AddCall(TextBuffer& text, const CallFrame& frame)
{
    text.Add(frame.object->watched.label).Add(".").Add(frame.position->name).Add("(");
    const char* const arguments = frame.position->signature + 1;
    if (arguments[0])
        AddArgument(text, arguments[0], frame.argument1, frame);
    if (arguments[0] && arguments[1])
    {
        text.Add(", ");
        AddArgument(text, arguments[1], frame.argument2, frame);
    }
    text.Add(")");
}

void CheckArgument(char kind, uintptr_t value)
{
    if (kind == 't')
        Require(value != 0, "a name is null");
    if (kind == 'p' || kind == 'a')
        Require(value != 0, "a pointer is null");
}

void CheckArguments(const CallFrame& frame)
{
    const char* const arguments = frame.position->signature + 1;
    if (TakesTruth(*frame.object->watched.table, *frame.position))
        Require(static_cast<uint32_t>(frame.argument1) <= 1, "a boolean argument is no clean 0 or 1 in 32 bits");
    if (arguments[0])
        CheckArgument(arguments[0], arguments[0] == 'f' ? 0 : frame.argument1);
    if (arguments[0] && arguments[1])
        CheckArgument(arguments[1], frame.argument2);
}

void CheckStack(const CallFrame& frame)
{
    // At the first instruction the return address lies on a stack that was aligned before the call.
    constexpr uintptr_t kAlignment = sizeof(void*) == 8 ? 16 : 4;
    Require((frame.stackPointer + sizeof(void*)) % kAlignment == 0, "the stack is not aligned");
}

uintptr_t WithJunk(char result, uintptr_t value)
{
    switch (result)
    {
    case 'c':
    case 's':
        return (kJunk & ~static_cast<uintptr_t>(0xFF)) | (value & 0xFF);
    case 'w':
        return (kJunk & ~static_cast<uintptr_t>(0xFFFF)) | (value & 0xFFFF);
    case 'i':
    case 'u':
        // Nothing is above 32 bits on x86.
        return (kJunk & ~static_cast<uintptr_t>(0xFFFFFFFF)) | (value & 0xFFFFFFFF);
    case 'v':
    case 'f':
        return kJunk;
    default:
        return value;
    }
}

const char* g_raisingOperation = nullptr;
Raised g_raised = Raised::CxxException;

bool AreEqual(const char* left, const char* right)
{
    return StartsWith(left, right) && StartsWith(right, left);
}

void __cdecl ThrowAsMicrosoftDoes()
{
    RaiseException(0xE06D7363, 0, 0, nullptr);
}

void __cdecl WriteToNowhere()
{
    *reinterpret_cast<int volatile*>(8) = 1;
}

// Null for a call that is to do its work.
void* RaiserFor(const CallFrame& frame)
{
    if (!g_raisingOperation || !frame.position || !AreEqual(frame.position->name, g_raisingOperation))
        return nullptr;
    g_raisingOperation = nullptr;
    return reinterpret_cast<void*>(g_raised == Raised::CxxException ? &ThrowAsMicrosoftDoes : &WriteToNowhere);
}

extern "C"
{
    // Gives what the compiler's own table has at this position. A result that is not 0 means that what is given is to
    // stand in for the operation: no frame of the watch may be on the stack, because nobody could unwind it.
    void* __cdecl EnterCall(CallFrame* frame)
    {
        InterfaceTable& table = *frame->object->watched.table;
        g_current = frame;
        ++table.calls[frame->number];
        frame->position = FindPosition(table, static_cast<unsigned>(frame->number));
        void* const raiser = RaiserFor(*frame);
        frame->result = raiser != nullptr;
        if (raiser)
        {
            g_current = nullptr;
            return raiser;
        }
        CheckStack(*frame);
        Require(!frame->object->watched.isRemoved, "the object was removed");
        if (!Require(frame->position != nullptr, "the operation is not to be called"))
            return frame->number < LastPosition(table) ? table.operations[frame->number]
                                                       : reinterpret_cast<void*>(&PastTheTable);
        CheckArguments(*frame);
        for (const char* argument = frame->position->signature + 1; *argument; ++argument)
            frame->argumentBytes += sizeof(uint32_t);
        if (!OnlyAsks(frame->position->name))
        {
            AddCall(Changes(), *frame);
            Changes().Add("\n");
        }
        return table.operations[frame->number];
    }

    void __cdecl LeaveCall(CallFrame* frame)
    {
        const char result = frame->position ? frame->position->signature[0] : 'v';
#if defined(_M_IX86)
        Require(frame->popped == frame->argumentBytes, "the host's operation has popped another number of bytes");
#else
        if (result == 'f')
            frame->popped = (kJunk & ~static_cast<uintptr_t>(0xFFFFFFFF)) | static_cast<uint32_t>(frame->popped);
#endif
        frame->result = WithJunk(result, frame->result);
        g_current = nullptr;
    }
}

// Every position of a watched table leads here, with its number in EAX. The object is in the register of `this`.
extern "C" __attribute__((naked)) void WatchCall()
{
#if defined(_M_IX86)
    __asm__("pushl %%ebp\n\t"
            "movl %%esp, %%ebp\n\t"
            "subl $0x28, %%esp\n\t"
            "movl %%ecx, -0x28(%%ebp)\n\t"
            "movl 8(%%ebp), %%edx\n\t"
            "movl %%edx, -0x24(%%ebp)\n\t"
            "movl %%edx, -0x1c(%%ebp)\n\t"
            "movl 12(%%ebp), %%edx\n\t"
            "movl %%edx, -0x20(%%ebp)\n\t"
            "movl %%eax, -0x18(%%ebp)\n\t"
            "leal 4(%%ebp), %%edx\n\t"
            "movl %%edx, -0x14(%%ebp)\n\t"
            "movl $0, -0x04(%%ebp)\n\t"
            "leal -0x28(%%ebp), %%edx\n\t"
            "pushl %%edx\n\t"
            "call %P0\n\t"
            "addl $4, %%esp\n\t"
            "cmpl $0, -0x10(%%ebp)\n\t"
            "jne 1f\n\t"
            // More than the operation may take; the stack is put right below.
            "pushl 12(%%ebp)\n\t"
            "pushl 8(%%ebp)\n\t"
            "movl -0x28(%%ebp), %%ecx\n\t"
            "call *%%eax\n\t"
            "movl %%eax, -0x10(%%ebp)\n\t"
            "leal 0x30(%%esp), %%edx\n\t"
            "subl %%ebp, %%edx\n\t"
            "movl %%edx, -0x0c(%%ebp)\n\t"
            // A float result stays in ST(0) all along.
            "leal -0x28(%%ebp), %%edx\n\t"
            "pushl %%edx\n\t"
            "call %P1\n\t"
            "movl -0x10(%%ebp), %%eax\n\t"
            "movl -0x04(%%ebp), %%ecx\n\t"
            "movl 4(%%ebp), %%edx\n\t"
            "movl %%ebp, %%esp\n\t"
            "popl %%ebp\n\t"
            "leal 4(%%esp, %%ecx), %%esp\n\t"
            "movl $0xDEADBEEF, %%ecx\n\t"
            "jmp *%%edx\n"
            "1:\n\t"
            "movl %%ebp, %%esp\n\t"
            "popl %%ebp\n\t"
            "jmp *%%eax" ::"i"(EnterCall),
            "i"(LeaveCall));
#else
    __asm__("subq $0xA8, %%rsp\n\t"
            "movq %%rcx, 0x20(%%rsp)\n\t"
            "movq %%rdx, 0x28(%%rsp)\n\t"
            "movq %%r8, 0x30(%%rsp)\n\t"
            "movsd %%xmm1, 0x38(%%rsp)\n\t"
            "movl %%eax, %%eax\n\t"
            "movq %%rax, 0x40(%%rsp)\n\t"
            "leaq 0xA8(%%rsp), %%rax\n\t"
            "movq %%rax, 0x48(%%rsp)\n\t"
            "movq $0, 0x68(%%rsp)\n\t"
            "leaq 0x20(%%rsp), %%rcx\n\t"
            "call %P0\n\t"
            "cmpq $0, 0x50(%%rsp)\n\t"
            "jne 1f\n\t"
            "movq 0x20(%%rsp), %%rcx\n\t"
            "movq 0x28(%%rsp), %%rdx\n\t"
            "movq 0x30(%%rsp), %%r8\n\t"
            "movsd 0x38(%%rsp), %%xmm1\n\t"
            "call *%%rax\n\t"
            "movq %%rax, 0x50(%%rsp)\n\t"
            "movsd %%xmm0, 0x58(%%rsp)\n\t"
            "leaq 0x20(%%rsp), %%rcx\n\t"
            "call %P1\n\t"
            "movsd 0x58(%%rsp), %%xmm0\n\t"
            "movq 0x50(%%rsp), %%rax\n\t"
            "addq $0xA8, %%rsp\n\t"
            "movabsq $0xDEADBEEFDEADBEEF, %%rcx\n\t"
            "movq %%rcx, %%rdx\n\t"
            "movq %%rcx, %%r8\n\t"
            "movq %%rcx, %%r9\n\t"
            "movq %%rcx, %%r10\n\t"
            "movq %%rcx, %%r11\n\t"
            "movq %%rcx, %%xmm1\n\t"
            "movq %%rcx, %%xmm2\n\t"
            "movq %%rcx, %%xmm3\n\t"
            "movq %%rcx, %%xmm4\n\t"
            "movq %%rcx, %%xmm5\n\t"
            "ret\n"
            "1:\n\t"
            "addq $0xA8, %%rsp\n\t"
            "jmp *%%rax" ::"i"(EnterCall),
            "i"(LeaveCall));
#endif
}

template <unsigned Number>
__attribute__((naked)) void Watch()
{
    __asm__("movl %0, %%eax\n\tjmp %P1" ::"i"(Number), "i"(WatchCall));
}

template <class, unsigned... Numbers>
struct WatchedTable
{
    using Operation = void (*)();
    static constexpr Operation kOperations[] = {&Watch<Numbers>...};
};

using AllPositions = __make_integer_seq<WatchedTable, unsigned, kMaxPositions>;
} // namespace

void StartWatch(void* object, WatchedPart& watched, InterfaceTable& table, const char* label)
{
    WatchedObject* const seen = static_cast<WatchedObject*>(object);
    Require(&seen->watched == &watched, "the table pointer is not the first part of an object");
    watched.table = &table;
    for (unsigned i = 0; i + 1 < sizeof(watched.label) && label[i]; ++i)
        watched.label[i] = label[i];
    table.operations = seen->operations;
    seen->operations = reinterpret_cast<void* const*>(AllPositions::kOperations);
}

void __cdecl RaiseIn(const char* operation, Raised raised)
{
    g_raisingOperation = operation;
    g_raised = raised;
}

int __cdecl HasRaised()
{
    return !g_raisingOperation;
}

void ReportFault(const char* what)
{
    TextBuffer& faults = Faults();
    if (g_current && g_current->position)
        AddCall(faults, *g_current);
    else if (g_current)
        faults.Add(g_current->object->watched.table->name)
            .Add(", position ")
            .Add(static_cast<long long>(g_current->number));
    faults.Add(g_current ? ": " : "").Add(what).Add("\n");
}

bool Require(bool condition, const char* otherwise)
{
    if (!condition)
        ReportFault(otherwise);
    return condition;
}

TextBuffer& Faults()
{
    static TextBuffer faults;
    return faults;
}

TextBuffer& Changes()
{
    static TextBuffer changes;
    return changes;
}
