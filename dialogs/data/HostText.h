#pragma once

#include <cstddef>
#include <optional>
#include <string>

// Texts cross the host boundary as narrow strings in the ANSI code page of the thread; windows show wide ones.

// The system's conversions. Nothing when the source is null, too long or cannot be converted. Not defined in this
// folder, because they are the system's: the Windows ones stand in dialogs/base.
std::optional<std::wstring> WideText(const char* narrow);
std::optional<std::string> NarrowText(const wchar_t* wide);

// Of configurations, print modes and schemes, as the operator types them.
constexpr int MAX_NAME_CHARS = 60;

// A longer source would overflow the size of its target.
constexpr bool IsConvertibleLength(std::size_t length)
{
    return length < 0x40000000;
}

// A host's narrow text as it is shown; empty where there is none.
std::wstring HostText(const char* narrow);

// A host's name where a format needs one: the format's own word "(null)" stands for a missing one.
std::wstring HostTextForFormat(const char* narrow);

// Names a host object; null where the name cannot be converted.
template <class Named>
void SetHostName(Named& object, const wchar_t* name)
{
    const std::optional<std::string> narrow = NarrowText(name);
    object.SetName(narrow ? narrow->c_str() : nullptr);
}
