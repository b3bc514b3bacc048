#pragma once

#include "tests/msabi/HostApi.h"
#include "tests/support/EditorRun.h"
#include "tests/support/LanguageFolder.h"

#include <string>
#include <vector>

using Lines = std::vector<std::string>;

// A host in another compiler's conventions, on a machine of its own that host/Machine.h describes. It has the library's
// object from the start.
class ForeignHost
{
public:
    ForeignHost();

    using Script = std::function<void(Operator&)>;
    // The test fails when the editor or the host has something to complain of.
    void Run(Editor editor, const Script& script) { RunBy(m_api.Edit, editor, script); }
    void RunByPosition(Editor editor, const Script& script) { RunBy(m_api.EditByPosition, editor, script); }

    // Gives what EditAndCatch gives.
    int RunAndCatch(Editor editor, const Script& script);

    void Release() { m_api.Release(); }
    void Delete() { m_api.Delete(); }

    Lines Faults() const;
    // Since the last call.
    Lines TakeChanges();
    Lines Values() const;
    // What was called no time.
    Lines UncalledPositions() const;

    const HostApi& Api() const { return m_api; }

private:
    void RunBy(int(__cdecl* edit)(Editor, const wchar_t*), Editor editor, const Script& script);

    const HostApi& m_api;
    LanguageFolder m_language;
};
