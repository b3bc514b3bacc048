#pragma once

#include <string>
#include <string_view>

// A folder of one test's own; it goes with all its files and empty folders when the test ends.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // Without a trailing backslash.
    const std::wstring& Path() const { return m_path; }
    std::wstring PathOf(const std::wstring& name) const { return m_path + L"\\" + name; }
    std::wstring Write(const std::wstring& name, std::string_view bytes) const;

private:
    std::wstring m_path;
};

void WriteBytes(const std::wstring& path, std::string_view bytes);
