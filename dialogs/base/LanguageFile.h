#pragma once

#include "dialogs/base/LanguageText.h"

// A language file held in memory for one editor run. Reading a text through the system opens and reads the file at
// every call, and an editor asks for hundreds; so the file is read once, on construction, and never again.
//
// A path without any backslash or slash is taken from the current folder. A file that cannot be read (missing, locked,
// a folder) is an empty one.
class CLanguageFile : public CLanguageText
{
public:
    CLanguageFile() = default;
    explicit CLanguageFile(const std::wstring& path);
};
