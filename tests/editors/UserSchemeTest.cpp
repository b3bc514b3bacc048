#include "tests/editors/UserSchemeTest.h"

#include "refhost/NarrowText.h"

#include <cstring>

std::wstring Unconverted(const std::string& name)
{
    std::wstring text((name.size() + 1) / 2, L'\0');
    std::memcpy(text.data(), name.data(), name.size());
    return text;
}

StoredUserScheme::StoredUserScheme(int place, const refhost::UserScheme& values, const refhost::FactoryScheme& base)
    : StoredValues("IUserScheme[" + std::to_string(place) + "]", values), m_values(values), m_base(base)
{
}

Calls StoredUserScheme::Common() const
{
    return General() + Calls{Call("SetChannel", m_values.channel)};
}

Calls StoredUserScheme::SmallFormat() const
{
    return StoredScheme(std::to_string(m_values.baseScheme), m_base).SmallFormat();
}

StoredUserScheme::operator Calls() const
{
    return Common() + Eclosion() + InkMultiples() + InkCuts() + Lamps() + SmallFormat();
}

UserSchemeTest::UserSchemeTest()
{
    m_machine.factorySchemes[1].enabled = false;
}

UserSchemeTest::~UserSchemeTest()
{
    SetThreadLocale(m_localeBefore);
}

void UserSchemeTest::UseChineseNames()
{
    ASSERT_TRUE(SetThreadLocale(refhost::LocaleOfCodePage(936).value()));
}

void UserSchemeTest::Run(const Script& script)
{
    RunOperation(&IQuorvane::EditUserSchemes, WithEditor(script));
}

void UserSchemeTest::RunAgain(const Script& script)
{
    RunOperationAgain(&IQuorvane::EditUserSchemes, WithEditor(script));
}

EditorTest::WindowScript UserSchemeTest::WithEditor(const Script& script)
{
    return [&script](Operator& op) {
        UserEditor editor = ExpectUserEditor(op);
        script(editor);
    };
}

std::vector<std::string> UserSchemeTest::UserSchemeNames()
{
    const refhost::Machine machine = Machine();
    std::vector<std::string> names;
    for (const refhost::UserScheme& scheme : machine.userSchemes)
        names.push_back(scheme.name);
    return names;
}
