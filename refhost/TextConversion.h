// The system's conversions of narrow text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace refhost
{

// Nothing when the bytes are no valid text of the code page.
std::optional<std::wstring> WideFromNarrow(std::string_view narrow, std::uint32_t codePage);

// Nothing when the text holds a character that the code page has not.
std::optional<std::string> NarrowFromWide(std::wstring_view wide, std::uint32_t codePage);

std::wstring WideFromUtf8(std::string_view utf8);
std::string Utf8FromWide(std::wstring_view wide);

} // namespace refhost
