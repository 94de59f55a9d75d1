// Quarters of a circle that is placed by sliders.

#include "unit/designers/arc_world.h"

namespace coinlet {
namespace {

class SegmentDrawingTest : public test::ArcWorld {
protected:
    SegmentDrawingTest() { Choose(2); }
    void ExpectLayer(double left, double top, double side) {
        EXPECT_EQ(form.Layer.Left(), left);
        EXPECT_EQ(form.Layer.Top(), top);
        EXPECT_EQ(form.Layer.Width(), side);
        EXPECT_EQ(form.Layer.Height(), side);
    }
};

TEST_F(SegmentDrawingTest, TheCircleStartsInTheMiddleWhateverTheSlidersSay) {
    ExpectLayer(150, 150, 200);
    EXPECT_TRUE(form.Layer.Visible);
    form.Segments.HScroll2[0].SetValue(10);
    form.Segments.HScroll2[1].SetValue(20);
    form.Segments.HScroll2[2].SetValue(333);
    ExpectLayer(10, 20, 333);
    EXPECT_EQ(form.Segments.ScrolLabel[0].Caption, "Left (10)");
    EXPECT_EQ(form.Segments.ScrolLabel[1].Caption, "Top (20)");
    EXPECT_EQ(form.Segments.ScrolLabel[2].Caption, "Radius (333)");
    Choose(0);
    EXPECT_FALSE(form.Layer.Visible);
    Choose(2);
    ExpectLayer(150, 150, 200);
    EXPECT_EQ(form.Segments.HScroll2[2].Value(), 333);
}

TEST_F(SegmentDrawingTest, TheCircleFollowsASliderWhileThatIsDragged) {
    form.Segments.HScroll2[0].UserDrags(10);  // none is let go
    ExpectLayer(10, 150, 200);
    form.Segments.HScroll2[1].UserDrags(20);
    ExpectLayer(10, 20, 200);
    form.Segments.HScroll2[2].UserDrags(333);
    ExpectLayer(10, 20, 333);
    EXPECT_EQ(form.Segments.ScrolLabel[0].Caption, "Left (10)");
    EXPECT_EQ(form.Segments.ScrolLabel[1].Caption, "Top (20)");
    EXPECT_EQ(form.Segments.ScrolLabel[2].Caption, "Radius (333)");
}

TEST_F(SegmentDrawingTest, SlidersHaveTheirRanges) {
    for (int i = 0; i < 3; ++i) {
        const ScrollBar& bar = form.Segments.HScroll2[i];
        EXPECT_EQ(bar.Min(), i == 2 ? 20 : 0);
        EXPECT_EQ(bar.Max(), i == 2 ? 500 : 300);
    }
    EXPECT_EQ(form.Segments.ScrolLabel[2].Caption, "Radius (200)");
}

// One pixel left of the circle: its centre would be (250, 250), the arc's is (249, 250).
TEST_F(SegmentDrawingTest, QuartersLieOnePixelLeftOfTheCircle) {
    const struct {
        int knop;
        ArcAngles angles;
        int onX, onY;
    } quarters[] = {{0, {1.57, 3.14}, 249 - 71, 250 - 71},
                    {1, {0, 1.57}, 249 + 71, 250 - 71},
                    {2, {3.14, 4.71}, 249 - 71, 250 + 71},
                    {3, {4.71, 0}, 249 + 71, 250 + 71}};
    for (const auto& quarter : quarters) {
        form.ResetKnop.Click();
        form.Segments.SegmentKnop[quarter.knop].Click();
        Surface expected = Blank();
        expected.Circle(249, 250, 100, black, quarter.angles);
        EXPECT_EQ(Seen(), expected.Image()) << quarter.knop;
        EXPECT_EQ(At(quarter.onX, quarter.onY), black);
        for (const auto& other : quarters) {
            if (other.knop == quarter.knop) continue;
            EXPECT_EQ(At(other.onX, other.onY), white);
        }
    }
}

TEST_F(SegmentDrawingTest, OddSizesGoToTheEvenHalf) {
    form.Segments.HScroll2[0].SetValue(30);
    form.Segments.HScroll2[1].SetValue(40);
    for (const auto& [diameter, radius] : {std::pair{21, 10}, {23, 12}, {500, 250}, {20, 10}}) {
        form.ResetKnop.Click();
        form.Layer.Move(30, 40, diameter, diameter);
        form.Segments.SegmentKnop[1].Click();
        Surface expected = Blank();
        expected.Circle(30 + radius - 1, 40 + radius, radius, black, ArcAngles{0, 1.57});
        EXPECT_EQ(Seen(), expected.Image()) << diameter;
    }
}

TEST_F(SegmentDrawingTest, AFlatCircleGivesAFlatArc) {
    form.Layer.Move(100, 100, 200, 50);
    form.Segments.SegmentKnop[3].Click();
    Surface expected = Blank();
    // 100 + 100 - 0.25 is 199.75: 200.
    expected.Circle(200, 200, 100, black, ArcAngles{4.71, 0}, 0.25);
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(SegmentDrawingTest, PenIsThatOfTheSlider) {
    form.HScroll1.SetValue(9);
    form.Segments.SegmentKnop[0].Click();
    EXPECT_EQ(Picture().DrawWidth, 9);
    EXPECT_EQ(At(249 - 71, 250 - 71), black);
    EXPECT_EQ(At(249 - 73, 250 - 73), black);
}

TEST_F(SegmentDrawingTest, WithoutACircleThereIsNoArc) {
    const Image blank = Seen();
    for (const double side : {0.0, -100.0}) {
        form.Layer.Move(100, 100, side, side);
        for (int i = 0; i < 4; ++i)
            form.Segments.SegmentKnop[i].Click();
        EXPECT_EQ(Seen(), blank);
    }
}

TEST_F(SegmentDrawingTest, ThePointerDoesNothingOnThePicture) {
    const Image before = Seen();
    Click(100, 100);
    Click(200, 100, rightButton);
    EXPECT_EQ(Seen(), before);
    ExpectLayer(150, 150, 200);
    EXPECT_EQ(form.CorLabel.Caption, "X : 200, Y : 100");
}

TEST_F(SegmentDrawingTest, DrawModeThatAnArcLeftInvertsTheQuarters) {
    Choose(0);
    Press(10, 10);  // and no more: the invert mode stays
    Choose(2);
    form.Segments.SegmentKnop[1].Click();
    EXPECT_EQ(At(249 + 71, 250 - 71), black);
    form.Segments.SegmentKnop[1].Click();
    EXPECT_EQ(At(249 + 71, 250 - 71), white);
}

}  // namespace
}  // namespace coinlet
