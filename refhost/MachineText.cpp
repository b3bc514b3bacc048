#include "refhost/MachineText.h"

#include <algorithm>
#include <array>
#include <set>
#include <sstream>

#include "refhost/Excerpt.h"
#include "refhost/JsonReader.h"
#include "refhost/JsonWriter.h"
#include "refhost/MachineFields.h"
#include "refhost/MachineFileError.h"
#include "refhost/NarrowText.h"

namespace refhost
{
namespace
{

constexpr const char* FORMAT = "quorvane-machine";
constexpr std::uint32_t VERSION = 1;

// What the parser would take and a machine file never holds, refused while it is read.
class CShapeGuard
{
public:
    void Check(int depth, Json::parse_event_t event, const Json& parsed)
    {
        const auto level = static_cast<std::size_t>(depth);
        // Walking the values of a deeper file would take more stack than there is.
        if (level >= DEEPEST)
            throw CMachineFileError("there are too many values inside one another");
        if (event == Json::parse_event_t::object_start)
            m_arrKeys[level + 1].clear();
        if (event == Json::parse_event_t::key)
            CheckKey(m_arrKeys[level], parsed.get<std::string>());
    }

private:
    static void CheckKey(std::set<std::string>& keys, const std::string& key)
    {
        // Of two members of one name the parser would quietly keep the last.
        if (!keys.insert(key).second)
            throw CMachineFileError("the value \"" + Excerpt(key, LONGEST_KEY) + "\" is there twice in one object");
        // It searches all members for each new one: a crowded object would take it hours.
        if (keys.size() > MOST_MEMBERS)
            throw CMachineFileError("one object has too many values");
    }

    static constexpr std::size_t DEEPEST = 32;
    static constexpr std::size_t MOST_MEMBERS = 256;
    static constexpr std::size_t LONGEST_KEY = 40;

    std::array<std::set<std::string>, DEEPEST + 1> m_arrKeys;
};

// "line 3, column 8" of the last character that was read, but for those that were read `ahead`.
std::string PlaceReached(std::istream& stream, std::string_view text, std::size_t ahead)
{
    const auto offset = static_cast<std::streamoff>(stream.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in));
    const auto read = static_cast<std::size_t>(std::max<std::streamoff>(offset, 0));
    const std::string_view before = text.substr(0, read - std::min(read, ahead));
    const auto lines = std::count(before.begin(), before.end(), '\n');
    return "line " + std::to_string(lines + 1) + ", column " + std::to_string(before.size() - before.rfind('\n') - 1);
}

Json ParseJson(std::string_view text)
{
    constexpr std::size_t LONGEST_REASON = 400; // the parser's reasons quote the file
    std::istringstream stream{std::string(text)};
    CShapeGuard guard;
    try
    {
        return Json::parse(stream, [&guard](int depth, Json::parse_event_t event, const Json& parsed) {
            guard.Check(depth, event, parsed);
            return true;
        });
    }
    catch (const Json::parse_error& error)
    {
        throw CMachineFileError(Excerpt(error.what(), LONGEST_REASON));
    }
    catch (const Json::out_of_range&)
    {
        throw CMachineFileError(PlaceReached(stream, text, 1) + ": the number is too large");
    }
    catch (const CMachineFileError& error)
    {
        throw CMachineFileError(PlaceReached(stream, text, 0) + ": " + error.what());
    }
}

// The first values of the file: they say that it is one of ours and how the rest is to be read.
struct Header
{
    std::string format = FORMAT;
    std::uint32_t version = VERSION;
    std::uint32_t codePage = 0;
};

template <class Fields>
void Describe(Fields& fields, Header& header)
{
    fields("format", header.format);
    fields("version", header.version);
    fields("codePage", header.codePage);
}

void CheckHeader(const Header& header)
{
    if (header.format != FORMAT)
        throw CMachineFileError("format: this is no machine file");
    if (header.version != VERSION)
        throw CMachineFileError("version: " + std::to_string(header.version) + " is not known, only " +
                                std::to_string(VERSION));
    if (!LocaleOfCodePage(header.codePage))
        throw CMachineFileError("codePage: " + std::to_string(header.codePage) + " is no code page for names");
}

} // namespace

Machine ParseMachine(std::string_view text)
{
    constexpr std::uint32_t ANY_CODE_PAGE = 1252; // of the format's name, which is plain ASCII
    const Json json = ParseJson(text);
    Header header;
    CJsonReader headerReader(json, std::string(), ANY_CODE_PAGE);
    Describe(headerReader, header);
    CheckHeader(header);

    Machine machine;
    machine.codePage = header.codePage;
    CJsonReader reader(json, std::string(), header.codePage);
    Describe(reader, header);
    Describe(reader, machine);
    reader.RefuseUnknownMembers();
    return machine;
}

std::string FormatMachine(const Machine& machine)
{
    Header header;
    header.codePage = machine.codePage;
    Machine copy = machine; // the list of fields is walked in the same way for reading
    CJsonWriter writer(machine.codePage);
    Describe(writer, header);
    Describe(writer, copy);
    return FormatJson(writer.Object());
}

} // namespace refhost
