#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/support/ImportHook.h"

#include <cstring>

namespace
{
decltype(&MultiByteToWideChar) convert;

// No code page fails for a name that a host can have, so the system's call does.
int WINAPI ConvertAllButFast(UINT codePage, DWORD flags, const char* text, int size, wchar_t* target, int room)
{
    if (text && std::strcmp(text, "Fast") == 0)
        return 0;
    return convert(codePage, flags, text, size, target, room);
}

class NamelessConfiguration : public FactorySchemeFixture
{
protected:
    // Adds a scheme to the first configuration, which has no name to be shown, and gives the name it got.
    void ExpectAddedName(const std::string& name)
    {
        Run([&](FactoryEditor& editor) {
            EXPECT_EQ(editor.Configs().Row(0), L"[720X1200][4C][2b]");
            editor.Press(IDC_BTN_ADD_SCHEME);
            EXPECT_EQ(editor.Schemes().Row(3), std::wstring(name.begin(), name.end()));
            editor.Cancel();
        });
        EXPECT_EQ(ChangesWith("IPrintScheme[4].SetName"), Calls{"IPrintScheme[4].SetName(\"" + name + "\")"});
    }
};

TEST_F(NamelessConfiguration, OfANullNameGivesAnAddedSchemeTheFormatsWord)
{
    m_faults.failing = {"IPrintConfig[0].GetName()"};
    ExpectAddedName("(null)-5");
}

TEST_F(NamelessConfiguration, OfANameThatCannotBeConvertedGivesAnAddedSchemeTheFormatsWord)
{
    const ImportHook hook(Library::Loaded().Module(), "MultiByteToWideChar",
                          reinterpret_cast<const void*>(&ConvertAllButFast));
    convert = hook.Original<decltype(convert)>();
    ExpectAddedName("(null)-5");
}
} // namespace
