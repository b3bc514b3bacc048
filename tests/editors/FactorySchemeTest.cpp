#include "tests/editors/FactorySchemeTest.h"

void FactorySchemeTest::Run(const Script& script)
{
    RunOperation(&IQuorvane::EditFactorySchemes, WithEditor(script));
}

void FactorySchemeTest::RunAgain(const Script& script)
{
    RunOperationAgain(&IQuorvane::EditFactorySchemes, WithEditor(script));
}

StoredScheme FactorySchemeTest::StoredPages(std::size_t index) const
{
    return {std::to_string(index), m_machine.factorySchemes.at(index)};
}

EditorTest::WindowScript FactorySchemeTest::WithEditor(const Script& script)
{
    return [&script](Operator& op) {
        FactoryEditor editor = ExpectFactoryEditor(op);
        script(editor);
    };
}
