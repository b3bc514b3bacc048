#include "tests/editors/drivers/CustomEclosionDialog.h"
#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"
#include "tests/speed/MessageLog.h"

#include <algorithm>
#include <commctrl.h>
#include <map>
#include <ostream>

namespace
{
using Messages = std::vector<LoggedMessage>;

// Until nothing waits to be painted.
void AwaitPainted(Operator& op)
{
    op.WaitFor("everything to be painted", [&] {
        bool waiting = true;
        op.OnUi([&] { waiting = (HIWORD(GetQueueStatus(QS_PAINT)) & QS_PAINT) != 0; });
        return !waiting;
    });
}

std::string Name(HWND window)
{
    return Utf8(WindowClass(window)) + " " + std::to_string(GetDlgCtrlID(window));
}

// How often each window was told to paint itself.
std::map<HWND, int> Paints(const Messages& messages)
{
    std::map<HWND, int> paints;
    for (const LoggedMessage& one : messages)
        if (one.message == WM_PAINT)
            ++paints[one.window];
    return paints;
}

int PaintsOf(const Messages& messages, const Window& window)
{
    return Count(messages,
                 [&](const LoggedMessage& one) { return one.window == window.Handle() && one.message == WM_PAINT; });
}

// Labels draw themselves at once, without being told to.
bool IsLabelSet(const LoggedMessage& message)
{
    return message.message == WM_SETTEXT && WindowClass(message.window) == WC_STATICW;
}

// Shown, hidden or moved, be it to where it was.
bool IsPlaced(const LoggedMessage& message)
{
    return message.message == WM_WINDOWPOSCHANGING && message.visible;
}

void ExpectPaintedOnceAtMost(const Messages& messages)
{
    for (const auto& [window, count] : Paints(messages))
        EXPECT_EQ(count, 1) << Name(window);
}

// But for the tab strip: it marks the tab under the mouse, some time after the mouse has moved.
void ExpectPaintedOnceInSight(const Messages& messages, const Window& tab)
{
    for (const auto& [window, count] : Paints(messages))
    {
        if (window == tab.Handle())
            continue;
        EXPECT_EQ(count, 1) << Name(window);
        EXPECT_TRUE(IsWindowVisible(window)) << Name(window);
    }
}

// Whatever a control shows at rest it showed when it was first painted.
void ExpectFilledBeforePainted(const Messages& messages)
{
    bool painted = false;
    for (const LoggedMessage& one : messages)
    {
        painted = painted || one.message == WM_PAINT;
        EXPECT_FALSE(painted && ChangesContent(one)) << "message " << one.message << " to " << Name(one.window);
    }
    EXPECT_TRUE(painted);
}

void ExpectOpenedWithoutFlicker(const EditorWindow& editor, MessageLog& log)
{
    AwaitPainted(editor.Op());
    const Messages messages = log.Take();
    ExpectPaintedOnceAtMost(messages);
    ExpectFilledBeforePainted(messages);
}

template <class Fixture>
class Painted : public Fixture
{
protected:
    MessageLog m_log;
};

using PrintModePaint = Painted<PrintModeFixture>;
using FactoryPaint = Painted<FactorySchemeFixture>;
using UserPaint = Painted<UserSchemeFixture>;

TEST_F(PrintModePaint, ComesOnceAndAfterTheFillingAtTheOpening)
{
    Run([this](PrintModeEditor& editor) {
        ExpectOpenedWithoutFlicker(editor, m_log);
        editor.Cancel();
    });
}

TEST_F(FactoryPaint, ComesOnceAndAfterTheFillingAtTheOpening)
{
    Run([this](FactoryEditor& editor) {
        ExpectOpenedWithoutFlicker(editor, m_log);
        editor.Cancel();
    });
}

TEST_F(UserPaint, ComesOnceAndAfterTheFillingAtTheOpening)
{
    Run([this](UserEditor& editor) {
        ExpectOpenedWithoutFlicker(editor, m_log);
        editor.Cancel();
    });
}

// A page whose controls are painted at a change of scheme, and how many of them at most: those whose values change.
struct PageLimit
{
    SchemePage page;
    int windows;
};

void PrintTo(const PageLimit& limit, std::ostream* out)
{
    *out << "the page with control " << static_cast<int>(limit.page);
}

template <class Fixture>
class ChangePaint : public Painted<Fixture>, public testing::WithParamInterface<PageLimit>
{
protected:
    void ExpectPaintedOnce(const SchemeEditor& editor, int from, int to);
};

template <class Fixture>
void ChangePaint<Fixture>::ExpectPaintedOnce(const SchemeEditor& editor, int from, int to)
{
    editor.Open(GetParam().page);
    editor.Schemes().ClickRow(to);
    editor.Schemes().ClickRow(from);
    AwaitPainted(editor.Op());
    this->m_log.Take();
    editor.Schemes().ClickRow(to);
    AwaitPainted(editor.Op());
    const Messages messages = this->m_log.Take();
    EXPECT_EQ(Count(messages, IsLabelSet), 0);
    EXPECT_EQ(Count(messages, IsPlaced), 0);
    const HWND page = editor.Page(GetParam().page).Handle();
    const auto changesPage = [page](const LoggedMessage& one) {
        return IsChild(page, one.window) && ChangesContent(one);
    };
    EXPECT_GT(Count(messages, changesPage), 0);
    ExpectPaintedOnceInSight(messages, editor.Tab());
    const auto painted = Paints(messages);
    EXPECT_LE(
        std::count_if(painted.begin(), painted.end(), [page](const auto& one) { return IsChild(page, one.first); }),
        GetParam().windows);
}

using FactoryChangePaint = ChangePaint<FactorySchemeFixture>;
using UserChangePaint = ChangePaint<UserSchemeFixture>;

TEST_P(FactoryChangePaint, ComesOnceToWhatIsToBeSeen)
{
    Run([this](FactoryEditor& editor) {
        ExpectPaintedOnce(editor, 0, 1);
        editor.Cancel();
    });
}

TEST_P(UserChangePaint, ComesOnceToWhatIsToBeSeen)
{
    Run([this](UserEditor& editor) {
        ExpectPaintedOnce(editor, kMine, kYours);
        editor.Cancel();
    });
}

INSTANTIATE_TEST_SUITE_P(Pages, FactoryChangePaint,
                         testing::Values(PageLimit{SchemePage::Common, 10}, PageLimit{SchemePage::Mode, 3},
                                         PageLimit{SchemePage::Eclosion, 11}, PageLimit{SchemePage::InkMultiple, 4},
                                         PageLimit{SchemePage::InkCut, 10}, PageLimit{SchemePage::UvLamps, 4},
                                         PageLimit{SchemePage::SmallFormat, 2}));
INSTANTIATE_TEST_SUITE_P(Pages, UserChangePaint,
                         testing::Values(PageLimit{SchemePage::Common, 10}, PageLimit{SchemePage::Eclosion, 11},
                                         PageLimit{SchemePage::InkMultiple, 4}, PageLimit{SchemePage::InkCut, 10},
                                         PageLimit{SchemePage::UvLamps, 4}, PageLimit{SchemePage::SmallFormat, 2}));

// The mode's name, pass count, resolution and resident value change; the page with the heads' data is not in sight.
TEST_F(PrintModePaint, ComesOnceToWhatAChangeOfModeShows)
{
    Run([this](PrintModeEditor& editor) {
        editor.Modes().ClickRow(1);
        editor.Modes().ClickRow(0);
        AwaitPainted(editor.Op());
        m_log.Take();
        editor.Modes().ClickRow(1);
        AwaitPainted(editor.Op());
        const Messages messages = m_log.Take();
        EXPECT_GT(Count(messages, ChangesContent), 0);
        ExpectPaintedOnceInSight(messages, editor.Tab());
        editor.Cancel();
    });
}

TEST_F(FactoryPaint, OfADraggedElementIsItsPreviewAlone)
{
    Run([this](FactoryEditor& editor) {
        CustomEclosionDialog dialog(editor, editor.OpenCustomEclosion());
        const Window preview = dialog.Dialog().Control(IDC_STATIC_PREVIEW1);
        const Trackbar slider = dialog.Dialog().Control<Trackbar>(IDC_SLIDER_ELEMENT1_W);
        slider.Track(slider.Lowest()); // what else comes of a first touch has been painted
        AwaitPainted(editor.Op());
        m_log.Take();
        slider.Track(slider.Highest());
        AwaitPainted(editor.Op());
        const Messages messages = m_log.Take();
        EXPECT_EQ(PaintsOf(messages, dialog.Dialog()), 1);
        RECT area;
        GetWindowRect(preview.Handle(), &area);
        for (const LoggedMessage& one : messages)
        {
            const bool isInside =
                one.window == dialog.Dialog().Handle() || IsChild(dialog.Dialog().Handle(), one.window);
            if (one.message != WM_PAINT || !isInside || one.window == slider.Handle())
                continue;
            RECT painted = one.update;
            MapWindowPoints(one.window, HWND_DESKTOP, reinterpret_cast<POINT*>(&painted), 2);
            RECT outside;
            EXPECT_FALSE(SubtractRect(&outside, &painted, &area)) << Name(one.window);
        }
        editor.Confirm(dialog.Dialog(), IDCANCEL);
        editor.Cancel();
    });
}
} // namespace
