#include "tests/fuzz/OddTokens.h"

#include <iterator>
#include <vector>

namespace
{
constexpr const char* kOddTokens[] = {"0",
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
                                      "'name'"};

std::string Repeated(std::string_view text, std::size_t times)
{
    std::string result;
    for (; times > 0; --times)
        result += text;
    return result;
}

std::vector<std::string> AllOddTokens()
{
    std::vector<std::string> tokens(std::begin(kOddTokens), std::end(kOddTokens));
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

} // namespace

const std::string& OddToken(Random& random)
{
    static const std::vector<std::string> tokens = AllOddTokens();
    return random.OneIn(2000) ? VastToken(random) : random.Pick(tokens);
}
