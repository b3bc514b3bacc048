#pragma once

#include "tests/editors/SchemeTest.h"
#include "tests/editors/StoredScheme.h"
#include "tests/editors/UserEditor.h"

const Calls kUserSchemesSaved = {"IHostControl.SaveParameters(3)"};

constexpr wchar_t kDividerText[] = L"----------------------";

// The rows of the first configuration of the machine below.
enum Row
{
    kPoster,
    kSign,
    kDivider,
    kMine,
    kYours
};

const std::vector<SchemePage> kAllUserPages = {SchemePage::Common, SchemePage::Eclosion, SchemePage::InkMultiple,
                                               SchemePage::InkCut, SchemePage::UvLamps,  SchemePage::SmallFormat};

// How a host's name looks where it stands unconverted: two bytes a character.
std::wstring Unconverted(const std::string& name);

// What the host is told when the user editor stores its pages for a user scheme and the factory scheme it was made
// from: each page's calls, and all in tab order. The places are those of the call log.
class StoredUserScheme : public StoredValues
{
public:
    StoredUserScheme(int place, const refhost::UserScheme& values, const refhost::FactoryScheme& base);

    Calls Common() const;
    Calls SmallFormat() const;

    operator Calls() const;

private:
    refhost::UserScheme m_values;
    refhost::FactoryScheme m_base;
};

// One run of the user scheme editor over the small scheme machine, with a value of its own for everything and with
// "Banner" disabled: the first configuration has the presets "Poster" and "Sign" and the user schemes "Mine" and
// "Yours", the second one "Photo" and "Album", the third none.
class UserSchemeTest : public SchemeTest
{
protected:
    UserSchemeTest();
    ~UserSchemeTest() override;

    using Script = std::function<void(UserEditor&)>;
    void Run(const Script& script);
    // A run again with the same host, as the operator left it.
    void RunAgain(const Script& script);

    // The names of a Chinese host: code page 936.
    void UseChineseNames();

    refhost::FactoryScheme& Poster() { return m_machine.factorySchemes[0]; }
    refhost::FactoryScheme& Photo() { return m_machine.factorySchemes[2]; }
    refhost::FactoryScheme& Sign() { return m_machine.factorySchemes[3]; }
    refhost::UserScheme& Mine() { return m_machine.userSchemes[0]; }
    refhost::UserScheme& Yours() { return m_machine.userSchemes[1]; }
    refhost::UserScheme& Album() { return m_machine.userSchemes[2]; }

    // As the pages store the two when nobody has changed anything.
    StoredUserScheme StoredMine() { return {0, Mine(), Poster()}; }
    StoredUserScheme StoredYours() { return {1, Yours(), Sign()}; }

    // What the editor has left in the host.
    std::vector<std::string> UserSchemeNames();

private:
    static WindowScript WithEditor(const Script& script);

    LCID m_localeBefore = GetThreadLocale();
};
