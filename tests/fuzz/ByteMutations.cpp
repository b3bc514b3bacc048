#include "tests/fuzz/ByteMutations.h"

#include <algorithm>

namespace
{
struct Range
{
    std::size_t at;
    std::size_t count;
};

// Mostly short, so that the rest of the file keeps its sense.
Range RangeIn(std::string_view bytes, Random& random)
{
    const std::size_t at = random.Below(bytes.size() + 1);
    const std::size_t longest = random.OneIn(4) ? bytes.size() - at : std::min<std::size_t>(bytes.size() - at, 8);
    return {at, random.Below(longest + 1)};
}

std::string_view PartOf(std::string_view bytes, Random& random)
{
    const Range range = RangeIn(bytes, random);
    return bytes.substr(range.at, range.count);
}

void FlipBit(std::string& bytes, Random& random)
{
    if (!bytes.empty())
        bytes[random.Below(bytes.size())] ^= static_cast<char>(1 << random.Below(8));
}

void SetByte(std::string& bytes, Random& random)
{
    if (!bytes.empty())
        bytes[random.Below(bytes.size())] = static_cast<char>(random.Below(256));
}
} // namespace

void MutateBytes(std::string& bytes, std::string_view other, Random& random)
{
    const Range range = RangeIn(bytes, random);
    switch (random.Below(8))
    {
    case 0:
        return FlipBit(bytes, random);
    case 1:
        return SetByte(bytes, random);
    case 2:
        bytes.erase(range.at, range.count);
        return;
    case 3:
        bytes.insert(range.at, std::string(PartOf(bytes, random)));
        return;
    case 4:
        bytes.replace(range.at, range.count, std::string(PartOf(other, random)));
        return;
    case 5:
        bytes.insert(range.at, 1 + random.Below(3), static_cast<char>(random.Below(256)));
        return;
    case 6:
        bytes.resize(range.at);
        return;
    default:
        bytes.resize(range.at);
        bytes.append(other.substr(std::min(range.at, other.size())));
    }
}
