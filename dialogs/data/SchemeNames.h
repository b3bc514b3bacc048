#pragma once

#include <string>

class IPrintConfig;

// Names that the library makes for schemes. They are data of the host, not texts of a language.

// The name of a factory scheme that was just added, as required: of the configuration's wide name only the bytes before
// the first zero byte are left (of plain Latin text its first character), and the id of the scheme plus one follows.
// Operators know schemes by these names.
std::string NewSchemeName(const char* configName, int schemeId);

// The name of a copy in another configuration.
std::string CopiedSchemeName(IPrintConfig& config);

// The name that is proposed for a user scheme, from the language's word for one. It counts the user schemes of every
// configuration.
std::wstring ProposedSchemeName(const std::wstring& word);

// The row of a preset, from the language's word for one. The host's narrow name stands there as wide text, as required.
std::wstring PresetText(const char* name, const std::wstring& word);
