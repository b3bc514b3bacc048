#include "tests/fuzz/MachineInputs.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "refhost/MachineFields.h"
#include "refhost/MachineText.h"
#include "tests/fuzz/ByteMutations.h"
#include "tests/fuzz/OddTokens.h"
#include "tests/machines/DetailedMachine.h"
#include "tests/support/FileContent.h"

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

template <class Tokens>
auto At(Tokens& tokens, std::size_t place)
{
    return tokens.begin() + static_cast<std::ptrdiff_t>(place);
}

// A few tokens from a place on, no more than there are.
std::size_t SpanAt(const std::vector<std::string_view>& tokens, std::size_t place, Random& random)
{
    return std::min(random.Below(30), tokens.size() - place);
}

std::vector<std::string_view> SliceAt(const std::vector<std::string_view>& tokens, std::size_t place, Random& random)
{
    return {At(tokens, place), At(tokens, place + SpanAt(tokens, place, random))};
}

void Insert(std::vector<std::string_view>& tokens, std::size_t place, const std::vector<std::string_view>& slice)
{
    tokens.insert(At(tokens, place), slice.begin(), slice.end());
}

} // namespace

MachineInputs::MachineInputs(const std::string& sample) : m_sample(ContentOf(sample))
{
    m_texts.push_back(FormatMachine(DetailedMachine()));
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
    switch (random.Below(9))
    {
    case 0:
        std::swap(tokens[place], tokens[PlaceIn(tokens, random)]);
        return;
    case 1:
        tokens[place] = tokens[PlaceIn(tokens, random)];
        return;
    case 2:
        tokens.erase(At(tokens, place));
        return;
    case 3:
        tokens.erase(At(tokens, place), At(tokens, place + SpanAt(tokens, place, random)));
        return;
    case 4:
        return Insert(tokens, PlaceIn(tokens, random), SliceAt(tokens, place, random));
    case 5:
        tokens.insert(At(tokens, place), OddToken(random));
        return;
    case 6:
    {
        const Tokens others = TokensOf(random.Pick(m_texts));
        return Insert(tokens, place, SliceAt(others, random.Below(others.size()), random));
    }
    default:
        tokens[place] = OddToken(random);
    }
}
