#include "refhost/MachineText.h"

#include <set>
#include <vector>

#include "refhost/JsonReader.h"
#include "refhost/JsonWriter.h"
#include "refhost/MachineFields.h"
#include "refhost/MachineFileError.h"
#include "refhost/NarrowText.h"

namespace refhost
{
namespace
{

constexpr const char* kFormat = "quorvane-machine";
constexpr std::uint32_t kVersion = 1;

// Of two members of one name the parser would quietly keep the last.
class DoubleMembers
{
public:
    bool operator()(int depth, Json::parse_event_t event, Json& parsed)
    {
        const auto level = static_cast<std::size_t>(depth);
        m_keys.resize(std::max(m_keys.size(), level + 2));
        if (event == Json::parse_event_t::object_start)
            m_keys[level + 1].clear();
        if (event == Json::parse_event_t::key && !m_keys[level].insert(parsed.get<std::string>()).second)
            throw MachineFileError("the value \"" + parsed.get<std::string>() + "\" is there twice in one object");
        return true;
    }

private:
    std::vector<std::set<std::string>> m_keys;
};

Json ParseJson(std::string_view text)
{
    try
    {
        return Json::parse(text, DoubleMembers());
    }
    catch (const Json::parse_error& error)
    {
        throw MachineFileError(error.what());
    }
}

// The first values of the file: they say that it is one of ours and how the rest is to be read.
struct Header
{
    std::string format = kFormat;
    std::uint32_t version = kVersion;
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
    if (header.format != kFormat)
        throw MachineFileError("format: this is no machine file");
    if (header.version != kVersion)
        throw MachineFileError("version: " + std::to_string(header.version) + " is not known, only " +
                               std::to_string(kVersion));
    if (!LocaleOfCodePage(header.codePage))
        throw MachineFileError("codePage: " + std::to_string(header.codePage) + " is no code page for names");
}

} // namespace

Machine ParseMachine(std::string_view text)
{
    constexpr std::uint32_t anyCodePage = 1252; // of the format's name, which is plain ASCII
    const Json json = ParseJson(text);
    Header header;
    JsonReader headerReader(json, std::string(), anyCodePage);
    Describe(headerReader, header);
    CheckHeader(header);

    Machine machine;
    machine.codePage = header.codePage;
    JsonReader reader(json, std::string(), header.codePage);
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
    JsonWriter writer(machine.codePage);
    Describe(writer, header);
    Describe(writer, copy);
    return FormatJson(writer.Object());
}

} // namespace refhost
