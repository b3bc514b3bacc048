#pragma once

#include <string>

// The environment variables that have a test program save what the screen shows when a test first fails: the folder for
// the pictures, and how many there may be.
constexpr wchar_t kPictureFolder[] = L"QUORVANE_PICTURE_FOLDER";
constexpr wchar_t kPictureLimit[] = L"QUORVANE_PICTURE_LIMIT";

// Before the tests run. Does nothing where the environment names no folder.
void SaveFailurePictures();

// The file of a test, by its full name.
inline std::wstring PictureName(const std::string& test)
{
    std::wstring name(test.begin(), test.end());
    for (wchar_t& c : name)
        c = c == L'/' ? L'-' : c;
    return name + L".png";
}
