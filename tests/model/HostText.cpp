#include "tests/model/HostText.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <windows.h>

std::wstring Trimmed(const std::wstring& text)
{
    const auto isBlank = [](wchar_t c) { return std::iswspace(c) != 0; };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), text.rend(), isBlank).base();
    return first < last ? std::wstring(first, last) : std::wstring();
}

std::wstring ToWide(const std::string& narrow, unsigned codePage)
{
    std::wstring wide(narrow.size(), L'\0');
    const int size = static_cast<int>(narrow.size());
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, narrow.data(), size, wide.data(), size)));
    return wide;
}

std::string ToNarrow(const std::wstring& wide, unsigned codePage)
{
    std::string narrow(2 * wide.size(), '\0');
    narrow.resize(static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()),
                                                               narrow.data(), static_cast<int>(narrow.size()), nullptr,
                                                               nullptr)));
    return narrow;
}

std::wstring ReadAsWide(const std::string& narrow)
{
    std::wstring wide;
    for (std::size_t i = 0; i < narrow.size(); i += 2)
    {
        const unsigned low = static_cast<unsigned char>(narrow[i]);
        const unsigned high = i + 1 < narrow.size() ? static_cast<unsigned char>(narrow[i + 1]) : 0;
        wide += static_cast<wchar_t>(low | high << 8);
    }
    return wide;
}

std::string ReadAsNarrow(const std::wstring& wide)
{
    std::string narrow;
    for (wchar_t c : wide)
        for (unsigned byte : {c & 0xFFu, c >> 8 & 0xFFu})
        {
            if (byte == 0)
                return narrow;
            narrow += static_cast<char>(byte);
        }
    return narrow;
}

std::optional<int> ParseInteger(const std::wstring& text)
{
    const std::wstring number = Trimmed(text);
    const std::size_t sign = !number.empty() && (number[0] == L'-' || number[0] == L'+') ? 1 : 0;
    if (number.size() == sign || number.find_first_not_of(L"0123456789", sign) != std::wstring::npos)
        return std::nullopt;
    errno = 0;
    const long long value = std::wcstoll(number.c_str(), nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

std::optional<float> ParseFloat(const std::wstring& text)
{
    const std::wstring number = Trimmed(text);
    if (number.empty() || number.find_first_not_of(L"0123456789+-.eE") != std::wstring::npos)
        return std::nullopt;
    wchar_t* end = nullptr;
    const double value = std::wcstod(number.c_str(), &end);
    if (*end != L'\0')
        return std::nullopt;
    return static_cast<float>(value);
}

// Six significant digits; an exponent has three.
std::wstring FormatFloat(float value)
{
    wchar_t text[64]{};
    _snwprintf(text, 63, L"%.6g", static_cast<double>(value));
    return text;
}

bool EqualsIgnoringCase(const std::wstring& left, const std::wstring& right)
{
    return CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_EQUAL;
}
