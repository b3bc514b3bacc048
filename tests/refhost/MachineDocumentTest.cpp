#include "refhost/program/MachineDocument.h"

#include <gtest/gtest.h>

#include "host/Quorvane.h"
#include "refhost/MachineFile.h"
#include "refhost/program/LanguageFolders.h"
#include "tests/machines/DetailedMachine.h"
#include "tests/support/FileContent.h"
#include "tests/support/TempFolder.h"

using namespace refhost;

namespace
{

void SetPasses(IHostData* data, int passes)
{
    data->GetConfigList()->GetAt(0)->GetMode(0)->SetPassCount(passes);
}

class MachineDocumentTest : public testing::Test
{
protected:
    MachineDocumentTest() { SaveMachine(DetailedMachine(), m_path); }

    int PassesInFile() const { return LoadMachine(m_path).configurations[0].modes[0].passCount; }

    TempFolder m_folder;
    std::wstring m_path = m_folder.PathOf(L"machine.json");
};

} // namespace

TEST_F(MachineDocumentTest, SavedParametersAreInTheFileAtOnce)
{
    CMachineDocument document(m_path);
    EXPECT_EQ(document.LastSave(), CMachineDocument::SaveState::NothingSaved);
    document.Edit([&](IHostData* data, IHostControl* control) {
        SetPasses(data, 16);
        EXPECT_EQ(PassesInFile(), 4);
        control->SaveParameters(2);
        EXPECT_EQ(PassesInFile(), 16);
    });
    EXPECT_EQ(document.LastSave(), CMachineDocument::SaveState::Saved);
}

TEST_F(MachineDocumentTest, CancelledEditIsGoneAtTheNextOne)
{
    CMachineDocument document(m_path);
    document.Edit([](IHostData* data, IHostControl*) { SetPasses(data, 16); });
    document.Edit([](IHostData* data, IHostControl* control) {
        EXPECT_EQ(data->GetConfigList()->GetAt(0)->GetMode(0)->GetPassCount(), 4);
        control->SaveParameters(3);
    });
    EXPECT_EQ(PassesInFile(), 4);
}

TEST_F(MachineDocumentTest, CustomEclosionsAreSavedAlone)
{
    CMachineDocument document(m_path);
    document.Edit([](IHostData* data, IHostControl* control) {
        SetPasses(data, 16);
        data->GetCustomEclosionSet()->GetEclosion(0)->SetRange(33);
        control->SaveCustomEclosionSet();
    });
    EXPECT_EQ(PassesInFile(), 4);
    EXPECT_EQ(LoadMachine(m_path).customEclosions.definitions[0].range, 33);
}

TEST_F(MachineDocumentTest, FailedSaveKeepsTheChangesForTheNextOne)
{
    CMachineDocument document(m_path);
    SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_READONLY);
    document.Edit([](IHostData* data, IHostControl* control) {
        SetPasses(data, 16);
        control->SaveParameters(2);
    });
    EXPECT_EQ(document.LastSave(), CMachineDocument::SaveState::Failed);
    EXPECT_NE(document.SaveError().find("machine.json"), std::string::npos);
    EXPECT_EQ(PassesInFile(), 4);

    SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    document.Edit([](IHostData*, IHostControl* control) { control->SaveParameters(2); });
    EXPECT_EQ(document.LastSave(), CMachineDocument::SaveState::Saved);
    EXPECT_EQ(PassesInFile(), 16);
}

TEST_F(MachineDocumentTest, RelativePathIsMadeWhole)
{
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    SetCurrentDirectoryW(m_folder.PathOf(L"").c_str());
    const CMachineDocument document(L"machine.json");
    SetCurrentDirectoryW(before);
    EXPECT_EQ(LoadMachine(document.Path()).name, "Small");
}

TEST_F(MachineDocumentTest, BrokenFileIsRefused)
{
    WriteBytes(m_path, "{");
    EXPECT_THROW(CMachineDocument document(m_path), CMachineFileError);
    EXPECT_EQ(ContentOf(m_path), "{");
}

TEST(LanguageFolders, EachFolderIsALanguage)
{
    const TempFolder folder;
    CreateDirectoryW(folder.PathOf(L"zh-CN").c_str(), nullptr);
    CreateDirectoryW(folder.PathOf(L"en").c_str(), nullptr);
    WriteBytes(folder.PathOf(L"readme.txt"), "no language");
    EXPECT_EQ(LanguagesIn(folder.PathOf(L"")), (std::vector<std::wstring>{L"en", L"zh-CN"}));
    EXPECT_TRUE(LanguagesIn(folder.PathOf(L"none")).empty());
}
