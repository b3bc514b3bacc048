#pragma once

#include <optional>
#include <string>

// Texts cross the host boundary as narrow strings in the ANSI code page of the thread; windows show wide ones. The code
// page is an argument so that others can be tried: no locale gives a thread UTF-8, but a process can have it.
// dialogs/data/HostText.h declares what the dialogs use.

// The system's name for the thread's ANSI code page.
constexpr unsigned THREAD_CODE_PAGE = 3;

// Into a buffer. Both return the target, or null when a pointer is null or the text cannot be converted; the target
// then is empty.
wchar_t* ToWide(const char* narrow, wchar_t* target, int targetChars, unsigned codePage = THREAD_CODE_PAGE);
char* ToNarrow(const wchar_t* wide, char* target, int targetBytes, unsigned codePage = THREAD_CODE_PAGE);

// With a result of its own size. Nothing when the source is null, too long or cannot be converted.
std::optional<std::wstring> WideTextOf(const char* narrow, unsigned codePage);
std::optional<std::string> NarrowTextOf(const wchar_t* wide, unsigned codePage);
