#pragma once

#include <string>
#include <string_view>

// What the report is written of: UTF-8, whatever bytes a program has printed.
std::string AsUtf8(const std::string& bytes);
std::string Utf8Of(const std::wstring& text);
std::string HtmlOf(std::string_view text);
std::string Base64Of(std::string_view bytes);

// As GoogleTest's filters match: * is any text, ? any character.
bool Matches(std::string_view text, std::string_view pattern);
