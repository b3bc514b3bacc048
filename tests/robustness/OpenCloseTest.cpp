#include "refhost/Host.h"
#include "tests/editors/drivers/FactoryEditor.h"
#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/editors/drivers/UserEditor.h"
#include "tests/machines/WholeMachine.h"
#include "tests/robustness/BareEditor.h"
#include "tests/robustness/LibraryHeap.h"
#include "tests/robustness/Resources.h"
#include "tests/support/EditorRun.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Library.h"
#include "tests/support/RunLength.h"

#include <gtest/gtest.h>

namespace
{
// Every so many cycles the operator opens whatever there is to open.
constexpr unsigned kBusyCycle = 20;
constexpr unsigned kBlock = 2 * kBusyCycle;
constexpr int kMoreBlocks = 3;
constexpr unsigned kWarmUp = kBusyCycle + 1;

void UsePrintModes(Operator& op, const Window& dialog)
{
    const PrintModeEditor editor(op, dialog);
    const ConfigDialog config = editor.OpenAddConfig();
    editor.Confirm(config, IDCANCEL);
    editor.Confirm(editor.OpenAddConfig());
    editor.Configs().ClickRow(0);
    editor.Modes().ClickRow(1);
    editor.Edit(IDC_EDIT_SMALL).Type(L"no number");
    op.Key(VK_TAB);
    op.AnswerMessageBox();
    editor.Edit(IDC_EDIT_SMALL).Type(L"1");
    editor.Grid().Choose(0, L"Fine");
}

void UseSchemes(const SchemeEditor& editor)
{
    editor.Schemes().ClickRow(1);
    editor.Schemes().ClickRow(0);
    for (SchemePage page : editor.Pages())
        editor.Open(page);
}

void UseFactorySchemes(Operator& op, const Window& dialog)
{
    const FactoryEditor editor(op, dialog);
    editor.OpenMenuOn(1).Dismiss();
    editor.Confirm(editor.OpenCopyDialog(0), IDCANCEL);
    UseSchemes(editor);
    editor.Confirm(editor.OpenCustomEclosion(), IDCANCEL);
}

void UseUserSchemes(Operator& op, const Window& dialog)
{
    const UserEditor editor(op, dialog);
    UseSchemes(editor);
    editor.AddScheme(L"New");
    editor.Confirm(editor.OpenCustomEclosion());
}

struct Editor
{
    const char* name;
    decltype(&IQuorvane::EditPrintModes) operation;
    void (*use)(Operator&, const Window&);
    std::vector<int> templates;
};

std::ostream& operator<<(std::ostream& stream, const Editor& editor)
{
    return stream << editor.name;
}

const Editor kEditors[] = {{"PrintModes",
                            &IQuorvane::EditPrintModes,
                            &UsePrintModes,
                            {IDD_PRINT_MODE, IDD_PRINT_MODE_CMMN, IDD_PRINT_MODE_DATA}},
                           {"FactorySchemes",
                            &IQuorvane::EditFactorySchemes,
                            &UseFactorySchemes,
                            {IDD_SCHEME_FACTORY, IDD_SCHEME_CMMN, IDD_SCHEME_MODE, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL,
                             IDD_SCHEME_INK_CUT, IDD_SCHEME_UV, IDD_SCHEME_SAPP}},
                           {"UserSchemes",
                            &IQuorvane::EditUserSchemes,
                            &UseUserSchemes,
                            {IDD_SCHEME_USER, IDD_SCHEME_CMMN, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL, IDD_SCHEME_INK_CUT,
                             IDD_SCHEME_UV, IDD_SCHEME_SAPP}}};

class OpenClose : public testing::TestWithParam<Editor>
{
protected:
    void Cycle(bool isBusy);
    // Every so many of them busy. The library's own heap must be after each what it was before. Gives the least that
    // was held after one of them.
    Resources Cycles(unsigned count, const LibraryHeap* heap);
    void BareCycle(const BareEditor& editor);

    Library m_library;

private:
    LanguageFolder m_language;
};

void OpenClose::Cycle(bool isBusy)
{
    refhost::CHost host(WholeMachine());
    const Library::Interface quorvane = m_library.NewInterface();
    const auto script = [isBusy](Operator& op) {
        const Window dialog = op.ExpectDialogWith("an editor", [](const Window& any) { return any.Has(IDC_LIST_CFG); });
        if (isBusy)
            GetParam().use(op, dialog);
        dialog.Control(isBusy ? IDOK : IDCANCEL).Click();
        op.ExpectClosed(dialog);
    };
    RunEditor(
        [&] { return (quorvane.get()->*GetParam().operation)(host.Data(), host.Control(), m_language.Path().c_str()); },
        script);
}

Resources OpenClose::Cycles(unsigned count, const LibraryHeap* heap)
{
    Resources least = Resources::Held();
    const std::size_t blocks = heap ? heap->Blocks() : 0;
    const std::size_t bytes = heap ? heap->Bytes() : 0;
    for (unsigned i = 0; i < count && !HasFailure(); ++i)
    {
        Cycle(i % kBusyCycle == 0);
        EXPECT_TRUE(!heap || heap->Blocks() == blocks)
            << heap->Blocks() << " blocks after cycle " << i << ", not " << blocks;
        EXPECT_TRUE(!heap || heap->Bytes() == bytes)
            << heap->Bytes() << " bytes after cycle " << i << ", not " << bytes;
        least = i == 0 ? Resources::Held() : Least(least, Resources::Held());
    }
    return least;
}

void OpenClose::BareCycle(const BareEditor& editor)
{
    const auto script = [](Operator& op) {
        const Window dialog = op.ExpectDialogWith("a dialog", [](const Window& any) { return any.Has(IDC_LIST_CFG); });
        dialog.Control(IDCANCEL).Click();
        op.ExpectClosed(dialog);
    };
    RunEditor([&] { return editor.Run(); }, script);
}

// What the system makes when it is first needed, and keeps, may come late: so a block of cycles may hold more than the
// one before, but not every one does, as with a leak. Blocks are compared by the least they held, because the regions
// that Wine 10 keeps for later come and go, with bare dialogs just as with editors.
TEST_P(OpenClose, LeavesNothingBehind)
{
    const LibraryHeap heap(m_library.Module());
    Cycles(kWarmUp, nullptr);
    Resources before = Cycles(kBlock, &heap);
    Cycles(RunCount(20, 900), &heap);
    Resources after = Cycles(kBlock, &heap);
    Resources grown = after - before;
    std::cout << before << "; grown by " << grown << "\n";
    for (int i = 0; i < kMoreBlocks && grown.HasObjects(); ++i)
    {
        before = after;
        after = Cycles(kBlock, &heap);
        grown = after - before;
    }
    EXPECT_FALSE(grown.HasObjects()) << "grown by " << grown;
}

// The process's heap grows by Wine's own doing with every dialog, by a block for each control with a font; an editor
// must not add a block a cycle to it.
TEST_P(OpenClose, GrowsTheHeapNoMoreThanBareDialogs)
{
    constexpr unsigned count = 10;
    const BareEditor bare(m_library.Module(), GetParam().templates);
    Cycle(false);
    BareCycle(bare);
    const long start = Resources::Held().heapBlocks;
    for (unsigned i = 0; i < count; ++i)
        BareCycle(bare);
    const long afterBare = Resources::Held().heapBlocks;
    for (unsigned i = 0; i < count; ++i)
        Cycle(false);
    const long afterEditors = Resources::Held().heapBlocks;
    std::cout << afterBare - start << " blocks by bare dialogs, " << afterEditors - afterBare << " by editors\n";
    EXPECT_LT(afterEditors - afterBare, afterBare - start + static_cast<long>(count));
}

// Freed as often as an editor has run since the host loaded it, the library stays; once more, and it goes.
TEST_P(OpenClose, RaisesTheLoadCountByOneARun)
{
    const auto isLoaded = [] { return GetModuleHandleW(L"Quorvane.dll") != nullptr; };
    const HMODULE module = m_library.Module();
    while (isLoaded())
        FreeLibrary(module);
    ASSERT_EQ(Library().Module(), module) << "loaded to another place";
    constexpr int runs = 3;
    for (int i = 0; i < runs; ++i)
        Cycle(false);
    for (int i = 0; i < runs; ++i)
    {
        EXPECT_TRUE(isLoaded()) << "freed " << i << " times";
        FreeLibrary(module);
    }
    EXPECT_TRUE(isLoaded()) << "by the host's own reference";
    FreeLibrary(module);
    EXPECT_FALSE(isLoaded());
}

INSTANTIATE_TEST_SUITE_P(EachEditor, OpenClose, testing::ValuesIn(kEditors),
                         [](const auto& editor) { return std::string(editor.param.name); });

} // namespace
