#pragma once

#include <string>

// Some lists show a name whose width was mistaken. This is required: hosts and operators know these rows by their
// looks. Here the mistake is made without reading past the end of a text. A null text reads "(null)", as in a format.

// Every two bytes are one character, low byte first, up to the narrow terminator. An odd last byte stands alone.
std::wstring NarrowReadAsWide(const char* narrow);

// The bytes of the characters, low byte first, up to the first zero byte: of "720X600" the "7".
std::string WideReadAsNarrow(const wchar_t* wide);
