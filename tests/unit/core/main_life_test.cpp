// The main window's clock and its warning about the screen.
#include "core/main_life.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

class MainLifeTest : public testing::Test, protected test::World {
protected:
    MainLife life{context};
};

TEST_F(MainLifeTest, TheClockHasTwoDigitsInTheDateAndAsManyAsItNeedsInTheHour) {
    clock.now = {2011, 3, 7, 9, 5, 3};
    main.Timer1.Tick();
    EXPECT_EQ(main.KlokLabel.Caption, "07-03-2011 / 9:05:03");
}

TEST_F(MainLifeTest, AnotherScreenIsAnErrorThatStopsNobody) {
    platform.Screen.DotsPerInch = 95;
    main.Activate();
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].title, "Error");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Stop);
    EXPECT_EQ(platform.messages[0].buttons, MessageButtons::Ok);
    platform.Screen.DotsPerInch = 96;
    main.Activate();
    EXPECT_EQ(platform.messages.size(), 1U);
}

}  // namespace
}  // namespace coinlet
