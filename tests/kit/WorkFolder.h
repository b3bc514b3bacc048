#pragma once

#include <string>

// Holds files for as long as they are needed; it goes with them.
class WorkFolder
{
public:
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const std::wstring& Path() const { return m_path; }
    std::wstring PathOf(const std::wstring& name) const { return m_path + L"\\" + name; }
    // The content of a file, which goes; empty for one that is not there.
    std::string Take(const std::wstring& name) const;

private:
    std::wstring m_path;
};
