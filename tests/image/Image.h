#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

// A DLL of this program's architecture as it lies in its file, not as the system loads it.
class Image
{
public:
    // Throws std::runtime_error for a file that is no such image.
    explicit Image(const std::wstring& path);

    const IMAGE_NT_HEADERS& Headers() const;
    std::vector<IMAGE_SECTION_HEADER> Sections() const;
    std::size_t FileSize() const { return m_bytes.size(); }

    std::vector<std::string> Exports() const;
    // Those with a name and those with an ordinal only.
    std::uint32_t ExportCount() const;
    // From the library's name in small letters to its functions; one without a name is #ordinal.
    std::map<std::string, std::set<std::string>> Imports() const;
    // Of addresses; a filler is none.
    std::size_t RelocationCount() const;
    // Of the headers and of every table that has one.
    std::vector<std::uint32_t> TimeStamps() const;

private:
    template <class T>
    const T& At(std::size_t offset) const;
    template <class T>
    const T& AtAddress(std::uint32_t address) const
    {
        return At<T>(Offset(address));
    }
    std::size_t Offset(std::uint32_t address) const;
    std::string Text(std::uint32_t address) const;
    const IMAGE_DATA_DIRECTORY& Directory(unsigned index) const;
    std::vector<IMAGE_IMPORT_DESCRIPTOR> ImportDescriptors() const;
    std::set<std::string> ImportedFunctions(const IMAGE_IMPORT_DESCRIPTOR& library) const;

    std::string m_bytes;
};
