// The hourglass goes however the work ends.
#include "controls/hourglass.h"

#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(Hourglass, ShowsUntilTheWorkEnds) {
    test::TestPlatform platform;
    {
        const Hourglass hourglass(platform);
        EXPECT_EQ(platform.Screen.MousePointer, hourglassPointer);
    }
    EXPECT_EQ(platform.Screen.MousePointer, toolPointer);
}

TEST(Hourglass, GoesWhenTheProgramEndsInAnEvent) {
    test::TestPlatform platform;
    platform.Do([&] {
        const Hourglass hourglass(platform);
        platform.End();
    });
    EXPECT_EQ(platform.Screen.MousePointer, toolPointer);
}

}  // namespace
}  // namespace coinlet
