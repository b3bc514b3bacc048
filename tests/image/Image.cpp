#include "tests/image/Image.h"

#include "tests/support/FileContent.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace
{
std::string SmallLetters(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return text;
}
} // namespace

Image::Image(const std::wstring& path) : m_bytes(ContentOf(path))
{
    if (Headers().Signature != IMAGE_NT_SIGNATURE || Headers().OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR_MAGIC)
        throw std::runtime_error("the file is no image of this architecture");
}

template <class T>
const T& Image::At(std::size_t offset) const
{
    if (offset > m_bytes.size() || m_bytes.size() - offset < sizeof(T))
        throw std::runtime_error("the image is cut off");
    return *reinterpret_cast<const T*>(m_bytes.data() + offset);
}

const IMAGE_NT_HEADERS& Image::Headers() const
{
    return At<IMAGE_NT_HEADERS>(static_cast<std::size_t>(At<IMAGE_DOS_HEADER>(0).e_lfanew));
}

std::vector<IMAGE_SECTION_HEADER> Image::Sections() const
{
    const IMAGE_SECTION_HEADER* const first = IMAGE_FIRST_SECTION(&Headers());
    return {first, first + Headers().FileHeader.NumberOfSections};
}

std::size_t Image::Offset(std::uint32_t address) const
{
    for (const IMAGE_SECTION_HEADER& section : Sections())
        if (address >= section.VirtualAddress && address - section.VirtualAddress < section.SizeOfRawData)
            return address - section.VirtualAddress + section.PointerToRawData;
    throw std::runtime_error("an address of the image lies in no section");
}

std::string Image::Text(std::uint32_t address) const
{
    return &AtAddress<char>(address);
}

const IMAGE_DATA_DIRECTORY& Image::Directory(unsigned index) const
{
    return Headers().OptionalHeader.DataDirectory[index];
}

std::vector<std::string> Image::Exports() const
{
    const auto& table = AtAddress<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress);
    std::vector<std::string> names;
    for (DWORD i = 0; i < table.NumberOfNames; ++i)
        names.push_back(Text(AtAddress<DWORD>(table.AddressOfNames + i * DWORD{sizeof(DWORD)})));
    return names;
}

std::uint32_t Image::ExportCount() const
{
    return AtAddress<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress).NumberOfFunctions;
}

std::vector<IMAGE_IMPORT_DESCRIPTOR> Image::ImportDescriptors() const
{
    std::vector<IMAGE_IMPORT_DESCRIPTOR> libraries;
    DWORD address = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress;
    for (; AtAddress<IMAGE_IMPORT_DESCRIPTOR>(address).Name; address += DWORD{sizeof(IMAGE_IMPORT_DESCRIPTOR)})
        libraries.push_back(AtAddress<IMAGE_IMPORT_DESCRIPTOR>(address));
    return libraries;
}

std::set<std::string> Image::ImportedFunctions(const IMAGE_IMPORT_DESCRIPTOR& library) const
{
    std::set<std::string> functions;
    for (DWORD address = library.OriginalFirstThunk;; address += DWORD{sizeof(IMAGE_THUNK_DATA)})
    {
        const auto entry = AtAddress<IMAGE_THUNK_DATA>(address).u1.AddressOfData;
        if (!entry)
            return functions;
        if (IMAGE_SNAP_BY_ORDINAL(entry))
            functions.insert("#" + std::to_string(IMAGE_ORDINAL(entry)));
        else
            functions.insert(Text(static_cast<DWORD>(entry + offsetof(IMAGE_IMPORT_BY_NAME, Name))));
    }
}

std::map<std::string, std::set<std::string>> Image::Imports() const
{
    std::map<std::string, std::set<std::string>> imports;
    for (const IMAGE_IMPORT_DESCRIPTOR& library : ImportDescriptors())
        imports[SmallLetters(Text(library.Name))].merge(ImportedFunctions(library));
    return imports;
}

std::size_t Image::RelocationCount() const
{
    std::size_t count = 0;
    const IMAGE_DATA_DIRECTORY& table = Directory(IMAGE_DIRECTORY_ENTRY_BASERELOC);
    for (DWORD done = 0; done < table.Size;)
    {
        const auto& block = AtAddress<IMAGE_BASE_RELOCATION>(table.VirtualAddress + done);
        for (DWORD at = sizeof block; at < block.SizeOfBlock; at += DWORD{sizeof(WORD)})
            count += AtAddress<WORD>(table.VirtualAddress + done + at) >> 12 != IMAGE_REL_BASED_ABSOLUTE;
        done += std::max<DWORD>(block.SizeOfBlock, sizeof block);
    }
    return count;
}

std::vector<std::uint32_t> Image::TimeStamps() const
{
    std::vector<std::uint32_t> stamps = {
        Headers().FileHeader.TimeDateStamp,
        AtAddress<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress).TimeDateStamp,
        AtAddress<IMAGE_RESOURCE_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_RESOURCE).VirtualAddress).TimeDateStamp};
    for (const IMAGE_IMPORT_DESCRIPTOR& library : ImportDescriptors())
        stamps.push_back(library.TimeDateStamp);
    return stamps;
}
