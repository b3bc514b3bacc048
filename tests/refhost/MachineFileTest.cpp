#include "refhost/MachineFile.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/refhost/SmallMachine.h"
#include "tests/refhost/TemporaryFolder.h"

using namespace refhost;

namespace
{

std::string RefusalOf(const std::string& text)
{
    try
    {
        ParseMachine(text);
    }
    catch (const MachineFileError& error)
    {
        return error.what();
    }
    return "was accepted";
}

void ExpectRefusal(const std::string& text, const std::string& message)
{
    const std::string refusal = RefusalOf(text);
    EXPECT_NE(refusal.find(message), std::string::npos) << refusal;
}

std::string SaveError(const Machine& machine, const std::wstring& path)
{
    try
    {
        SaveMachine(machine, path);
    }
    catch (const MachineFileError& error)
    {
        return error.what();
    }
    return "";
}

} // namespace

TEST(MachineFile, EveryValueComesBack)
{
    const std::string text = FormatMachine(SmallMachine());
    EXPECT_EQ(FormatMachine(ParseMachine(text)), text);

    const Machine machine = ParseMachine(text);
    EXPECT_EQ(machine.codePage, 936u);
    EXPECT_EQ(machine.configurations[0].modes[1].largeDotCompensation, (std::vector<float>{3.0e8f, 1.0e-7f}));
    EXPECT_EQ(machine.configurations[0].modes[1].frontCompensation, (std::vector<bool>{true, false}));
    EXPECT_EQ(machine.configurations[1].name, "\xC8\xAB");
    EXPECT_EQ(machine.factorySchemes[1].inkCut[31], 7);
    EXPECT_EQ(machine.factorySchemes[0].smallFormatOffset, 65535);
    EXPECT_EQ(machine.userSchemes[1].customEclosionId, 4000000000u);
    EXPECT_EQ(machine.paramTables[1].entries, (std::vector<std::int32_t>{1, 0, -1}));
    EXPECT_EQ(machine.customEclosions.definitions[0].modes[0].elements[1].height, 7);
}

TEST(MachineFile, NamesAreWrittenAsReadableText)
{
    EXPECT_NE(FormatMachine(SmallMachine()).find("\"name\": \"\xE5\x85\xA8\""), std::string::npos);
}

TEST(MachineFile, FloatsAreWrittenShort)
{
    EXPECT_NE(FormatMachine(SmallMachine()).find("\"smallDotCompensation\": [0.1, 1.5]"), std::string::npos);
}

TEST(MachineFile, BytesThatAreNoTextComeBack)
{
    Machine machine = SmallMachine();
    machine.configurations[0].name = "\x80\xFF odd \xC8";
    EXPECT_EQ(ParseMachine(FormatMachine(machine)).configurations[0].name, machine.configurations[0].name);
}

TEST(MachineFile, ByteOrderMarkIsAccepted)
{
    EXPECT_EQ(ParseMachine("\xEF\xBB\xBF" + FormatMachine(SmallMachine())).name, "Small");
}

TEST(MachineFile, BrokenJsonIsRefusedWithItsLine)
{
    ExpectRefusal("{\n  \"format\": \"quorvane-machine\",\n  \"version\": ?\n}", "line 3");
    ExpectRefusal("", "line 1");
    ExpectRefusal(FormatMachine(SmallMachine()).substr(0, 300), "parse error at line");
    ExpectRefusal(std::string("MZ\x90\0\3\0\0\0", 8), "line 1");
}

TEST(MachineFile, ForeignJsonIsRefused)
{
    ExpectRefusal("{}", "format: is missing");
    ExpectRefusal("[1, 2]", "[1,2] is no object");
    ExpectRefusal(SmallMachineWith("quorvane-machine", "something else"), "format: this is no machine file");
    ExpectRefusal(SmallMachineWith("\"version\": 1", "\"version\": 2"), "version: 2 is not known");
    ExpectRefusal(SmallMachineWith("\"codePage\": 936", "\"codePage\": 65001"), "codePage: 65001");
}

TEST(MachineFile, ValuesOutOfRangeAreRefusedWithTheirPlace)
{
    ExpectRefusal(SmallMachineWith("\"xResolution\": 720", "\"xResolution\": 70000"),
                  "configurations[0].xResolution: 70000 is no whole number from 0 to 65535");
    ExpectRefusal(SmallMachineWith("\"passCount\": 8", "\"passCount\": -1"),
                  "configurations[0].modes[1].passCount: -1 is no whole number from 0 to 65535");
    ExpectRefusal(SmallMachineWith("\"colorCount\": 4", "\"colorCount\": 256"), "from 0 to 255");
    ExpectRefusal(SmallMachineWith("[1, 255, 0]", "[1, 300, 0]"), "configurations[0].modes[1].headDataModes[1]: 300");
    ExpectRefusal(SmallMachineWith("[1, 0, -1]", "[1, 0, 2147483648]"), "paramTables[1].entries[2]: 2147483648");
    ExpectRefusal(SmallMachineWith("[1, 0, -1]", "[1, 0, 18446744073709551615]"), "paramTables[1].entries[2]");
    ExpectRefusal(SmallMachineWith("[0.1, 1.5]", "[0.1, 1e39]"), "smallDotCompensation[1]");
    ExpectRefusal(SmallMachineWith("\"range\": 200", "\"range\": 1.5"), "customEclosions.definitions[0].range: 1.5");
}

TEST(MachineFile, ValuesOfAnotherKindAreRefusedWithTheirPlace)
{
    ExpectRefusal(SmallMachineWith("\"xResolution\": 720", "\"xResolution\": \"720\""),
                  "configurations[0].xResolution");
    ExpectRefusal(SmallMachineWith("\"name\": \"Fast\"", "\"name\": 5"), "configurations[0].name: 5 is no text");
    ExpectRefusal(SmallMachineWith("\"locked\": true", "\"locked\": 1"), "definitions[0].locked: 1 is neither");
    ExpectRefusal(SmallMachineWith("[\"360 dpi\", \"720 dpi\"]", "{}"), "xResolutions: {} is no list");
    ExpectRefusal(SmallMachineWith("{\"id\": 1, \"groups\": [100, 101]}", "null"), "activeSetup: null is no object");
}

TEST(MachineFile, MissingUnknownAndDoubleValuesAreRefused)
{
    ExpectRefusal(SmallMachineWith("\"xResolution\": 720,", ""), "configurations[0].xResolution: is missing");
    ExpectRefusal(SmallMachineWith("\"xResolution\": 720", "\"xResolution\": 720, \"zResolution\": 1"),
                  "configurations[0].zResolution: a machine file has no such value");
    ExpectRefusal(SmallMachineWith("\"xResolution\": 720", "\"xResolution\": 720, \"xResolution\": 720"),
                  "\"xResolution\" is there twice");
}

TEST(MachineFile, ListsOfFixedLengthAreChecked)
{
    std::string text = FormatMachine(SmallMachine());
    const std::size_t place = text.find("\"inkMultiple\": [10, ");
    ASSERT_NE(place, std::string::npos);
    text.erase(place + 16, 4);
    ExpectRefusal(text, "factorySchemes[0].inkMultiple: has 15 values, but 16 are needed");
}

TEST(MachineFile, NamesThatCannotBeServedAreRefused)
{
    ExpectRefusal(SmallMachineWith("\"name\": \"Fast\"", "\"name\": \"\xF0\x9F\x96\xA8\""),
                  "configurations[0].name: \"\xF0\x9F\x96\xA8\" cannot be written in code page 936");
    ExpectRefusal(SmallMachineWith("\"name\": \"Fast\"", "\"name\": \"a\\u0000b\""), "zero character");
    ExpectRefusal(SmallMachineWith("\"name\": \"Fast\"", "\"name\": {\"bytes\": \"C8 4\"}"),
                  "configurations[0].name: \"C8 4\" is no list of bytes");
}

TEST(MachineFile, RefusalNamesTheFileAndLeavesItUntouched)
{
    const TemporaryFolder folder;
    const std::wstring path = folder.PathOf(L"machine.json");
    const std::string content = SmallMachineWith("\"dotBits\": 2", "\"dotBits\": 300");
    WriteBytes(path, content);
    try
    {
        LoadMachine(path);
        FAIL() << "the file was accepted";
    }
    catch (const MachineFileError& error)
    {
        EXPECT_NE(std::string(error.what()).find("machine.json: configurations[0].dotBits: 300"), std::string::npos)
            << error.what();
    }
    EXPECT_EQ(ContentOf(path), content);
    EXPECT_EQ(folder.FileCount(), 1u);
}

TEST(MachineFile, MissingFileIsRefused)
{
    const TemporaryFolder folder;
    EXPECT_THROW(LoadMachine(folder.PathOf(L"none.json")), MachineFileError);
    EXPECT_THROW(LoadMachine(folder.PathOf(L"none\\machine.json")), MachineFileError);
}

TEST(MachineFile, SavedFileIsWholeAndAlone)
{
    const TemporaryFolder folder;
    const std::wstring path = folder.PathOf(L"\x673A\x5668.json");
    SaveMachine(SmallMachine(), path);
    Machine changed = SmallMachine();
    changed.name = "Changed";
    SaveMachine(changed, path);
    EXPECT_EQ(ContentOf(path), FormatMachine(changed));
    EXPECT_EQ(LoadMachine(path).name, "Changed");
    EXPECT_EQ(folder.FileCount(), 1u);
}

TEST(MachineFile, UnfinishedSaveOfACrashIsHarmless)
{
    const TemporaryFolder folder;
    const std::wstring path = folder.PathOf(L"machine.json");
    SaveMachine(SmallMachine(), path);
    WriteBytes(path + L".new", "{\"format\": \"quorv");
    EXPECT_EQ(LoadMachine(path).name, "Small");
    SaveMachine(SmallMachine(), path);
    EXPECT_EQ(folder.FileCount(), 1u);
}

class FailingSave : public testing::Test
{
protected:
    void SetUp() override { SaveMachine(SmallMachine(), m_path); }

    void ExpectOldFileAfterFailure(std::size_t files = 1)
    {
        Machine changed = SmallMachine();
        changed.name = "Changed";
        EXPECT_NE(SaveError(changed, m_path).find("machine.json"), std::string::npos);
        EXPECT_EQ(m_folder.FileCount(), files);
    }

    void TearDown() override { EXPECT_EQ(ContentOf(m_path), FormatMachine(SmallMachine())); }

    TemporaryFolder m_folder;
    std::wstring m_path = m_folder.PathOf(L"machine.json");
};

TEST_F(FailingSave, ReadOnlyFileStays)
{
    ASSERT_TRUE(SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_READONLY));
    ExpectOldFileAfterFailure();
}

TEST_F(FailingSave, LockedFileStays)
{
    const HANDLE lock = CreateFileW(m_path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectOldFileAfterFailure();
    CloseHandle(lock);
}

TEST_F(FailingSave, FileStaysWhenNothingCanBeWrittenBesideIt)
{
    ASSERT_TRUE(CreateDirectoryW((m_path + L".new").c_str(), nullptr));
    ExpectOldFileAfterFailure(2);
}

TEST(MachineFile, MissingFolderIsAClearError)
{
    const TemporaryFolder folder;
    const std::string error = SaveError(SmallMachine(), folder.PathOf(L"none\\machine.json"));
    EXPECT_NE(error.find("cannot write"), std::string::npos) << error;
    EXPECT_NE(error.find("none\\machine.json"), std::string::npos) << error;
}
