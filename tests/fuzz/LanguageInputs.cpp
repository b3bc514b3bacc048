#include "tests/fuzz/LanguageInputs.h"

#include <algorithm>

#include "tests/fuzz/ByteMutations.h"
#include "tests/fuzz/IniGenerator.h"
#include "tests/fuzz/ReferenceLanguageText.h"
#include "tests/support/FileContent.h"
#include "tests/support/Utf16.h"

namespace
{
constexpr IniEncoding kEncodings[] = {IniEncoding::Ansi,
                                      IniEncoding::Utf8,
                                      IniEncoding::Utf8WithMark,
                                      IniEncoding::Utf16WithMark,
                                      IniEncoding::Utf16WithMark,
                                      IniEncoding::Utf16HighByteFirst,
                                      IniEncoding::Utf16WithoutMark,
                                      IniEncoding::Junk};

const std::wstring kOddities[] = {L"[",       L"]",      L"=",
                                  L";",       L"#",      L"\"",
                                  L"'",       L"\r",     L"\n",
                                  L"\r\n",    L"\n\r",   L"\x1A",
                                  L"\t",      L" ",      L"\v",
                                  L"\f",      L"\\n",    L"\\",
                                  L"[]",      L"==",     L"\"\"",
                                  L"[S]\r\n", L"k=",     L"\xFEFF",
                                  L"\xD800",  L"\xDC00", L"\xA0",
                                  L"\x85",    L"\x3000", L"\x2028",
                                  L"\xFFFF",  L"\x0130", L"[DLG_PRINT_MODE]\r\n",
                                  L"TITLE=",  L"OK",     std::wstring(1, L'\0')};

std::wstring TextOf(const std::string& utf16)
{
    std::wstring text;
    for (std::size_t i = 2; i + 1 < utf16.size(); i += 2)
        text +=
            static_cast<wchar_t>(static_cast<unsigned char>(utf16[i]) | static_cast<unsigned char>(utf16[i + 1]) << 8);
    return text;
}

std::vector<std::wstring> LinesOf(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (std::size_t at = 0; at < text.size();)
    {
        const std::size_t end = std::min(text.find(L'\n', at), text.size() - 1) + 1;
        lines.push_back(text.substr(at, end - at));
        at = end;
    }
    return lines;
}

// Around the length at which a value is cut.
std::wstring LongText(Random& random)
{
    return std::wstring(1015 + random.Below(20), random.OneIn(4) ? L' ' : L'x');
}

void MutateText(std::wstring& text, const std::wstring& line, Random& random)
{
    const std::size_t at = random.Below(text.size() + 1);
    switch (random.Below(6))
    {
    case 0:
        text.insert(at, LongText(random));
        return;
    case 1:
        text.insert(at, line);
        return;
    case 2:
        text.erase(at, random.Below(40));
        return;
    case 3:
        std::replace(text.begin(), text.end(), L'\n', random.Pick(kOddities)[0]);
        return;
    default:
        text.insert(at, random.Pick(kOddities));
    }
}

std::string Encoded(const std::wstring& text, Random& random)
{
    switch (random.Below(6))
    {
    case 0:
        return Utf16(text, true, true);
    case 1:
        return Utf16(text, false);
    case 2: // as a program writes that knows no other characters
        return std::string(text.begin(), text.end());
    default:
        return Utf16(text);
    }
}

std::wstring OtherCase(std::wstring name, Random& random)
{
    for (wchar_t& c : name)
        if (((c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z')) && random.OneIn(3))
            c ^= 0x20;
    return name;
}

std::uint64_t HashOf(const std::string& bytes)
{
    std::uint64_t hash = bytes.size();
    for (char c : bytes)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash;
}
} // namespace

LanguageInputs::LanguageInputs(const std::string& languages)
{
    for (const char* tag : {"en", "zh-CN"})
    {
        m_texts.push_back(TextOf(ContentOf(languages + "/" + tag + "/Quorvane.ini")));
        const std::vector<std::wstring> lines = LinesOf(m_texts.back());
        m_lines.insert(m_lines.end(), lines.begin(), lines.end());
    }
}

std::string LanguageInputs::File(Random& random) const
{
    std::string file = Origin(random);
    for (std::size_t changes = random.Below(4); changes > 0; --changes)
        MutateBytes(file, random.OneIn(4) ? Origin(random) : file, random);
    return file;
}

// Whole shipped files are rare: they take long and are changed in few places.
std::string LanguageInputs::Origin(Random& random) const
{
    if (random.OneIn(2))
        return IniGenerator(static_cast<unsigned>(random.Next())).File(random.Pick(kEncodings));
    return WholeOrPart(random);
}

std::string LanguageInputs::WholeOrPart(Random& random) const
{
    std::wstring text;
    if (random.OneIn(100))
        text = random.Pick(m_texts);
    else
        for (std::size_t lines = random.Below(12); lines > 0; --lines)
            text += random.OneIn(4) ? L"[DLG_PRINT_MODE]\r\n" : random.Pick(m_lines);
    for (std::size_t changes = random.Below(5); changes > 0; --changes)
        MutateText(text, random.Pick(m_lines), random);
    return Encoded(text, random);
}

std::vector<LanguageQuestion> LanguageInputs::QuestionsFor(const std::string& file) const
{
    Random random(HashOf(file));
    IniGenerator generator(static_cast<unsigned>(random.Next()));
    const auto keys = ReferenceLanguageText(file).Keys();
    std::vector<LanguageQuestion> questions;
    for (int i = 0; i < 3; ++i)
        questions.push_back({generator.QueryName(), generator.QueryName(), generator.Default()});
    for (int i = 0; i < 6 && !keys.empty(); ++i)
    {
        const auto& [section, key] = random.Pick(keys);
        questions.push_back({OtherCase(section, random), OtherCase(key, random), L"DEF"});
    }
    questions.push_back({L"DLG_PRINT_MODE", L"TITLE", L""});
    return questions;
}
