// Leaving the program: who is asked, and who is taken care of because he isn't.
#include "core/main_life.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

class LeavingTest : public ::testing::Test, protected test::World {
protected:
    LeavingTest() {
        life_.leavesUnasked = [this] {
            ++unasked;
            endedBefore = platform.Ended();
        };
        platform.ShowMain(main);
    }
    /// False if the program has ended.
    bool Leave() {
        return platform.Do([this] { main.FileExit.Click(); });
    }

    int unasked = 0;
    bool endedBefore = false;

private:
    MainLife life_{context};
};

TEST_F(LeavingTest, UnaskedWhereNothingIsKnownToBeUnsaved) {
    EXPECT_FALSE(Leave());
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(unasked, 1);
    EXPECT_FALSE(endedBefore);
}

TEST_F(LeavingTest, WhoIsAskedDecidesHimself) {
    session.DesignChanged = true;
    platform.answers = {Answer::No, Answer::Yes};
    EXPECT_TRUE(Leave());
    EXPECT_FALSE(Leave());
    EXPECT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(unasked, 0);
}

}  // namespace
}  // namespace coinlet
