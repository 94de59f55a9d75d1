// What rides on the pointer, in a font of blocks: at 8 points a letter's cell is 4 pixels wide and 8 high.
#include "tools/gesture_engine.h"

#include "support/world.h"
#include "tools/text_tool.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

class GestureEngineTest : public testing::Test, protected World {
protected:
    GestureEngineTest() {
        main.Combo2.SetText("Block");
        main.Combo3.SetText("8");
        main.Text1.SetText("ab");
        gestures.placeText = [this](GesturePoint pointer) { text.Place(pointer); };
    }
    void Move(float x, float y) { main.Pic.MouseMove(0, 0, x, y); }

    TextTool text{context};
    GestureEngine gestures{context};
};

TEST_F(GestureEngineTest, TheTextRidesUpAndLeftOfThePointer) {
    main.PlaatsKnop.Click();
    // Two letters and a blank: 12 by 8 pixels, and 5 between them and the pointer.
    Move(100, 60);
    EXPECT_EQ(main.TextLabel.Left(), 83);
    EXPECT_EQ(main.TextLabel.Top(), 47);
    // It may leave the canvas.
    Move(3, 2);
    EXPECT_EQ(main.TextLabel.Left(), -14);
    EXPECT_EQ(main.TextLabel.Top(), -11);
}

TEST_F(GestureEngineTest, TheTextIsPlacedWhereItRides) {
    main.PlaatsKnop.Click();
    Move(100, 60);
    main.Pic.MouseUp(1, 0, 100, 60);
    // The last column of a cell and its last row have no ink.
    EXPECT_EQ(main.Pic.surface.Point(83, 47), black);
    EXPECT_EQ(main.Pic.surface.Point(82, 47), white);
    EXPECT_EQ(main.Pic.surface.Point(83, 46), white);
    EXPECT_EQ(main.Pic.surface.Point(89, 53), black);
    EXPECT_EQ(main.Pic.surface.Point(90, 53), white);
    EXPECT_EQ(main.Pic.surface.Point(89, 54), white);
}

TEST_F(GestureEngineTest, TheTextRidesAlsoWhileItIsHidden) {
    main.PlaatsKnop.Click();
    main.Pic.MouseUp(1, 0, 100, 60);
    ASSERT_FALSE(main.TextLabel.Visible);
    Move(200, 160);
    EXPECT_EQ(main.TextLabel.Left(), 183);
    EXPECT_EQ(main.TextLabel.Top(), 147);
}

}  // namespace
}  // namespace coinlet::test
