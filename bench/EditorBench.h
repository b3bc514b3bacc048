#pragma once

#include "bench/EditorKind.h"
#include "bench/FloorEditor.h"
#include "bench/Report.h"
#include "bench/Stage.h"
#include "refhost/Machine.h"

#include <array>
#include <functional>

// Measures editors against their floor. The floor learns from the real editor what it must show.
class EditorBench
{
public:
    EditorBench(Stage& stage, HMODULE library, IQuorvane& editors, const std::wstring& languageDir)
        : m_stage(stage), m_library(library), m_editors(editors), m_languageDir(languageDir)
    {
    }

    // Measures from the call to the return. The editor is cancelled as soon as it is idle.
    Comparison OpenAndClose(const std::string& name, const EditorKind& kind, const refhost::Machine& machine,
                            int rounds);

    // A selection of another row, which is measured.
    struct Selection
    {
        int listId;
        std::vector<int> rows; // two, selected alternately; negative ones count from the end
        Rebuilds rebuilds;
    };
    struct ChangeTimes
    {
        Comparison handled; // until the pages are stored and loaded
        Comparison painted; // until everything is painted as well
    };
    ChangeTimes Change(const std::string& name, const EditorKind& kind, const refhost::Machine& machine,
                       const Selection& selection, int rounds);

private:
    std::array<EditorState, 2> StatesOf(const EditorKind& kind, const refhost::Machine& machine,
                                        const std::function<void(HWND, std::size_t)>& select);
    void RunEditor(const EditorKind& kind, const refhost::Machine& machine, const std::vector<Stage::Step>& steps);

    Stage& m_stage;
    HMODULE m_library;
    IQuorvane& m_editors;
    std::wstring m_languageDir;
};
