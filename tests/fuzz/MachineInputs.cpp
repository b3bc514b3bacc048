#include "tests/fuzz/MachineInputs.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <type_traits>

#include "refhost/MachineFields.h"
#include "refhost/MachineText.h"
#include "tests/fuzz/ByteMutations.h"
#include "tests/refhost/SmallMachine.h"

using namespace refhost;

namespace
{

constexpr std::size_t kMachines = 200;
constexpr std::uint32_t kCodePages[] = {936, 936, 932, 949, 950, 1250, 1251, 1252, 1258};
const std::string kNames[] = {"",
                              "Fast",
                              "a b",
                              "\\n",
                              "\"q\"",
                              "\xC8\xAB",
                              "\xB4\xF2\xD3\xA1",
                              "\x80\xFF odd \xC8",
                              "\x01\x1F\x7F",
                              "\xE9",
                              "\xA0",
                              std::string(300, 'x')};
constexpr float kFloats[] = {0.0f,
                             -0.0f,
                             0.1f,
                             1.5f,
                             -2.25f,
                             3.0e8f,
                             1.0e-7f,
                             16777217.0f,
                             std::numeric_limits<float>::max(),
                             std::numeric_limits<float>::lowest(),
                             std::numeric_limits<float>::min(),
                             std::numeric_limits<float>::denorm_min()};

// Fills every field of a machine with a value that a file can hold.
class RandomFields
{
public:
    explicit RandomFields(Random& random) : m_random(random) {}

    template <class T>
    void operator()(const char*, T& value)
    {
        Fill(value);
    }

private:
    void Fill(std::string& name) { name = m_random.Pick(kNames); }
    void Fill(bool& value) { value = m_random.OneIn(2); }
    void Fill(float& value) { value = m_random.Pick(kFloats); }

    template <class T>
    std::enable_if_t<std::is_integral_v<T>> Fill(T& value)
    {
        value = static_cast<T>(m_random.OneIn(2) ? m_random.Below(9) : m_random.Next());
    }

    template <class T>
    std::enable_if_t<std::is_class_v<T>> Fill(T& record)
    {
        Describe(*this, record);
    }

    void Fill(std::vector<bool>& values) { values.assign(m_random.Below(3), m_random.OneIn(2)); }

    template <class T>
    void Fill(std::vector<T>& values)
    {
        values.resize(m_random.OneIn(3) ? 0 : m_random.Below(3));
        for (T& value : values)
            Fill(value);
    }

    template <class T, std::size_t N>
    void Fill(std::array<T, N>& values)
    {
        for (T& value : values)
            Fill(value);
    }

    Random& m_random;
};

std::string RandomMachineText(std::size_t seed)
{
    Random random(seed);
    Machine machine;
    RandomFields fields(random);
    Describe(fields, machine);
    machine.codePage = random.Pick(kCodePages);
    return FormatMachine(machine);
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (text.empty())
        throw std::runtime_error("cannot read " + path);
    return text;
}

std::size_t EndOfString(std::string_view text, std::size_t at)
{
    while (++at < text.size() && text[at] != '"')
        at += text[at] == '\\' ? 1 : 0;
    return std::min(at + 1, text.size());
}

// Strings, words and numbers, single marks, and the blanks between them.
std::vector<std::string_view> TokensOf(std::string_view text)
{
    const std::string_view marks = "{}[]:,\"";
    const std::string_view blanks = " \r\n\t";
    std::vector<std::string_view> tokens;
    for (std::size_t at = 0; at < text.size();)
    {
        std::size_t end = at + 1;
        if (text[at] == '"')
            end = EndOfString(text, at);
        else if (blanks.find(text[at]) != std::string_view::npos)
            end = std::min(text.find_first_not_of(blanks, at), text.size());
        else if (marks.find(text[at]) == std::string_view::npos)
            end = std::min(text.find_first_of("{}[]:,\" \r\n\t", at), text.size());
        tokens.push_back(text.substr(at, end - at));
        at = end;
    }
    return tokens;
}

bool IsBlank(std::string_view token)
{
    return token.find_first_not_of(" \r\n\t") == std::string_view::npos;
}

std::string Repeated(std::string_view text, std::size_t times)
{
    std::string result;
    for (; times > 0; --times)
        result += text;
    return result;
}

std::vector<std::string> OddTokens()
{
    std::vector<std::string> tokens;
    for (const char* token : {"0",
                              "1",
                              "-1",
                              "255",
                              "256",
                              "-128",
                              "-129",
                              "65535",
                              "65536",
                              "2147483647",
                              "2147483648",
                              "-2147483648",
                              "-2147483649",
                              "4294967295",
                              "4294967296",
                              "9223372036854775807",
                              "9223372036854775808",
                              "-9223372036854775808",
                              "-9223372036854775809",
                              "18446744073709551615",
                              "18446744073709551616",
                              "1e38",
                              "3.4028235e38",
                              "3.4028236e38",
                              "1e39",
                              "1e308",
                              "1e309",
                              "-1e999",
                              "1e-999",
                              "1e99999999999",
                              "0.1",
                              "-0.0",
                              "-0",
                              "00",
                              "1.",
                              ".5",
                              "+1",
                              "0x10",
                              "1E5",
                              "NaN",
                              "Infinity",
                              "true",
                              "false",
                              "null",
                              "{}",
                              "[]",
                              "\"\"",
                              "\"\\u0000\"",
                              "\"\\ud800\"",
                              "\"\\udc00\\ud800\"",
                              "\"\\ud83d\\uDCA9\"",
                              "\"\\uFFFF\"",
                              "\"\\x\"",
                              "\"\xC3\"",
                              "\"\xC0\x80\"",
                              "\"\xED\xA0\x80\"",
                              "\"\xF4\x90\x80\x80\"",
                              "\"\xE5\x85\xA8\"",
                              "\"\xEF\xBF\xBD\"",
                              "{\"bytes\": \"C8 AB\"}",
                              "{\"bytes\": \"C8AB80FF\"}",
                              "{\"bytes\": \"C8 A\"}",
                              "{\"bytes\": \"00\"}",
                              "{\"bytes\": \"\"}",
                              "{\"bytes\": \"c8\"}",
                              "{\"bytes\": 5}",
                              "{\"bytes\": \"41\", \"bytes\": \"42\"}",
                              "936",
                              "932",
                              "1252",
                              "65001",
                              "874",
                              "\"quorvane-machine\"",
                              "\"name\"",
                              "\"unknown\"",
                              ",",
                              ":",
                              "{",
                              "}",
                              "[",
                              "]",
                              "\"",
                              "// comment",
                              "/* comment */",
                              "\xEF\xBB\xBF",
                              "\xFF\xFE",
                              "'name'"})
        tokens.push_back(token);
    tokens.push_back(std::string(1, '\0'));
    tokens.push_back("\"" + std::string(5000, 'y') + "\"");
    tokens.push_back("\"" + Repeated("\xE5\x85\xA8", 100) + "\"");
    tokens.push_back(std::string(1000, '9'));
    for (const std::size_t depth : {10u, 40u, 1000u})
    {
        tokens.push_back(Repeated("[", depth) + Repeated("]", depth));
        tokens.push_back(Repeated("{\"name\":", depth) + "1" + Repeated("}", depth));
        tokens.push_back(Repeated("[", depth));
        tokens.push_back(Repeated("]", depth));
    }
    return tokens;
}

// Rarely: one of them is longer than all that a usual input has.
const std::string& VastToken(Random& random)
{
    static const std::string tokens[] = {Repeated("[", 100'000) + Repeated("]", 100'000),
                                         Repeated("{\"name\":[", 50'000),
                                         "\"" + Repeated("\xE5\x85\xA8", 50'000) + "\"",
                                         "[" + Repeated("[],", 30'000) + "{}]", std::string(100'000, '9')};
    return random.Pick(tokens);
}

const std::string& OddToken(Random& random)
{
    static const std::vector<std::string> tokens = OddTokens();
    return random.OneIn(2000) ? VastToken(random) : random.Pick(tokens);
}

bool IsNumber(std::string_view token)
{
    return token.front() == '-' || (token.front() >= '0' && token.front() <= '9');
}

// Mostly a value that can stand in its place: the file is a machine's still.
void ChangeNumber(std::vector<std::string_view>& tokens, Random& random)
{
    constexpr std::string_view numbers[] = {"0", "1", "2", "3", "7", "12", "100", "127"};
    for (int i = 0; i < 20; ++i)
        if (std::string_view& token = tokens[random.Below(tokens.size())]; IsNumber(token))
        {
            token = random.Pick(numbers);
            return;
        }
}

// A place that is no blank, most times.
std::size_t PlaceIn(const std::vector<std::string_view>& tokens, Random& random)
{
    std::size_t place = random.Below(tokens.size());
    for (int i = 0; i < 4 && IsBlank(tokens[place]); ++i)
        place = random.Below(tokens.size());
    return place;
}

std::string Joined(const std::vector<std::string_view>& tokens)
{
    std::string text;
    for (const std::string_view token : tokens)
        text += token;
    return text;
}

auto At(std::vector<std::string_view>& tokens, std::size_t place)
{
    return tokens.begin() + static_cast<std::ptrdiff_t>(place);
}

} // namespace

MachineInputs::MachineInputs(const std::string& sample) : m_sample(ReadFile(sample))
{
    m_texts.push_back(FormatMachine(SmallMachine()));
    for (std::size_t i = 1; i < kMachines; ++i)
        m_texts.push_back(RandomMachineText(i));
}

MachineInputs::Input MachineInputs::Text(Random& random) const
{
    const std::string& origin = Origin(random);
    Tokens tokens = TokensOf(origin);
    const bool isIntact = random.OneIn(20);
    std::size_t changes = isIntact ? 0 : 1 + random.Below(3);
    for (; changes > 0 && !tokens.empty() && !random.OneIn(4); --changes)
        MutateTokens(tokens, random);
    std::string text = Joined(tokens);
    for (; changes > 0; --changes)
        MutateBytes(text, Origin(random), random);
    return {std::move(text), isIntact};
}

// The shipped machine is many times as large as the others.
const std::string& MachineInputs::Origin(Random& random) const
{
    return random.OneIn(500) ? m_sample : random.Pick(m_texts);
}

void MachineInputs::MutateTokens(Tokens& tokens, Random& random) const
{
    if (random.OneIn(2))
        return ChangeNumber(tokens, random);
    const std::size_t place = PlaceIn(tokens, random);
    const std::size_t other = PlaceIn(tokens, random);
    const std::size_t end = std::clamp(other, place, std::min(place + 12, tokens.size()));
    switch (random.Below(9))
    {
    case 0:
        std::swap(tokens[place], tokens[other]);
        return;
    case 1:
        tokens[place] = tokens[other];
        return;
    case 2:
        tokens.erase(At(tokens, place));
        return;
    case 3:
        tokens.erase(At(tokens, place), At(tokens, end));
        return;
    case 4:
    {
        const Tokens copy(At(tokens, place), At(tokens, end));
        tokens.insert(At(tokens, other), copy.begin(), copy.end());
        return;
    }
    case 5:
        tokens.insert(At(tokens, place), OddToken(random));
        return;
    case 6:
    {
        const Tokens splice = TokensOf(random.Pick(m_texts));
        const std::size_t first = random.Below(splice.size());
        const std::size_t count = std::min(random.Below(30), splice.size() - first);
        tokens.insert(At(tokens, place), &splice[first], &splice[first] + count);
        return;
    }
    default:
        tokens[place] = OddToken(random);
    }
}
