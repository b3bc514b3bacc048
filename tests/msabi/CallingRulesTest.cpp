#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/editors/drivers/UserEditor.h"
#include "tests/host/RawTable.h"
#include "tests/msabi/ForeignHostTest.h"
#include "tests/support/ImportHook.h"
#include "tests/support/Library.h"

#include <cstdint>

namespace
{
using CallingRules = ForeignHostTest;

template <class Expect>
ForeignHost::Script Cancelled(Expect expectEditor)
{
    return [expectEditor](Operator& op) { expectEditor(op).Cancel(); };
}

TEST_F(CallingRules, EditorsKeepRegistersAndStack)
{
    m_host.RunByPosition(Editor::PrintModes, Cancelled(ExpectPrintModeEditor));
    m_host.RunByPosition(Editor::FactorySchemes, Cancelled(ExpectFactoryEditor));
    m_host.RunByPosition(Editor::UserSchemes, Cancelled(ExpectUserEditor));
}

// An operation of a library that keeps to no rule: it leaves its arguments on the stack and changes registers.
__attribute__((naked)) void BrokenOperation()
{
#if defined(__i386__)
    asm("movl $1, %ebx\n\t"
        "movl $1, %eax\n\t"
        "ret");
#else
    asm("movl $1, %ebx\n\t"
        "pxor %xmm7, %xmm7\n\t"
        "movl $1, %eax\n\t"
        "ret");
#endif
}

void* BrokenNewInterface()
{
    static void* table[] = {nullptr, reinterpret_cast<void*>(&BrokenOperation)};
    static void** object = table;
    return &object;
}

void IgnoreRelease(void*) {}

TEST_F(CallingRules, BrokenOnesWouldBeNoticed)
{
    m_host.Release();
    m_host.Api().Start(reinterpret_cast<void*>(&BrokenNewInterface), reinterpret_cast<void*>(&IgnoreRelease));
    EXPECT_EQ(m_host.Api().EditByPosition(Editor::PrintModes, L""), 1);
#if defined(__i386__)
    EXPECT_EQ(m_host.Faults(), (Lines{"the editor has changed the stack pointer", "the editor has changed ebx"}));
#else
    EXPECT_EQ(m_host.Faults(),
              (Lines{"the editor has changed rbx", "the editor has changed xmm7", "the editor has changed xmm7"}));
#endif
}

// What the library gives back to its own heap.
void* g_object = nullptr;
int g_objectFreed = 0;

void (*g_free)(void*) = nullptr;

void CountFree(void* block)
{
    g_objectFreed += block == g_object ? 1 : 0;
    g_free(block);
}

class LibraryObject : public ForeignHostTest
{
protected:
    LibraryObject() : m_free(Library::Loaded().Module(), "free", reinterpret_cast<const void*>(&CountFree))
    {
        g_free = m_free.Original<void (*)(void*)>();
        g_object = m_host.Api().LibraryObject();
        g_objectFreed = 0;
    }

    void ExpectFreedByTheLibraryOnce()
    {
        EXPECT_EQ(g_objectFreed, 1);
        EXPECT_EQ(m_host.Api().Deletes(), 0u);
        EXPECT_EQ(m_host.Faults(), Lines());
    }

private:
    ImportHook m_free;
};

TEST_F(LibraryObject, GoesByReleaseInterface)
{
    m_host.Release();
    ExpectFreedByTheLibraryOnce();
}

TEST_F(LibraryObject, GoesByTheHostsDelete)
{
    m_host.Delete();
    ExpectFreedByTheLibraryOnce();
}

// The host's objects, called as the library calls them: by position.
class HostObject : public ForeignHostTest
{
protected:
    template <typename Result = void*, typename... Arguments>
    Result OfData(unsigned position, Arguments... arguments)
    {
        return CallPosition<Result>(m_host.Api().Data(), position, arguments...);
    }
    void* Config() { return CallPosition<void*>(OfData(31), 15, std::uint32_t{1}); }
    void* Mode() { return CallPosition<void*>(Config(), 15, std::uint32_t{0}); }

    void ExpectFault(const std::string& fault) { EXPECT_EQ(m_host.Faults(), Lines{fault}); }
};

TEST_F(HostObject, LeavesJunkAboveANarrowResult)
{
    constexpr auto kJunk = static_cast<std::uintptr_t>(0xDEADBEEF5A5AA500u);
    constexpr unsigned kXResolution = 9, kColorCount = 11, kFrontCompensation = 37;
    EXPECT_EQ(CallPosition<std::uintptr_t>(Config(), kXResolution), (kJunk & ~std::uintptr_t{0xFFFF}) | 60000u);
    EXPECT_EQ(CallPosition<std::uintptr_t>(Config(), kColorCount), kJunk | 200u);
    EXPECT_EQ(CallPosition<std::uintptr_t>(Mode(), kFrontCompensation, std::uint32_t{0}), kJunk | 1u);
    EXPECT_EQ(CallPosition<std::uintptr_t>(Mode(), kFrontCompensation, std::uint32_t{1}), kJunk);
    EXPECT_EQ(m_host.Faults(), Lines());
}

TEST_F(HostObject, ComplainsOfAnOperationThatIsNotOffered)
{
    OfData<void>(3);
    ExpectFault("IHostData, position 3: the operation is not to be called");
}

TEST_F(HostObject, ComplainsOfACallBehindItsTable)
{
    OfData<void>(68);
    ExpectFault("IHostData, position 68: the operation is not to be called");
}

TEST_F(HostObject, ComplainsOfAnArgumentOutOfRange)
{
    CallPosition<void*>(OfData(31), 15, std::uint32_t{3});
    ExpectFault("configurations.GetAt(3): the index is out of range");
}

TEST_F(HostObject, ComplainsOfABooleanWithJunk)
{
    CallPosition<void>(Mode(), 5, std::uint32_t{0x100});
    ExpectFault("Fine-1.SetDisabled(256): a boolean argument is no clean 0 or 1 in 32 bits");
}

TEST_F(HostObject, ComplainsWhenItWasRemoved)
{
    void* const config = Config();
    CallPosition<void>(OfData(31), 19, std::uint32_t{1});
    CallPosition<const char*>(config, 8);
    ExpectFault("Fine.GetName(): the object was removed");
}

class ChannelArray : public HostObject
{
protected:
    static constexpr unsigned kMostChannels = 65536; // one for every id

    void Fill(void* array) { CallPosition<void>(OfData(20), 8, std::uint8_t{40}, array); }
    // The labels of the ink multiple page.
    Texts ShownChannels();
};

Texts ChannelArray::ShownChannels()
{
    Texts shown;
    Edit(Editor::FactorySchemes, ExpectFactoryEditor, [&](FactoryEditor& editor) {
        const Window page = editor.Open(SchemePage::InkMultiple);
        for (int row = 0; row < 12; ++row)
            if (const Window label = page.Control(IDC_STATIC_COLOR_FIRST + row); label.IsVisible())
                shown.push_back(label.Text());
        editor.Cancel();
    });
    return shown;
}

TEST_F(ChannelArray, NeverGrowsInTheHostsHeap)
{
    m_host.Api().SetChannelCount(kMostChannels);
    Edit(Editor::FactorySchemes, ExpectFactoryEditor, [](FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        editor.Cancel();
    });
    EXPECT_GT(m_host.Api().ArraysFilled(), 0u);
    EXPECT_EQ(m_host.Api().ArraysGrown(), 0u);
}

// Microsoft's compilers before 2010, and the iterator debugging of the later ones.
TEST_F(ChannelArray, MayHaveAFieldBeforeItsPointers)
{
    for (const unsigned count : {0u, 4u, kMostChannels})
    {
        m_host.Api().SetChannelCount(count);
        m_host.Api().SetFieldsBeforeArray(0);
        const Texts shown = ShownChannels();
        EXPECT_FALSE(shown.empty());
        m_host.Api().SetFieldsBeforeArray(1);
        EXPECT_EQ(ShownChannels(), shown);
    }
    EXPECT_EQ(m_host.Api().ArraysGrown(), 0u);
}

TEST_F(ChannelArray, WithoutRoomWouldGrow)
{
    struct
    {
        void* items[2];
        void** first = items;
        void** end = items;
        void** limit = items + 2;
    } array;
    Fill(&array.first);
    EXPECT_EQ(m_host.Api().ArraysGrown(), 1u);
    EXPECT_EQ(array.end - array.first, 4);
    ExpectFault("channels.GetChannelsOfLayout(40, storage): a block of another heap was given to the host's");
}
} // namespace
