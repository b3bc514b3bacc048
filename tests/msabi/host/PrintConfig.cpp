#include "tests/msabi/host/PrintConfig.h"

namespace
{
void Describe(TextBuffer& text, float value)
{
    text.Add(value);
}

void Describe(TextBuffer& text, int value)
{
    text.Add(static_cast<long long>(value));
}

template <class Value, unsigned Count>
void DescribeAll(TextBuffer& text, const Value (&values)[Count])
{
    for (Value value : values)
        Describe(text.Add(" "), value);
}
} // namespace

void PrintMode::SetXResolutionIndex(int index)
{
    Require(index >= 0 && index < 3, "there is no such resolution");
    xResolutionIndex = index;
}

void PrintMode::SetHeadDataMode(unsigned char dataMode, unsigned row)
{
    if (Require(row < kHeads, "the row is out of range"))
        headDataModes[row] = dataMode;
}

void PrintMode::SetResident(unsigned char isResident)
{
    Require(isResident <= 1, "resident is neither 0 nor 1");
    resident = isResident;
}

unsigned char PrintMode::GetHeadDataMode(unsigned row)
{
    return Require(row < kHeads, "the row is out of range") ? headDataModes[row] : static_cast<unsigned char>(255);
}

void PrintMode::SetDot(float (&dots)[kInkGroups], float value, unsigned group)
{
    if (Require(group < kInkGroups, "the group is out of range"))
        dots[group] = value;
}

void PrintMode::SetEdge(bool (&edges)[kInkGroups], bool enabled, unsigned group)
{
    if (Require(group < kInkGroups, "the group is out of range"))
        edges[group] = enabled;
}

float PrintMode::Dot(const float (&dots)[kInkGroups], unsigned group)
{
    return Require(group < kInkGroups, "the group is out of range") ? dots[group] : 0.0f;
}

bool PrintMode::Edge(const bool (&edges)[kInkGroups], unsigned group)
{
    return Require(group < kInkGroups, "the group is out of range") && edges[group];
}

void PrintMode::Describe(TextBuffer& text) const
{
    text.Add("mode ").Add(name.Text()).Add(": pass ").Add(static_cast<long long>(passCount));
    text.Add(", disabled ")
        .Add(static_cast<long long>(disabled))
        .Add(", resident ")
        .Add(static_cast<long long>(resident));
    text.Add(", resolution ").Add(static_cast<long long>(xResolutionIndex)).Add(", heads");
    DescribeAll(text, headDataModes);
    DescribeAll(text.Add(", small"), small);
    DescribeAll(text.Add(", medium"), medium);
    DescribeAll(text.Add(", large"), large);
    DescribeAll(text.Add(", front"), front);
    DescribeAll(text.Add(", back"), back);
    text.Add("\n");
}

PrintMode* PrintConfig::NewMode(const char* label)
{
    PrintMode* const mode = Make<PrintMode>(InterfaceId::PrintMode, label);
    mode->name.Set(label);
    modes.Append(mode);
    return mode;
}

bool ConfigList::AddConfig(IPrintConfig* source)
{
    const PrintConfig& from = *static_cast<PrintConfig*>(source);
    PrintConfig* const config = Make<PrintConfig>(InterfaceId::PrintConfig, "added configuration");
    config->name = from.name;
    config->xResolution = from.xResolution;
    config->yResolution = from.yResolution;
    config->colorCount = from.colorCount;
    config->dotBits = from.dotBits;
    config->enabled = from.enabled;
    items.Append(config);
    return true;
}
