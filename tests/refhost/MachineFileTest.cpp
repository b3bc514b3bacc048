#include "refhost/MachineFile.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <windows.h>

#include "tests/machines/DetailedMachine.h"
#include "tests/support/FileContent.h"
#include "tests/support/TempFolder.h"

using namespace refhost;

namespace
{

std::ptrdiff_t FileCount(const TempFolder& folder)
{
    using Files = std::filesystem::directory_iterator;
    return std::distance(Files(folder.Path()), Files());
}

std::string SaveError(const Machine& machine, const std::wstring& path)
{
    try
    {
        SaveMachine(machine, path);
    }
    catch (const CMachineFileError& error)
    {
        return error.what();
    }
    return "";
}

} // namespace

TEST(MachineFile, RefusalNamesTheFileAndLeavesItUntouched)
{
    const TempFolder folder;
    const std::wstring path = folder.PathOf(L"machine.json");
    const std::string content = DetailedMachineFileWith("\"dotBits\": 2", "\"dotBits\": 300");
    WriteBytes(path, content);
    try
    {
        LoadMachine(path);
        FAIL() << "the file was accepted";
    }
    catch (const CMachineFileError& error)
    {
        EXPECT_NE(std::string(error.what()).find("machine.json: configurations[0].dotBits: 300"), std::string::npos)
            << error.what();
    }
    EXPECT_EQ(ContentOf(path), content);
    EXPECT_EQ(FileCount(folder), 1);
}

TEST(MachineFile, MissingFileIsRefused)
{
    const TempFolder folder;
    EXPECT_THROW(LoadMachine(folder.PathOf(L"none.json")), CMachineFileError);
    EXPECT_THROW(LoadMachine(folder.PathOf(L"none\\machine.json")), CMachineFileError);
}

TEST(MachineFile, SavedFileIsWholeAndAlone)
{
    const TempFolder folder;
    const std::wstring path = folder.PathOf(L"\x673A\x5668.json");
    SaveMachine(DetailedMachine(), path);
    Machine changed = DetailedMachine();
    changed.name = "Changed";
    SaveMachine(changed, path);
    EXPECT_EQ(ContentOf(path), FormatMachine(changed));
    EXPECT_EQ(LoadMachine(path).name, "Changed");
    EXPECT_EQ(FileCount(folder), 1);
}

TEST(MachineFile, UnfinishedSaveOfACrashIsHarmless)
{
    const TempFolder folder;
    const std::wstring path = folder.PathOf(L"machine.json");
    SaveMachine(DetailedMachine(), path);
    WriteBytes(path + L".new", "{\"format\": \"quorv");
    EXPECT_EQ(LoadMachine(path).name, "Small");
    SaveMachine(DetailedMachine(), path);
    EXPECT_EQ(FileCount(folder), 1);
}

class FailingSave : public testing::Test
{
protected:
    void SetUp() override { SaveMachine(DetailedMachine(), m_path); }

    void ExpectOldFileAfterFailure(std::ptrdiff_t files = 1)
    {
        Machine changed = DetailedMachine();
        changed.name = "Changed";
        EXPECT_NE(SaveError(changed, m_path).find("machine.json"), std::string::npos);
        EXPECT_EQ(FileCount(m_folder), files);
    }

    void TearDown() override { EXPECT_EQ(ContentOf(m_path), FormatMachine(DetailedMachine())); }

    TempFolder m_folder;
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
    const TempFolder folder;
    const std::string error = SaveError(DetailedMachine(), folder.PathOf(L"none\\machine.json"));
    EXPECT_NE(error.find("cannot write"), std::string::npos) << error;
    EXPECT_NE(error.find("none\\machine.json"), std::string::npos) << error;
}
