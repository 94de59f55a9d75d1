// What a fill shows, and when.
#include "tools/fill_tools.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

class FillToolTest : public testing::Test, protected World {};

TEST_F(FillToolTest, WhatIsFilledIsShownAtOnce) {
    struct Screen : SurfaceScreen {
        void SurfaceRefreshed(const Surface& surface) override { shown = surface.Point(499, 499); }
        Colour shown = black;
    } screen;
    Surface& canvas = main.Pic.surface;
    canvas.SetScreen(&screen);
    main.ColorLabel.BackColor = RGB(10, 20, 30);
    FillTool(context).press({.x = 5, .y = 5});
    EXPECT_EQ(screen.shown, RGB(10, 20, 30));
    canvas.SetScreen(nullptr);
}

}  // namespace
}  // namespace coinlet::test
