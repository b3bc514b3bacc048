#include "tests/data/Stubs.h"

namespace
{
TEST(HostRun, KeepsTheHostOfTheLastRun)
{
    Stub<IHostData> data, nextData;
    Stub<IHostControl> control, nextControl;
    SetHost(data, control);
    EXPECT_EQ(&HostData(), &data);
    EXPECT_EQ(&HostControl(), &control);
    SetHost(nextData, nextControl);
    EXPECT_EQ(&HostData(), &nextData);
    EXPECT_EQ(&HostControl(), &nextControl);
}

TEST(HostRun, AsksTheHostNothing)
{
    Stub<IHostData> data;
    Stub<IHostControl> control;
    SetHost(data, control);
    EXPECT_TRUE(data.Made().empty());
    EXPECT_TRUE(control.Made().empty());
}
} // namespace
