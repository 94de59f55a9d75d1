// The box around what the user wants of a picture.
#include "libraries/drawn_box.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

class DrawnBoxTest : public testing::Test, protected World {
protected:
    void ExpectBox(double left, double top, double width, double height) const {
        EXPECT_EQ(box.Left(), left);
        EXPECT_EQ(box.Top(), top);
        EXPECT_EQ(box.Width(), width);
        EXPECT_EQ(box.Height(), height);
    }

    Shape& box = main.Layer;
};

TEST_F(DrawnBoxTest, BeginsAtThePressWithoutSize) {
    box.Move(1, 2, 3, 4);
    box.Visible = false;
    BeginBox(session, box, 30, 40);
    ExpectBox(30, 40, 0, 0);
    EXPECT_TRUE(box.Visible);
    EXPECT_EQ(session.StartX, 30);
    EXPECT_EQ(session.StartY, 40);
}

TEST_F(DrawnBoxTest, HoldsThePointerAndGrowsToTheRightAndDownwardsOnly) {
    BeginBox(session, box, 30, 40);
    StretchBox(session, box, 79, 59);
    ExpectBox(30, 40, 50, 20);
    StretchBox(session, box, 29, 59);
    ExpectBox(30, 40, 1, 20);
    StretchBox(session, box, 79, -5);
    ExpectBox(30, 40, 50, 1);
    StretchBox(session, box, 30, 40);
    ExpectBox(30, 40, 1, 1);
}

TEST_F(DrawnBoxTest, FollowsUnseenAsWell) {
    session.StartX = session.StartY = 5;
    box.Visible = false;
    StretchBox(session, box, 9, 14);
    ExpectBox(5, 5, 5, 10);
    EXPECT_FALSE(box.Visible);
}

}  // namespace
}  // namespace coinlet::test
