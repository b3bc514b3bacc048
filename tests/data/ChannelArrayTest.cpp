#include "dialogs/data/ChannelArray.h"

#include <gtest/gtest.h>

namespace
{
using Channels = std::vector<IInkChannel*>;

constexpr std::size_t kRoom = 65536;

// Channels that are no objects: only their addresses count.
Channels SomeChannels(std::size_t count)
{
    Channels channels;
    for (std::size_t i = 1; i <= count; ++i)
        channels.push_back(reinterpret_cast<IInkChannel*>(8 * i));
    return channels;
}

// The array as the code of a compiler sees it that has so many fields before the three pointers of a vector.
class HostVector
{
public:
    HostVector(CChannelArray& array, std::size_t fieldsBefore)
        : m_pointers(reinterpret_cast<IInkChannel***>(array.AsVector()) + fieldsBefore)
    {
    }

    std::size_t Room() const { return static_cast<std::size_t>(m_pointers[2] - m_pointers[1]); }
    void Clear() { m_pointers[1] = m_pointers[0]; }
    void Append(const Channels& channels)
    {
        for (IInkChannel* channel : channels)
            *m_pointers[1]++ = channel;
    }

private:
    IInkChannel*** m_pointers;
};

class ChannelArray : public testing::TestWithParam<std::size_t>
{
protected:
    static constexpr std::size_t kAll = 2 * kRoom;

    CChannelArray m_array;
    HostVector m_vector{m_array, GetParam()};
};

TEST_P(ChannelArray, HasRoomForEveryChannel)
{
    EXPECT_EQ(m_vector.Room(), kRoom);
}

TEST_P(ChannelArray, IsEmptyUntilTheHostAppends)
{
    EXPECT_EQ(m_array.First(kAll), Channels());
}

TEST_P(ChannelArray, HoldsWhatTheHostAppended)
{
    for (const std::size_t count : {std::size_t{1}, std::size_t{12}, kRoom})
    {
        CChannelArray array;
        HostVector(array, GetParam()).Append(SomeChannels(count));
        EXPECT_EQ(array.First(kAll), SomeChannels(count));
    }
}

TEST_P(ChannelArray, HoldsWhatTheHostAppendedAfterClearing)
{
    m_vector.Clear();
    m_vector.Append(SomeChannels(3));
    EXPECT_EQ(m_array.First(kAll), SomeChannels(3));
}

TEST_P(ChannelArray, IsCutAfterTheFirst)
{
    m_vector.Append(SomeChannels(13));
    EXPECT_EQ(m_array.First(12), SomeChannels(12));
    EXPECT_EQ(m_array.First(0), Channels());
}

INSTANTIATE_TEST_SUITE_P(WithFieldsBefore, ChannelArray, testing::Values(0u, 1u));

// Its debugging walks a list that begins in the proxy, which must be empty.
TEST(ChannelArrayOfAHost, IsAnEmptyProxyToo)
{
    CChannelArray array;
    void** const proxy = *reinterpret_cast<void***>(array.AsVector());
    EXPECT_EQ(proxy[0], nullptr);
    EXPECT_EQ(proxy[1], nullptr);
}

TEST(ChannelArrayOfAHost, IsAStdVectorOfThisCompiler)
{
    CChannelArray array;
    Channels& vector = *array.AsVector();
    EXPECT_TRUE(vector.empty());
    EXPECT_EQ(vector.capacity(), kRoom);
    const Channels channels = SomeChannels(13);
    vector.insert(vector.end(), channels.begin(), channels.end());
    EXPECT_EQ(array.First(2 * kRoom), channels);
}
} // namespace
