#include "tests/msabi/host/GuardedCall.h"

#include "tests/msabi/host/Report.h"

namespace
{
#if defined(_M_IX86)
constexpr unsigned kRegisters = 4;
constexpr const char* kRegisterNames[kRegisters] = {"ebx", "esi", "edi", "ebp"};
#else
constexpr unsigned kRegisters = 28;
constexpr const char* kRegisterNames[kRegisters] = {"rbx",   "rsi",   "rdi",   "rbp",   "r12",   "r13",   "r14",
                                                    "r15",   "xmm6",  "xmm6",  "xmm7",  "xmm7",  "xmm8",  "xmm8",
                                                    "xmm9",  "xmm9",  "xmm10", "xmm10", "xmm11", "xmm11", "xmm12",
                                                    "xmm12", "xmm13", "xmm13", "xmm14", "xmm14", "xmm15", "xmm15"};
#endif

// Read and filled by the assembly below, which knows every offset.
struct CallGuard
{
    uintptr_t target;
    uintptr_t argumentCount; // of those on the stack, on x86
    uintptr_t object;
    uintptr_t arguments[kMaxArguments];
    uintptr_t result;
    uintptr_t stackBefore; // with the saved registers
    uintptr_t stackPushed; // with the arguments too
    uintptr_t stackAfter;
    uintptr_t registers[kRegisters];
};
static_assert(sizeof(CallGuard) == (11 + kRegisters) * sizeof(void*));
} // namespace

extern "C"
{
    // After the call the stack pointer may be anywhere: the guard is found here.
    CallGuard* g_guard = nullptr;

#if defined(_M_IX86)
    __attribute__((naked)) void __cdecl CallUnderGuard(CallGuard*)
    {
        __asm__("movl 4(%%esp), %%eax\n\t"
                "pushl %%ebx\n\t"
                "pushl %%esi\n\t"
                "pushl %%edi\n\t"
                "pushl %%ebp\n\t"
                "movl %%eax, %P0\n\t"
                "movl %%esp, 32(%%eax)\n\t"
                // With three arguments, GCC would like the stack to stand elsewhere; a host promises four bytes alone.
                "andl $-16, %%esp\n\t"
                "movl 4(%%eax), %%edx\n"
                "1:\n\t"
                "testl %%edx, %%edx\n\t"
                "jz 2f\n\t"
                "pushl 8(%%eax, %%edx, 4)\n\t"
                "decl %%edx\n\t"
                "jmp 1b\n"
                "2:\n\t"
                "movl %%esp, 36(%%eax)\n\t"
                "movl 8(%%eax), %%ecx\n\t"
                "movl $0x5AA50000, %%ebx\n\t"
                "movl $0x5AA50001, %%esi\n\t"
                "movl $0x5AA50002, %%edi\n\t"
                "movl $0x5AA50003, %%ebp\n\t"
                "call *(%%eax)\n\t"
                "movl %P0, %%edx\n\t"
                "movl %%esp, 40(%%edx)\n\t"
                "movl 32(%%edx), %%esp\n\t"
                "movl %%eax, 28(%%edx)\n\t"
                "movl %%ebx, 44(%%edx)\n\t"
                "movl %%esi, 48(%%edx)\n\t"
                "movl %%edi, 52(%%edx)\n\t"
                "movl %%ebp, 56(%%edx)\n\t"
                "popl %%ebp\n\t"
                "popl %%edi\n\t"
                "popl %%esi\n\t"
                "popl %%ebx\n\t"
                "ret" ::"i"(&g_guard));
    }
#else
#define ALL_XMM(DO)                                                                                                    \
    DO("6", "0x40", "0x98")                                                                                            \
    DO("7", "0x50", "0xA8")                                                                                            \
    DO("8", "0x60", "0xB8")                                                                                            \
    DO("9", "0x70", "0xC8")                                                                                            \
    DO("10", "0x80", "0xD8")                                                                                           \
    DO("11", "0x90", "0xE8")                                                                                           \
    DO("12", "0xA0", "0xF8")                                                                                           \
    DO("13", "0xB0", "0x108")                                                                                          \
    DO("14", "0xC0", "0x118")                                                                                          \
    DO("15", "0xD0", "0x128")
#define SAVE_XMM(number, saved, guard) "movups %%xmm" number ", " saved "(%%rsp)\n\t"
#define LOAD_XMM(number, saved, guard) "movups " guard "(%%rcx), %%xmm" number "\n\t"
#define KEEP_XMM(number, saved, guard) "movups %%xmm" number ", " guard "(%%rcx)\n\t"
#define RESTORE_XMM(number, saved, guard) "movups " saved "(%%rsp), %%xmm" number "\n\t"

    // Else the strings on both sides of a macro are formatted as one.
    // clang-format off
    __attribute__((naked)) void __cdecl CallUnderGuard(CallGuard*)
    {
        __asm__(
            "pushq %%rbx\n\t"
            "pushq %%rsi\n\t"
            "pushq %%rdi\n\t"
            "pushq %%rbp\n\t"
            "pushq %%r12\n\t"
            "pushq %%r13\n\t"
            "pushq %%r14\n\t"
            "pushq %%r15\n\t"
            "subq $0xE8, %%rsp\n\t"
            ALL_XMM(SAVE_XMM)
            "movq %%rcx, %P0(%%rip)\n\t"
            "movq %%rsp, 0x40(%%rcx)\n\t"
            "movq %%rsp, 0x48(%%rcx)\n\t"
            "movq (%%rcx), %%rax\n\t"
            "movq 0x58(%%rcx), %%rbx\n\t"
            "movq 0x60(%%rcx), %%rsi\n\t"
            "movq 0x68(%%rcx), %%rdi\n\t"
            "movq 0x70(%%rcx), %%rbp\n\t"
            "movq 0x78(%%rcx), %%r12\n\t"
            "movq 0x80(%%rcx), %%r13\n\t"
            "movq 0x88(%%rcx), %%r14\n\t"
            "movq 0x90(%%rcx), %%r15\n\t"
            ALL_XMM(LOAD_XMM)
            "movq 0x20(%%rcx), %%rdx\n\t"
            "movq 0x28(%%rcx), %%r8\n\t"
            "movq 0x30(%%rcx), %%r9\n\t"
            "movq 0x18(%%rcx), %%rcx\n\t"
            "call *%%rax\n\t"
            "movq %P0(%%rip), %%rcx\n\t"
            "movq %%rsp, 0x50(%%rcx)\n\t"
            "movq 0x40(%%rcx), %%rsp\n\t"
            "movq %%rax, 0x38(%%rcx)\n\t"
            "movq %%rbx, 0x58(%%rcx)\n\t"
            "movq %%rsi, 0x60(%%rcx)\n\t"
            "movq %%rdi, 0x68(%%rcx)\n\t"
            "movq %%rbp, 0x70(%%rcx)\n\t"
            "movq %%r12, 0x78(%%rcx)\n\t"
            "movq %%r13, 0x80(%%rcx)\n\t"
            "movq %%r14, 0x88(%%rcx)\n\t"
            "movq %%r15, 0x90(%%rcx)\n\t"
            ALL_XMM(KEEP_XMM)
            ALL_XMM(RESTORE_XMM)
            "addq $0xE8, %%rsp\n\t"
            "popq %%r15\n\t"
            "popq %%r14\n\t"
            "popq %%r13\n\t"
            "popq %%r12\n\t"
            "popq %%rbp\n\t"
            "popq %%rdi\n\t"
            "popq %%rsi\n\t"
            "popq %%rbx\n\t"
            "ret"
            :: "i"(&g_guard));
    }
    // clang-format on
#endif
}

namespace
{
constexpr uintptr_t Pattern(unsigned index)
{
    return 0x5AA50000u + index;
}

void ReportChanged(const char* call, const char* what)
{
    Faults().Add(call).Add(" has changed ").Add(what).Add("\n");
}
} // namespace

uintptr_t GuardedCall(const char* name, [[maybe_unused]] Convention convention, void* target,
                      const uintptr_t* arguments, unsigned argumentCount)
{
    CallGuard guard{};
    guard.target = reinterpret_cast<uintptr_t>(target);
    unsigned first = 0;
#if defined(_M_IX86)
    if (convention == Convention::Member)
        guard.object = arguments[first++];
#endif
    for (unsigned i = first; i < argumentCount; ++i)
        guard.arguments[i - first] = arguments[i];
    guard.argumentCount = argumentCount - first;
    for (unsigned i = 0; i < kRegisters; ++i)
        guard.registers[i] = Pattern(i);
    CallUnderGuard(&guard);
    uintptr_t expected = guard.stackPushed;
#if defined(_M_IX86)
    if (convention == Convention::Member)
        expected += guard.argumentCount * sizeof(void*);
#endif
    if (guard.stackAfter != expected)
        ReportChanged(name, "the stack pointer");
    for (unsigned i = 0; i < kRegisters; ++i)
        if (guard.registers[i] != Pattern(i))
            ReportChanged(name, kRegisterNames[i]);
    return guard.result;
}
