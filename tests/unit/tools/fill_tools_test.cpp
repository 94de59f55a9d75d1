// What a fill shows, and when.
#include "tools/fill_tools.h"

#include "support/watching_screen.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

class FillToolTest : public testing::Test, protected World {};

TEST_F(FillToolTest, WhatIsFilledIsShownAtOnce) {
    const Surface& canvas = main.Pic.surface;
    Colour shown = black;
    const WatchingScreen screen(main.Pic.surface, [&](int) { shown = canvas.Point(499, 499); });
    main.ColorLabel.BackColor = RGB(10, 20, 30);
    FillTool(context).press({.x = 5, .y = 5});
    EXPECT_EQ(shown, RGB(10, 20, 30));
}

}  // namespace
}  // namespace coinlet::test
