#include "refhost/MachineText.h"

#include <gtest/gtest.h>

#include <limits>

#include "refhost/MachineFileError.h"
#include "tests/machines/DetailedMachine.h"

using namespace refhost;

namespace
{

std::string RefusalOf(const std::string& text)
{
    try
    {
        ParseMachine(text);
    }
    catch (const CMachineFileError& error)
    {
        return error.what();
    }
    return "was accepted";
}

void ExpectRefusal(const std::string& text, const std::string& message)
{
    const std::string refusal = RefusalOf(text);
    EXPECT_NE(refusal.find(message), std::string::npos) << refusal;
}

std::string Repeated(const std::string& text, std::size_t times)
{
    std::string result;
    for (; times > 0; --times)
        result += text;
    return result;
}

} // namespace

TEST(MachineText, EveryValueComesBack)
{
    const std::string text = FormatMachine(DetailedMachine());
    EXPECT_EQ(FormatMachine(ParseMachine(text)), text);

    const Machine machine = ParseMachine(text);
    EXPECT_EQ(machine.codePage, 936u);
    EXPECT_EQ(machine.configurations[0].modes[1].largeDotCompensation, (std::vector<float>{3.0e8f, 1.0e-7f}));
    EXPECT_EQ(machine.configurations[0].modes[1].frontCompensation, (std::vector<bool>{true, false}));
    EXPECT_EQ(machine.configurations[1].name, "\xC8\xAB");
    EXPECT_EQ(machine.factorySchemes[1].inkCut[31], 7);
    EXPECT_EQ(machine.factorySchemes[0].smallFormatOffset, 65535);
    EXPECT_EQ(machine.userSchemes[1].customEclosionId, 4000000000u);
    EXPECT_EQ(machine.paramTables[1].entries, (std::vector<std::int32_t>{1, 0, -1}));
    EXPECT_EQ(machine.customEclosions.definitions[0].modes[0].elements[1].height, 7);
}

TEST(MachineText, NamesAreWrittenAsReadableText)
{
    EXPECT_NE(FormatMachine(DetailedMachine()).find("\"name\": \"\xE5\x85\xA8\""), std::string::npos);
}

TEST(MachineText, FloatsAreWrittenShort)
{
    EXPECT_NE(FormatMachine(DetailedMachine()).find("\"smallDotCompensation\": [0.1, 1.5]"), std::string::npos);
}

TEST(MachineText, BytesThatAreNoTextComeBack)
{
    Machine machine = DetailedMachine();
    machine.configurations[0].name = "\x80\xFF odd \xC8";
    EXPECT_EQ(ParseMachine(FormatMachine(machine)).configurations[0].name, machine.configurations[0].name);
}

TEST(MachineText, ByteOrderMarkIsAccepted)
{
    EXPECT_EQ(ParseMachine("\xEF\xBB\xBF" + FormatMachine(DetailedMachine())).name, "Small");
}

TEST(MachineText, BrokenJsonIsRefusedWithItsLine)
{
    ExpectRefusal("{\n  \"format\": \"quorvane-machine\",\n  \"version\": ?\n}", "line 3");
    ExpectRefusal("", "line 1");
    ExpectRefusal(FormatMachine(DetailedMachine()).substr(0, 300), "parse error at line");
    ExpectRefusal(std::string("MZ\x90\0\3\0\0\0", 8), "line 1");
}

TEST(MachineText, ForeignJsonIsRefused)
{
    ExpectRefusal("{}", "format: is missing");
    ExpectRefusal("[1, 2]", "[1,2] is no object");
    ExpectRefusal(DetailedMachineFileWith("quorvane-machine", "something else"), "format: this is no machine file");
    ExpectRefusal(DetailedMachineFileWith("\"version\": 1", "\"version\": 2"), "version: 2 is not known");
    ExpectRefusal(DetailedMachineFileWith("\"codePage\": 936", "\"codePage\": 65001"), "codePage: 65001");
}

TEST(MachineText, ValuesOutOfRangeAreRefusedWithTheirPlace)
{
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": 70000"),
                  "configurations[0].xResolution: 70000 is no whole number from 0 to 65535");
    ExpectRefusal(DetailedMachineFileWith("\"passCount\": 8", "\"passCount\": -1"),
                  "configurations[0].modes[1].passCount: -1 is no whole number from 0 to 65535");
    ExpectRefusal(DetailedMachineFileWith("\"colorCount\": 4", "\"colorCount\": 256"), "from 0 to 255");
    ExpectRefusal(DetailedMachineFileWith("[1, 255, 0]", "[1, 300, 0]"),
                  "configurations[0].modes[1].headDataModes[1]: 300");
    ExpectRefusal(DetailedMachineFileWith("[1, 0, -1]", "[1, 0, 2147483648]"), "paramTables[1].entries[2]: 2147483648");
    ExpectRefusal(DetailedMachineFileWith("[1, 0, -1]", "[1, 0, 18446744073709551615]"), "paramTables[1].entries[2]");
    ExpectRefusal(DetailedMachineFileWith("[0.1, 1.5]", "[0.1, 1e39]"), "smallDotCompensation[1]");
    ExpectRefusal(DetailedMachineFileWith("\"range\": 200", "\"range\": 1.5"),
                  "customEclosions.definitions[0].range: 1.5");
}

TEST(MachineText, ValuesOfAnotherKindAreRefusedWithTheirPlace)
{
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": \"720\""),
                  "configurations[0].xResolution");
    ExpectRefusal(DetailedMachineFileWith("\"name\": \"Fast\"", "\"name\": 5"), "configurations[0].name: 5 is no text");
    ExpectRefusal(DetailedMachineFileWith("\"locked\": true", "\"locked\": 1"), "definitions[0].locked: 1 is neither");
    ExpectRefusal(DetailedMachineFileWith("[\"360 dpi\", \"720 dpi\"]", "{}"), "xResolutions: {} is no list");
    ExpectRefusal(DetailedMachineFileWith("{\"id\": 1, \"groups\": [100, 101]}", "null"),
                  "activeSetup: null is no object");
}

TEST(MachineText, MissingUnknownAndDoubleValuesAreRefused)
{
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720,", ""), "configurations[0].xResolution: is missing");
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": 720, \"zResolution\": 1"),
                  "configurations[0].zResolution: a machine file has no such value");
    ExpectRefusal(DetailedMachineFileWith("\"version\": 1", "\"version\": 1, \"\": 1"),
                  "\"\": a machine file has no such value");
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": 720, \"xResolution\": 720"),
                  "\"xResolution\" is there twice");
}

TEST(MachineText, ListsOfFixedLengthAreChecked)
{
    std::string text = FormatMachine(DetailedMachine());
    const std::size_t place = text.find("\"inkMultiple\": [10, ");
    ASSERT_NE(place, std::string::npos);
    text.erase(place + 16, 4);
    ExpectRefusal(text, "factorySchemes[0].inkMultiple: has 15 values, but 16 are needed");
}

TEST(MachineText, NamesThatCannotBeServedAreRefused)
{
    ExpectRefusal(DetailedMachineFileWith("\"name\": \"Fast\"", "\"name\": \"\xF0\x9F\x96\xA8\""),
                  "configurations[0].name: \"\xF0\x9F\x96\xA8\" cannot be written in code page 936");
    ExpectRefusal(DetailedMachineFileWith("\"name\": \"Fast\"", "\"name\": \"a\\u0000b\""), "zero character");
    ExpectRefusal(DetailedMachineFileWith("\"name\": \"Fast\"", "\"name\": {\"bytes\": \"C8 4\"}"),
                  "configurations[0].name: \"C8 4\" is no list of bytes");
}

TEST(MachineText, GreatestFloatsComeBack)
{
    Machine machine = DetailedMachine();
    const float greatest = std::numeric_limits<float>::max();
    machine.configurations[0].modes[1].smallDotCompensation = {greatest, -greatest};
    EXPECT_EQ(ParseMachine(FormatMachine(machine)).configurations[0].modes[1].smallDotCompensation,
              (std::vector<float>{greatest, -greatest}));
    ExpectRefusal(DetailedMachineFileWith("[0.1, 1.5]", "[0.1, 3.4028236e38]"),
                  "smallDotCompensation[1]: 3.4028236e+38 is no");
}

TEST(MachineText, NumbersBeyondAllMeasureAreRefusedWithTheirLine)
{
    ExpectRefusal("{\n  \"format\": 1e999\n}", "line 2, column 17: the number is too large");
    ExpectRefusal(DetailedMachineFileWith("[1, 0, -1]", "[1, 0, -1e400]"), ": the number is too large");
}

TEST(MachineText, ValuesTooDeepInOneAnotherAreRefused)
{
    const std::string message = ": there are too many values inside one another";
    constexpr std::size_t deep = 200'000;
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720",
                                          "\"xResolution\": " + Repeated("[", deep) + Repeated("]", deep)),
                  message);
    ExpectRefusal(Repeated("{\"name\":", deep), "line 1, column 255" + message);
    ExpectRefusal(Repeated("[", 32) + Repeated("]", 32), "is no object");
}

TEST(MachineText, CrowdedObjectsAreRefused)
{
    std::string members = "\"0\": 0";
    for (int i = 1; i < 256; ++i)
        members += ",\n\"" + std::to_string(i) + "\": 0";
    ExpectRefusal("{" + members + "}", "format: is missing");
    ExpectRefusal("{" + members + ",\n\"256\": 0}", "line 257, column 5: one object has too many values");
}

TEST(MachineText, DoubleValuesAreRefusedWithTheirLine)
{
    ExpectRefusal("{\n\"a\": 1,\n\"a\": 2}", "line 3, column 3: the value \"a\" is there twice");
}

TEST(MachineText, RefusalsQuoteLittleOfTheFile)
{
    const std::string text(100'000, 'x');
    const std::string quoted = "\"" + text + "\"";
    for (const std::string& broken :
         {"{" + quoted, "{" + quoted + ": ?}", "{" + quoted + ": 1, " + quoted + ": 2}",
          DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": 720, " + quoted + ": 1"),
          DetailedMachineFileWith("\"name\": \"Fast\"", "\"name\": {\"bytes\": " + quoted + "}"),
          DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": " + quoted)})
        EXPECT_LT(RefusalOf(broken).size(), 500u);
}

TEST(MachineText, RefusalsAreProperText)
{
    EXPECT_NE(RefusalOf("[\"\xC3(\"]").find("\xEF\xBF\xBD"), std::string::npos);
    ExpectRefusal(DetailedMachineFileWith("\"xResolution\": 720", "\"xResolution\": 720, \"a\\u0000b\": 1"),
                  "configurations[0].a b: a machine file has no such value here");
}
