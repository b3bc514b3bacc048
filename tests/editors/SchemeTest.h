#pragma once

#include "tests/editors/EditorTest.h"
#include "tests/editors/EditorWindow.h"
#include "tests/editors/SchemeMachine.h"

// A run of a scheme editor over the small scheme machine, with a language file that has a text of its own for
// everything that the editors show.
class SchemeTest : public EditorTest
{
protected:
    SchemeTest();

    // The editor runs as if there were no language file.
    void RemoveTexts();

    // What the host does by itself while an editor is open; not counted as a change.
    void InHost(const EditorWindow& editor, const std::function<void(IHostData&)>& action);

    const refhost::FactoryScheme& Factory(std::size_t index);
    const refhost::UserScheme& User(std::size_t index);

private:
    refhost::Machine m_after;
};
