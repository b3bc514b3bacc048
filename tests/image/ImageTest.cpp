// What the file Quorvane.dll promises to whoever loads it.
#include "tests/image/Image.h"
#include "tests/image/ImportList.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{
constexpr wchar_t kLibrary[] = L"Quorvane.dll";

class LibraryImage : public testing::Test
{
protected:
    const Image m_image{kLibrary};
};

// As an installer and the Explorer read them.
class VersionResource
{
public:
    VersionResource() : m_bytes(GetFileVersionInfoSizeW(kLibrary, nullptr))
    {
        GetFileVersionInfoW(kLibrary, 0, static_cast<DWORD>(m_bytes.size()), m_bytes.data());
    }

    const VS_FIXEDFILEINFO& Fixed() const { return *static_cast<const VS_FIXEDFILEINFO*>(Query(L"\\")); }
    std::wstring Text(const std::wstring& name) const
    {
        return static_cast<const wchar_t*>(Query(L"\\StringFileInfo\\040904B0\\" + name));
    }

private:
    const void* Query(const std::wstring& path) const
    {
        void* value = nullptr;
        UINT size = 0;
        if (!VerQueryValueW(m_bytes.data(), path.c_str(), &value, &size))
            throw std::runtime_error("the version resource lacks a value");
        return value;
    }

    std::vector<char> m_bytes;
};

constexpr WORD kVersion[] = {QUORVANE_VERSION_MAJOR, QUORVANE_VERSION_MINOR, QUORVANE_VERSION_PATCH, 0};

std::wstring VersionText()
{
    std::wstring text;
    for (const WORD part : kVersion)
        text += (text.empty() ? L"" : L".") + std::to_wstring(part);
    return text;
}

std::string Describe(const std::string& library, const std::set<std::string>& functions)
{
    std::string text;
    for (const std::string& function : functions)
        text += library + " " + function + "\n";
    return text;
}

// What the first has and the second lacks.
std::string Surplus(const Imports& some, const Imports& others)
{
    std::string text;
    for (const auto& [library, functions] : some)
    {
        const auto other = others.find(library);
        std::set<std::string> surplus = functions;
        if (other != others.end())
            for (const std::string& function : other->second)
                surplus.erase(function);
        text += Describe(library, surplus);
    }
    return text;
}
} // namespace

TEST_F(LibraryImage, ExportsItsTwoFunctionsUndecoratedAndNothingElse)
{
    EXPECT_EQ(m_image.Exports(), (std::vector<std::string>{"NewInterface", "ReleaseInterface"}));
    EXPECT_EQ(m_image.ExportCount(), 2u);
}

TEST_F(LibraryImage, ImportsOnlyWhatTheListAllows)
{
    EXPECT_EQ(Surplus(m_image.Imports(), AllowedImports()), "")
        << "Windows 7 must have it; then it goes into tests/image/windows7-imports.txt";
}

TEST_F(LibraryImage, ImportsWhatTheListSaysItDoes)
{
    EXPECT_EQ(Surplus(NeededImports(), m_image.Imports()), "") << "take it out of tests/image/windows7-imports.txt";
}

TEST_F(LibraryImage, MayBeLoadedAnywhere)
{
    EXPECT_TRUE(m_image.Headers().OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
    EXPECT_FALSE(m_image.Headers().FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED);
    EXPECT_GT(m_image.RelocationCount(), 100u);
}

#ifdef _WIN64
TEST_F(LibraryImage, MayBeLoadedAtHighAddresses)
{
    EXPECT_TRUE(m_image.Headers().OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA);
}
#endif

TEST_F(LibraryImage, ForbidsToExecuteData)
{
    EXPECT_TRUE(m_image.Headers().OptionalHeader.DllCharacteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
}

TEST_F(LibraryImage, HasNoSectionThatIsWritableAndExecutable)
{
    constexpr DWORD both = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    const std::vector<IMAGE_SECTION_HEADER> sections = m_image.Sections();
    EXPECT_GT(sections.size(), 2u);
    for (const IMAGE_SECTION_HEADER& section : sections)
        EXPECT_NE(section.Characteristics & both, both) << std::string(reinterpret_cast<const char*>(section.Name), 8);
}

TEST_F(LibraryImage, AsksForNoWindowsNewerThanSeven)
{
    const IMAGE_OPTIONAL_HEADER& header = m_image.Headers().OptionalHeader;
    EXPECT_LE(MAKELONG(header.MinorSubsystemVersion, header.MajorSubsystemVersion), MAKELONG(1, 6));
    EXPECT_LE(MAKELONG(header.MinorOperatingSystemVersion, header.MajorOperatingSystemVersion), MAKELONG(1, 6));
}

TEST_F(LibraryImage, HoldsNoTimeStamp)
{
    for (const std::uint32_t stamp : m_image.TimeStamps())
        EXPECT_EQ(stamp, 0u);
}

TEST_F(LibraryImage, IsStripped)
{
    EXPECT_EQ(m_image.Headers().FileHeader.NumberOfSymbols, 0u);
    EXPECT_EQ(m_image.Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_DEBUG].Size, 0u);
}

TEST_F(LibraryImage, TakesAtMost600KiB)
{
    EXPECT_LE(m_image.FileSize(), 600u * 1024);
}

TEST(LibraryVersion, IsTheProjectsVersion)
{
    const VersionResource version;
    const VS_FIXEDFILEINFO& fixed = version.Fixed();
    const DWORD high = MAKELONG(kVersion[1], kVersion[0]);
    const DWORD low = MAKELONG(kVersion[3], kVersion[2]);
    EXPECT_EQ(fixed.dwSignature, VS_FFI_SIGNATURE);
    EXPECT_EQ(fixed.dwFileVersionMS, high);
    EXPECT_EQ(fixed.dwFileVersionLS, low);
    EXPECT_EQ(fixed.dwProductVersionMS, high);
    EXPECT_EQ(fixed.dwProductVersionLS, low);
}

TEST(LibraryVersion, IsTheSameInWords)
{
    const VersionResource version;
    EXPECT_EQ(version.Text(L"FileVersion"), VersionText());
    EXPECT_EQ(version.Text(L"ProductVersion"), VersionText());
}

TEST(LibraryVersion, NamesItsMakers)
{
    EXPECT_EQ(VersionResource().Text(L"CompanyName"), L"The Quorvane maintainers");
}

TEST(LibraryVersion, CallsTheFileByItsName)
{
    EXPECT_EQ(VersionResource().Text(L"OriginalFilename"), kLibrary);
}
