#pragma once

#include "dialogs/data/HostList.h"
#include "dialogs/data/HostText.h"
#include "host/IDataMode.h"
#include "host/IHeadLayout.h"
#include "host/IPrintConfig.h"
#include "host/IPrintMode.h"
#include "host/IXResolution.h"
#include "host/IXResolutionList.h"

// The print modes of a configuration, and what they can choose from.

template <>
struct HostItems<IPrintConfig>
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(IPrintConfig& config) { return config.GetModeCount(); }
    static IPrintMode* At(IPrintConfig& config, std::uint32_t index) { return config.GetMode(index); }
};

template <>
struct HostItems<IHeadLayout>
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(IHeadLayout& head) { return head.GetDataModeCount(); }
    static IDataMode* At(IHeadLayout& head, std::uint32_t index) { return head.GetDataMode(index); }
};

// The pass counts that the operator can choose from, in the order of their rows.
constexpr const wchar_t* PASS_COUNTS[] = {L"1", L"2", L"3", L"4", L"6", L"8", L"12", L"16"};

// Adds a mode and names it after the configuration and the count of its modes. Null where the host refuses.
IPrintMode* AddMode(IPrintConfig& config);

// Takes the mode back that was added last.
void RemoveLastMode(IPrintConfig& config);

void RemoveMode(IPrintConfig& config, const IPrintMode* mode);

// A print mode stores, for each head, the index of one of the head's data modes, or that it uses none.
constexpr std::uint8_t NO_DATA_MODE_VALUE = 255;

// The first data mode is never offered: "No" stands in its place, and a stored 0 means it too.
constexpr std::uint8_t FIRST_DATA_MODE_VALUE = 0;

// The first of the head's data modes whose name the predicate takes, by the value that a print mode stores for it;
// negative for none. A mode that a byte cannot name, 255 being taken, is passed over.
template <class IsName>
int FindDataMode(IHeadLayout& head, IsName isName)
{
    int found = -1;
    ForEach(&head, [&](IDataMode& mode, int index) {
        if (found < 0 && index < NO_DATA_MODE_VALUE && isName(HostTextForFormat(mode.GetName())))
            found = index;
    });
    return found;
}
