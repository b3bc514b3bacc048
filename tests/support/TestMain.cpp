#include "tests/support/FailurePictures.h"
#include "tests/support/FaultReport.h"

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    EndOnFaults();
    // A test that ends the whole program must not take the names of those before it along.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&argc, argv);
    SaveFailurePictures();
    return RUN_ALL_TESTS();
}
