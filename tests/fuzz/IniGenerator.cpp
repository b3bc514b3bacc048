#include "tests/fuzz/IniGenerator.h"

#include "tests/support/Utf16.h"

namespace
{
const std::vector<std::wstring> kBlanks{L"",     L"",     L"",       L"",     L" ",   L"  ",     L"\t",   L"\v",  L"\f",
                                        L"\x1A", L"\xA0", L"\x3000", L"\x85", L"\x1", L"\xFEFF", L"\x1C", L"\x7F"};
const std::vector<std::wstring> kNames{L"S",   L"s",   L"Sec", L"sEC",        L"k",    L"K",    L"key",
                                       L"KEY", L"a b", L"",    L"IDC_STATIC", L"\xE9", L"\xC9", L"\x4E2D",
                                       L"[S]", L"a]",  L"[a",  L"\"k\"",      L";k",   L"a\""};
const std::vector<std::wstring> kLineEnds{L"\r\n", L"\r\n", L"\r\n", L"\n", L"\r", L"\r\r\n", L"\n\r", L"\n\n"};
const std::vector<std::wstring> kValues{L"",     L"v",       L"\"v\"", L"\" v \"", L"' v'", L"\"v'", L"\"",
                                        L"\"\"", L"\"'v'\"", L"a\\nb", L"v ;c",    L"a=b",  L"[z]"};
const std::vector<std::wstring> kDefaults{L"", L"D", L"D  ", L" D\t ", L"\"D\"", L"'D' ", L"   ", L"\\n"};

// In western code pages; whatever the system's is, it must read the bytes.
std::string Narrow(const std::wstring& text)
{
    std::string bytes;
    for (wchar_t c : text)
        bytes += c < 0x100 ? static_cast<char>(c) : '?';
    return bytes;
}

// Every unit for itself: what halves of a pair become is no proper text.
std::string Utf8(const std::wstring& text)
{
    std::string bytes;
    for (wchar_t c : text)
    {
        if (c >= 0x800)
            bytes += {static_cast<char>(0xE0 | c >> 12), static_cast<char>(0x80 | (c >> 6 & 0x3F))};
        else if (c >= 0x80)
            bytes += static_cast<char>(0xC0 | c >> 6);
        bytes += static_cast<char>(c >= 0x80 ? 0x80 | (c & 0x3F) : c);
    }
    return bytes;
}
} // namespace

std::string IniGenerator::File(IniEncoding encoding)
{
    const std::wstring text = Text();
    switch (encoding)
    {
    case IniEncoding::Ansi:
        return Narrow(text);
    case IniEncoding::Utf8:
        return Utf8(text);
    case IniEncoding::Utf8WithMark:
        return "\xEF\xBB\xBF" + Utf8(text);
    case IniEncoding::Utf16WithMark:
        return Utf16(text);
    case IniEncoding::Utf16HighByteFirst:
        return Utf16(text, true, true);
    case IniEncoding::Utf16WithoutMark:
        return Utf16(text, false);
    case IniEncoding::Junk:
        break;
    }
    return Junk();
}

std::wstring IniGenerator::QueryName()
{
    return Below(2) ? Pick(kNames) : Pick(kBlanks) + Pick(kNames) + Pick(kBlanks);
}

std::wstring IniGenerator::Default()
{
    return Below(10) ? Pick(kDefaults) : LongValue();
}

std::wstring IniGenerator::Text()
{
    std::wstring text;
    for (size_t lines = Below(14); lines > 0; --lines)
        text += Line() + Pick(kLineEnds);
    return Below(3) ? text : text + Line();
}

std::wstring IniGenerator::Line()
{
    switch (Below(10))
    {
    case 0:
    case 1:
        return Gap() + L"[" + Gap() + Pick(kNames) + Gap() + (Below(8) ? L"]" : L"") +
               (Below(6) ? Gap() : Pick(kNames));
    case 2:
        return Gap() + Pick(kNames) + Gap();
    case 3:
        return Gap() + L";" + Pick(kNames) + L"=" + Value();
    case 4:
        return Characters(20, 128);
    default:
        return Gap() + Pick(kNames) + Gap() + L"=" + Gap() + Value() + Gap();
    }
}

std::wstring IniGenerator::Gap()
{
    return Pick(kBlanks) + (Below(60) ? L"" : std::wstring(1, L'\0'));
}

std::wstring IniGenerator::Value()
{
    switch (Below(8))
    {
    case 0:
        return LongValue();
    case 1:
        return Characters(8, 0xD800);
    default:
        return Pick(kValues);
    }
}

std::wstring IniGenerator::LongValue()
{
    const size_t lengths[] = {1019, 1020, 1021, 1022, 1023, 1024, 1025, 1026, 1500};
    std::wstring value(lengths[Below(std::size(lengths))], L'x');
    value[value.size() - 1 - Below(4)] = L' ';
    value += L'y';
    const wchar_t quote = Below(2) ? L'"' : L'\'';
    return Below(2) ? value : quote + value + quote;
}

std::wstring IniGenerator::Characters(size_t limit, size_t characters)
{
    std::wstring text;
    for (size_t count = Below(limit); count > 0; --count)
        text += static_cast<wchar_t>(Below(characters));
    return text;
}

std::string IniGenerator::Junk()
{
    std::string bytes;
    for (size_t count = Below(200); count > 0; --count)
        bytes += static_cast<char>(Below(256));
    // Of an odd last byte after a byte-order mark the system makes whatever lies behind it in memory.
    return bytes.size() % 2 ? bytes + "x" : bytes;
}
