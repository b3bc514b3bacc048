// Between UTF-8, in which a machine file is written, and the narrow code pages in which a host serves its names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace refhost
{

// The locale that makes `codePage` the thread's ANSI code page, for SetThreadLocale; nothing for a code page that a
// machine cannot have.
std::optional<std::uint32_t> LocaleOfCodePage(std::uint32_t codePage);

// Nothing when the text holds a character that the code page has not.
std::optional<std::string> NarrowFromUtf8(std::string_view utf8, std::uint32_t codePage);

// Nothing when the bytes are no valid text of the code page.
std::optional<std::string> Utf8FromNarrow(std::string_view narrow, std::uint32_t codePage);

} // namespace refhost
