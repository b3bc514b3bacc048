#include "tests/host/RawTable.h"

#include "host/Quorvane.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

// A host object as another compiler may make it: results of 8 and 16 bits leave whatever was in the register above.
class ForeignObject
{
public:
    explicit ForeignObject(std::uint32_t result)
    {
        s_result = result;
        m_positions.fill(reinterpret_cast<void*>(&Answer));
    }

    template <typename Interface>
    Interface* As()
    {
        return reinterpret_cast<Interface*>(&m_table);
    }

private:
    static std::uintptr_t RAW_MEMBER_CALL Answer(void*) { return s_result; }

    static std::uint32_t s_result;
    std::array<void*, 80> m_positions{};
    void** m_table = m_positions.data();
};

std::uint32_t ForeignObject::s_result = 0;

constexpr std::uint32_t kJunk = 0xDEAD5A00u;

TEST(NarrowResults, EightBitsUnsigned)
{
    EXPECT_EQ(ForeignObject(kJunk | 0x84u).As<IPrintConfig>()->GetColorCount(), 0x84u);
}

TEST(NarrowResults, EightBitsSigned)
{
    EXPECT_EQ(ForeignObject(kJunk | 0xFFu).As<IPrintScheme>()->GetWave(), -1);
}

TEST(NarrowResults, SixteenBits)
{
    EXPECT_EQ(ForeignObject(0xDEAD02D0u).As<IPrintConfig>()->GetXResolution(), 720u);
}

TEST(NarrowResults, BooleanIsOneByte)
{
    EXPECT_FALSE(ForeignObject(kJunk).As<IPrintMode>()->GetDisabled());
    EXPECT_FALSE(ForeignObject(kJunk).As<ICustomEclosion>()->IsLocked());
    EXPECT_TRUE(ForeignObject(kJunk | 0x80u).As<ICustomEclosion>()->IsLocked());
}

TEST(NarrowResults, EnabledOfAConfigurationIsThirtyTwoBits)
{
    EXPECT_NE(ForeignObject(0x00010000u).As<IPrintConfig>()->GetEnabled(), 0);
}

} // namespace
