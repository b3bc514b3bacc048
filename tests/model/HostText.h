#pragma once

#include <optional>
#include <string>

// Host texts as editors show and take them, for a code page that is named, not the thread's.

std::wstring ToWide(const std::string& narrow, unsigned codePage);
std::string ToNarrow(const std::wstring& wide, unsigned codePage);

// A narrow text that is read as a wide one: two bytes a character.
std::wstring ReadAsWide(const std::string& narrow);
// A wide text that is read as a narrow one: its bytes up to the first zero byte.
std::string ReadAsNarrow(const std::wstring& wide);

// Without the blanks at both ends.
std::wstring Trimmed(const std::wstring& text);

// Decimal, with blanks and a sign; one beyond 32 bits is cut to the nearest. Nothing for any other text.
std::optional<int> ParseInteger(const std::wstring& text);
std::optional<float> ParseFloat(const std::wstring& text);
std::wstring FormatFloat(float value);

bool EqualsIgnoringCase(const std::wstring& left, const std::wstring& right);
