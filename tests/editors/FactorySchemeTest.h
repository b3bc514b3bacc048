#pragma once

#include "tests/editors/FactoryEditor.h"
#include "tests/editors/SchemeTest.h"
#include "tests/editors/StoredScheme.h"

const Calls kFactorySchemesSaved = {"IHostControl.SaveParameters(2)"};

// One run of the factory scheme editor over a machine that the test sets up first.
class FactorySchemeTest : public SchemeTest
{
protected:
    using Script = std::function<void(FactoryEditor&)>;
    void Run(const Script& script);
    // A run again with the same host, as the operator left it.
    void RunAgain(const Script& script);

    refhost::FactoryScheme& Poster() { return m_machine.factorySchemes[0]; }
    refhost::FactoryScheme& Banner() { return m_machine.factorySchemes[1]; }
    refhost::FactoryScheme& Photo() { return m_machine.factorySchemes[2]; }

    // As the pages store a scheme of the machine when nobody has changed it.
    StoredScheme StoredPages(std::size_t index) const;
    Calls Stored(std::size_t index) const { return StoredPages(index); }

private:
    static WindowScript WithEditor(const Script& script);
};
