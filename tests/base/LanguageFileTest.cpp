#include "dialogs/base/LanguageFile.h"

#include "tests/base/LanguageCases.h"
#include "tests/fuzz/CurrentInput.h"
#include "tests/fuzz/IniGenerator.h"
#include "tests/fuzz/LanguageInputs.h"
#include "tests/fuzz/ReferenceLanguageText.h"
#include "tests/support/ImportHook.h"
#include "tests/support/RunLength.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf16.h"
#include "tests/support/WineVersion.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

namespace
{
std::wstring SystemText(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                        const std::wstring& defaultText)
{
    std::vector<wchar_t> buffer(1024, L'#');
    GetPrivateProfileStringW(section.c_str(), key.c_str(), defaultText.c_str(), buffer.data(), 1024, path.c_str());
    return buffer.data();
}

// The system's rules, and those of the library, are said a second time in the reference. With both, the library is held
// against the system's own call through every difference of the two.
IniRules SystemRules()
{
    return WineVersion() > 0 ? WineRules() : WindowsRules();
}

class ComparedFile
{
public:
    ComparedFile(const std::wstring& path, const std::string& bytes)
        : m_path(path), m_file(path), m_reference(bytes), m_systemReference(bytes, SystemRules())
    {
    }

    void Ask(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText) const
    {
        ASSERT_EQ(m_file.GetText(section, key, defaultText), m_reference.GetText(section, key, defaultText));
        ASSERT_EQ(SystemText(m_path, section, key, defaultText), m_systemReference.GetText(section, key, defaultText));
    }

private:
    std::wstring m_path;
    CLanguageFile m_file;
    ReferenceLanguageText m_reference;
    ReferenceLanguageText m_systemReference;
};

class LanguageFileCase : public testing::TestWithParam<LanguageCase>
{
protected:
    TempFolder m_folder;
};

TEST_P(LanguageFileCase, ReadsAsWindowsDoesAndTheSystemDiffersWhereItIsKnownTo)
{
    const LanguageCase& c = GetParam();
    const std::wstring path = m_folder.Write(L"case.ini", c.file);
    EXPECT_EQ(CLanguageFile(path).GetText(c.section, c.key, c.defaultText), c.expected);
    EXPECT_EQ(SystemText(path, c.section, c.key, c.defaultText), AnswerOf(WineVersion(), c));
}

INSTANTIATE_TEST_SUITE_P(Named, LanguageFileCase, testing::ValuesIn(LanguageCases()),
                         [](const auto& test) { return std::string(test.param.name); });

class GeneratedLanguageFile : public testing::TestWithParam<IniEncoding>
{
protected:
    void Compare(unsigned seed)
    {
        IniGenerator generator(seed);
        const std::string bytes = generator.File(GetParam());
        const std::wstring path = m_folder.Write(std::to_wstring(seed) + L".ini", bytes);
        const ComparedFile file(path, bytes);
        for (int i = 0; i < 12; ++i)
        {
            const std::wstring section = generator.QueryName();
            const std::wstring key = generator.QueryName();
            file.Ask(section, key, generator.Default());
            ASSERT_FALSE(HasFatalFailure()) << "seed " << seed;
        }
        DeleteFileW(path.c_str());
    }

    TempFolder m_folder;
};

TEST_P(GeneratedLanguageFile, ReadsAsTheRulesSay)
{
    const unsigned files = 500;
    const unsigned first = static_cast<unsigned>(GetParam()) * files;
    for (unsigned seed = first; seed < first + files && !HasFatalFailure(); ++seed)
        Compare(seed);
}

INSTANTIATE_TEST_SUITE_P(Encodings, GeneratedLanguageFile,
                         testing::Values(IniEncoding::Ansi, IniEncoding::Utf8, IniEncoding::Utf8WithMark,
                                         IniEncoding::Utf16WithMark, IniEncoding::Utf16HighByteFirst,
                                         IniEncoding::Utf16WithoutMark, IniEncoding::Junk));

// The system takes its arguments up to a NUL.
LanguageQuestion Askable(const LanguageQuestion& question)
{
    return {question.section.c_str(), question.key.c_str(), question.defaultText.c_str()};
}

class MutatedLanguageFile : public testing::TestWithParam<unsigned>
{
protected:
    void Compare(const std::string& bytes)
    {
        const std::wstring path = m_folder.Write(L"mutated.ini", bytes);
        const ComparedFile file(path, bytes);
        for (const LanguageQuestion& question : m_inputs.QuestionsFor(bytes))
        {
            const auto [section, key, defaultText] = Askable(question);
            ASSERT_NO_FATAL_FAILURE(file.Ask(section, key, defaultText));
        }
    }

    LanguageInputs m_inputs{"lang"};
    TempFolder m_folder;
};

TEST_P(MutatedLanguageFile, ReadsAsTheRulesSay)
{
    for (unsigned number = 0; number < 100; ++number)
    {
        Random random(std::uint64_t{GetParam()} << 32 | number);
        std::string bytes = m_inputs.File(random);
        // Of an odd last byte after a byte-order mark the system makes whatever lies behind it in memory.
        bytes.resize(bytes.size() / 2 * 2);
        CurrentInput() = {"MutatedLanguageFile", GetParam(), number, bytes};
        Compare(bytes);
        ASSERT_FALSE(HasFatalFailure()) << KeepCurrentInput();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MutatedLanguageFile, testing::Range(FirstSeed(), FirstSeed() + RunCount(5, 200)),
                         [](const auto& test) { return std::to_string(test.param); });

constexpr std::size_t kTooLarge = 1 << 20;
decltype(&std::malloc) allocate;

void* AllocateLittle(std::size_t size)
{
    return size < kTooLarge ? allocate(size) : nullptr;
}

class LanguageFileOnDisk : public testing::Test
{
protected:
    void ExpectBoth(const std::wstring& path, const std::wstring& expected) const
    {
        EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), expected);
        EXPECT_EQ(SystemText(path, L"S", L"k", L"DEF"), expected);
    }

    TempFolder m_folder;
};

TEST_F(LanguageFileOnDisk, ThatIsMissingGivesDefaults)
{
    ExpectBoth(m_folder.Path() + L"\\none.ini", L"DEF");
    ExpectBoth(m_folder.Path() + L"\\none\\none.ini", L"DEF");
    ExpectBoth(L"", L"DEF");
    EXPECT_EQ(CLanguageFile().GetText(L"S", L"k", L"DEF"), L"DEF");
}

TEST_F(LanguageFileOnDisk, ThatIsAFolderGivesDefaults)
{
    ExpectBoth(m_folder.Path(), L"DEF");
    ExpectBoth(m_folder.Path() + L"\\", L"DEF");
}

TEST_F(LanguageFileOnDisk, ThatIsLockedGivesDefaultsForTheRun)
{
    const std::wstring path = m_folder.Write(L"locked.ini", ValueLine("v"));
    HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectBoth(path, L"DEF");
    CloseHandle(lock);
    ExpectBoth(path, L"v");
}

TEST_F(LanguageFileOnDisk, ThatATranslatorHasOpenIsRead)
{
    const std::wstring path = m_folder.Write(L"open.ini", ValueLine("v"));
    HANDLE editor =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(editor, INVALID_HANDLE_VALUE);
    ExpectBoth(path, L"v");
    CloseHandle(editor);
}

TEST_F(LanguageFileOnDisk, ThatIsReadOnlyIsRead)
{
    const std::wstring path = m_folder.Write(L"readonly.ini", ValueLine("v"));
    ASSERT_TRUE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
    ExpectBoth(path, L"v");
}

TEST_F(LanguageFileOnDisk, IsReadByARelativePath)
{
    const std::wstring path = m_folder.Write(L"relative.ini", ValueLine("v"));
    wchar_t before[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, before);
    ASSERT_TRUE(SetCurrentDirectoryW(m_folder.Path().c_str()));
    ExpectBoth(L".\\relative.ini", L"v");
    SetCurrentDirectoryW(before);
}

TEST_F(LanguageFileOnDisk, WithAPathLongerThanAnyMayBeGivesDefaults)
{
    for (size_t length : {300u, 32767u, 40000u})
        ExpectBoth(m_folder.Path() + L"\\" + std::wstring(length, L'a') + L"\\Quorvane.ini", L"DEF");
}

TEST_F(LanguageFileOnDisk, IsReadByPathsOf259CharactersAtMost)
{
    const std::wstring folder = m_folder.Path() + L"\\" + std::wstring(240 - m_folder.Path().size(), L'a');
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + folder).c_str(), nullptr));
    for (size_t length : {258u, 259u, 260u, 300u})
    {
        const std::wstring path = folder + L"\\" + std::wstring(length - folder.size() - 1, L'b');
        WriteBytes(L"\\\\?\\" + path, ValueLine("v"));
        ExpectBoth(path, length < MAX_PATH ? L"v" : L"DEF");
        EXPECT_TRUE(DeleteFileW((L"\\\\?\\" + path).c_str()));
    }
    RemoveDirectoryW((L"\\\\?\\" + folder).c_str());
}

TEST_F(LanguageFileOnDisk, IsReadOnce)
{
    const std::wstring path = m_folder.Write(L"once.ini", ValueLine("v"));
    const CLanguageFile file(path);
    WriteBytes(path, ValueLine("changed"));
    EXPECT_EQ(file.GetText(L"S", L"k", L""), L"v");
    DeleteFileW(path.c_str());
    EXPECT_EQ(file.GetText(L"S", L"k", L""), L"v");
}

TEST_F(LanguageFileOnDisk, WithHalfACharacterAtItsEndLosesIt)
{
    const std::wstring path = m_folder.Write(L"odd.ini", Utf16(L"[S]\r\nk=v") + "x");
    EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), L"v");
}

TEST_F(LanguageFileOnDisk, ThatMemoryDoesNotHoldGivesDefaultsAndIsClosedAgain)
{
    const std::wstring path = m_folder.Write(L"large.ini", ValueLine("v") + std::string(kTooLarge, '\n'));
    {
        const ImportHook hook(GetModuleHandleW(nullptr), "malloc", reinterpret_cast<const void*>(&AllocateLittle));
        allocate = hook.Original<decltype(allocate)>();
        EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), L"DEF");
    }
    const HANDLE alone = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE) << "somebody has it open";
    CloseHandle(alone);
    EXPECT_EQ(CLanguageFile(path).GetText(L"S", L"k", L"DEF"), L"v");
}

} // namespace
