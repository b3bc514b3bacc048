#pragma once

// Texts cross the host boundary as narrow strings in the ANSI code page of the thread; windows show wide ones. These
// two convert into a buffer; dialogs/data/HostText.h declares the same with a result of its own size.

// Both return the target, or null when a pointer is null or the text cannot be converted; the target then is empty.
wchar_t* ToWide(const char* narrow, wchar_t* target, int targetChars);
char* ToNarrow(const wchar_t* wide, char* target, int targetBytes);
