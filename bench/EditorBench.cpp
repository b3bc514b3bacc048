#include "bench/EditorBench.h"

#include "refhost/Host.h"

#include <array>
#include <memory>

namespace
{
constexpr std::size_t kChangesPerRun = 8;

// Adds up the processor time between its starts and stops.
class ProcessorShare
{
public:
    void Start() { m_start = ProcessorTime(); }
    void Stop() { m_sum += ProcessorTime() - m_start; }
    double Per(int count) const { return m_sum / count; }

private:
    double m_start = 0;
    double m_sum = 0;
};

int Row(HWND list, int row)
{
    return row >= 0 ? row : static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)) + row;
}

// Does what a list box does when a row is clicked.
void Select(HWND dialog, int listId, int row)
{
    const HWND list = GetDlgItem(dialog, listId);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(Row(list, row)), 0);
    SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(MAKELONG(listId, LBN_SELCHANGE)),
                 reinterpret_cast<LPARAM>(list));
}

struct Times
{
    std::vector<double> handled;
    std::vector<double> painted;
};

// Steps that make one change after another. A change is painted when the next step is called.
std::vector<Stage::Step> TimedChanges(const std::function<void(HWND, std::size_t)>& change, Times& times)
{
    std::vector<Stage::Step> steps;
    const auto start = std::make_shared<double>(0);
    for (std::size_t i = 0; i < kChangesPerRun; ++i)
        steps.push_back([=, &times](HWND dialog) {
            if (i > 0)
                times.painted.push_back(Now() - *start);
            *start = Now();
            change(dialog, i);
            times.handled.push_back(Now() - *start);
        });
    steps.push_back([=, &times](HWND) { times.painted.push_back(Now() - *start); });
    return steps;
}
} // namespace

void EditorBench::RunEditor(const EditorKind& kind, const refhost::Machine& machine,
                            const std::vector<Stage::Step>& steps)
{
    refhost::CHost host(machine);
    m_stage.Run([&] { (m_editors.*kind.operation)(host.Data(), host.Control(), m_languageDir.c_str()); }, steps);
}

Comparison EditorBench::OpenAndClose(const std::string& name, const EditorKind& kind, const refhost::Machine& machine,
                                     int rounds)
{
    EditorState state;
    RunEditor(kind, machine, {[&](HWND dialog) { state = ReadEditor(kind, dialog); }});
    FloorEditor floor(m_library, kind, state);
    refhost::CHost host(machine);
    Comparison comparison{name};
    ProcessorShare editorShare, floorShare;
    const auto time = [&](ProcessorShare& share, const std::function<void()>& modal) {
        share.Start();
        const double start = Now();
        m_stage.Run(modal, {});
        const double end = Now();
        share.Stop();
        return end - start;
    };
    for (int round = 0; round < rounds; ++round)
    {
        const double floorTime = time(floorShare, [&] { floor.Run(m_stage.Owner()); });
        const double editorTime =
            time(editorShare, [&] { (m_editors.*kind.operation)(host.Data(), host.Control(), m_languageDir.c_str()); });
        comparison.Add(editorTime, floorTime);
    }
    comparison.subjectProcessor = editorShare.Per(rounds);
    comparison.baselineProcessor = floorShare.Per(rounds);
    return comparison;
}

// What the editor shows for each of the two rows, once both have been shown before.
std::array<EditorState, 2> EditorBench::StatesOf(const EditorKind& kind, const refhost::Machine& machine,
                                                 const std::function<void(HWND, std::size_t)>& select)
{
    std::array<EditorState, 2> states;
    const auto show = [&](std::size_t change) { return [&, change](HWND dialog) { select(dialog, change); }; };
    const auto read = [&](std::size_t change) {
        return [&, change](HWND dialog) {
            select(dialog, change);
            states[change] = ReadEditor(kind, dialog);
        };
    };
    RunEditor(kind, machine, {show(0), show(1), read(0), read(1)});
    return states;
}

EditorBench::ChangeTimes EditorBench::Change(const std::string& name, const EditorKind& kind,
                                             const refhost::Machine& machine, const Selection& selection, int rounds)
{
    const auto select = [&](HWND dialog, std::size_t change) {
        Select(dialog, selection.listId, selection.rows[change % 2]);
    };
    const std::array<EditorState, 2> states = StatesOf(kind, machine, select);
    FloorEditor floor(m_library, kind, states[1]);
    const FloorChange changes[] = {{kind, states[1], states[0], selection.rebuilds},
                                   {kind, states[0], states[1], selection.rebuilds}};
    const auto changeFloor = [&](HWND dialog, std::size_t change) {
        const HWND list = GetDlgItem(dialog, selection.listId);
        const int row = selection.rows[change % 2];
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(Row(list, row)), 0);
        floor.Apply(changes[change % 2]);
    };
    ChangeTimes result{Comparison(name + ", handled"), Comparison(name + ", painted")};
    for (int round = 0; round < rounds; ++round)
    {
        Times ofEditor, ofFloor;
        const std::vector<Stage::Step> floorSteps = TimedChanges(changeFloor, ofFloor);
        std::vector<Stage::Step> editorSteps = TimedChanges(select, ofEditor);
        editorSteps.insert(editorSteps.begin(), [&](HWND dialog) { select(dialog, 1); });
        m_stage.Run([&] { floor.Run(m_stage.Owner()); }, floorSteps);
        RunEditor(kind, machine, editorSteps);
        for (std::size_t i = 0; i < kChangesPerRun; ++i)
        {
            result.handled.Add(ofEditor.handled[i], ofFloor.handled[i]);
            result.painted.Add(ofEditor.painted[i], ofFloor.painted[i]);
        }
    }
    return result;
}
