// What a message shows of a file that may hold anything.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace refhost
{

// At most `longest` bytes of the text, and dots where there were more: proper UTF-8 without control characters.
std::string Excerpt(std::string_view text, std::size_t longest);

} // namespace refhost
