// Arcs by three clicks: what stays, and previews that leave no trace.

#include "unit/designers/arc_world.h"

#include <cmath>
#include <numbers>

namespace coinlet {
namespace {

using std::numbers::pi;

struct Place {
    float x, y;
};

class ArcDrawingTest : public test::ArcWorld {
protected:
    /// The direction of a place as seen from another one, by its own computation.
    static float Angle(Place centre, Place place) {
        const double angle = std::atan2(double{centre.y} - place.y, double{place.x} - centre.x);
        return static_cast<float>(angle > 0 ? angle : angle + 2 * pi);
    }
    static double Distance(Place centre, Place place) {
        return std::hypot(place.x - centre.x, place.y - centre.y);
    }

    /// A picture on which a preview, or with the copy pen a result, is drawn once.
    Image With(const Image& before, Place centre, Place pointer, const Place* start, int pen,
               int drawMode = invertPen) {
        Surface picture = Blank();
        picture.SetPicture(before);
        picture.DrawWidth = pen;
        picture.DrawMode = drawMode;
        picture.Line(centre.x, centre.y, pointer.x, pointer.y, black);
        if (start) {
            picture.Circle(centre.x, centre.y, Distance(centre, *start), black,
                           ArcAngles{Angle(centre, *start), Angle(centre, pointer)});
        }
        return picture.Image();
    }

    /// A whole gesture over noise; at each step the picture is the one before with the preview on it once.
    void ExpectExact(Place centre, Place start, const std::vector<Place>& way, int pen) {
        FillCanvasWithNoise();
        form.HScroll1.SetValue(pen);
        form.Arcs.ClearArcPoints();
        const Image before = Seen();
        Press(centre.x, centre.y);
        ASSERT_EQ(Seen(), before);
        for (const Place& place : way) {
            Move(place.x, place.y);
            ASSERT_EQ(Seen(), With(before, centre, place, nullptr, pen)) << place.x << ", " << place.y;
        }
        Move(start.x, start.y);
        Press(start.x, start.y);
        ASSERT_EQ(Seen(), before) << "the first radius stays wiped";
        for (const Place& place : way) {
            Move(place.x, place.y);
            ASSERT_EQ(Seen(), With(before, centre, place, &start, pen)) << place.x << ", " << place.y;
        }
        Press(way.back().x, way.back().y);
        ASSERT_EQ(Seen(), With(before, centre, way.back(), &start, pen, copyPen));
    }
};

const std::vector<Place> way{{260, 250}, {350, 250}, {250, 150}, {150, 250}, {250, 350}, {250, 250},
                             {251, 250}, {320, 180}, {180, 180}, {170, 333}, {333, 321}, {0, 0},
                             {-50, 600}, {499, 499}, {700, 20},  {349, 251}, {350, 249}};

TEST_F(ArcDrawingTest, PreviewsLeaveNoTraceWithAnyPen) {
    for (int pen = 1; pen <= 10; ++pen) {
        SCOPED_TRACE(pen);
        ExpectExact({250, 250}, {320, 200}, way, pen);
    }
}

TEST_F(ArcDrawingTest, PreviewsLeaveNoTraceFromAnyStart) {
    for (const Place& start : {Place{350, 250}, {250, 150}, {150, 250}, {250, 350}, {250, 250}, {251, 251}}) {
        SCOPED_TRACE(testing::Message() << start.x << ", " << start.y);
        ExpectExact({250, 250}, start, way, 1);
        ExpectExact({250, 250}, start, way, 4);
    }
}

TEST_F(ArcDrawingTest, PreviewsLeaveNoTraceWithTheCentreOutsideAndWithHugeCircles) {
    for (const int pen : {1, 7}) {
        ExpectExact({-30, 700}, {40, 450}, way, pen);
        ExpectExact({-4750, 250}, {250, 251}, way, pen);
        ExpectExact({250, 5250}, {249, 250}, way, pen);
        ExpectExact({3786, 3786}, {250, 250}, way, pen);
    }
}

TEST_F(ArcDrawingTest, ThreeClicksDrawAnArcAndARadiusToItsEnd) {
    Click(250, 250);
    Click(350, 250);
    Click(250, 100);
    // A quarter turn from the right to the top.
    EXPECT_EQ(At(350, 250), black);
    EXPECT_EQ(At(250, 150), black);
    EXPECT_EQ(At(321, 179), black);  // 100 at 45 degrees: 70.7
    EXPECT_EQ(At(179, 179), white);
    EXPECT_EQ(At(179, 321), white);
    EXPECT_EQ(At(321, 321), white);
    // The radius goes to the pointer, and so beyond the arc; the first one is gone.
    EXPECT_EQ(At(250, 101), black);
    EXPECT_EQ(At(300, 250), white);
}

TEST_F(ArcDrawingTest, StartAfterTheEndGoesThroughZero) {
    Click(250, 250);
    Click(250, 150);  // starts at the top
    Click(400, 250);  // ends on the right, a full turn
    EXPECT_EQ(At(179, 179), black);
    EXPECT_EQ(At(150, 250), black);
    EXPECT_EQ(At(250, 350), black);
    EXPECT_EQ(At(321, 321), black);
    EXPECT_EQ(At(321, 179), white);
    form.ResetKnop.Click();
    form.Arcs.ClearKnop.Click();
    Click(250, 250);
    Click(250, 350);  // from the bottom
    Click(250, 150);  // to the top, by way of the right
    EXPECT_EQ(At(350, 250), black);
    EXPECT_EQ(At(150, 250), white);
}

TEST_F(ArcDrawingTest, StartAndRadiusAreWhereThePointerWasSeenBeforeTheClick) {
    Press(250, 250);
    Move(310, 250);
    Press(250, 50);  // a jump that no move led to
    Move(250, 350);
    Press(490, 490);
    // The radius is 60, the arc begins on the right, and ends where the pointer was seen last.
    EXPECT_EQ(At(310, 250), black);
    EXPECT_EQ(At(250, 190), black);
    EXPECT_EQ(At(190, 250), black);
    EXPECT_EQ(At(250, 310), black);
    EXPECT_EQ(At(292, 292), white);
    EXPECT_EQ(At(250, 340), black);
    EXPECT_EQ(At(300, 300), white);
}

TEST_F(ArcDrawingTest, ClicksInOnePlaceAreAWholeCircle) {
    Press(250, 250);
    Move(310, 250);
    Press(310, 250);
    Press(310, 250);
    for (const Place& place : {Place{310, 250}, {250, 190}, {190, 250}, {250, 310}})
        EXPECT_EQ(At(static_cast<int>(place.x), static_cast<int>(place.y)), black);
}

TEST_F(ArcDrawingTest, ClicksWithoutAMoveHaveNoRadius) {
    form.HScroll1.SetValue(3);
    const Image before = Seen();
    Press(100, 100);
    Press(200, 100);
    EXPECT_EQ(Seen(), before);
    Press(300, 100);
    // The line goes to the second click; the circle is a dot.
    Surface expected = Blank();
    expected.DrawWidth = 3;
    expected.Line(100, 100, 200, 100, black);
    expected.Circle(100, 100, 0, black);
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(ArcDrawingTest, AnyButtonClicksAndNoneIsNeededToMove) {
    Press(250, 250, rightButton);
    Release(250, 250, rightButton);
    Move(350, 250, leftButton);
    Press(350, 250, middleButton);
    Move(250, 150);
    Press(250, 150, rightButton);
    EXPECT_EQ(At(321, 179), black);
}

TEST_F(ArcDrawingTest, AFinishedArcHoldsTheGestureUntilThePointsAreCleared) {
    Click(250, 250);
    Click(350, 250);
    Click(250, 100);
    const Image finished = Seen();
    Click(50, 50);
    Click(90, 50);
    Click(50, 90);
    EXPECT_EQ(Seen(), finished);
    form.Arcs.ClearKnop.Click();
    EXPECT_EQ(Seen(), finished);
    Click(50, 50);
    Click(90, 50);
    Click(50, 20);
    EXPECT_EQ(At(90, 50), black);
    EXPECT_EQ(At(82, 26), black);  // 32 and 24 away: 40
}

TEST_F(ArcDrawingTest, ClearingLeavesTheRubberBandAndTheDrawMode) {
    const Image before = Seen();
    Press(250, 250);
    Move(350, 200);
    const Image band = Seen();
    EXPECT_NE(band, before);
    form.Arcs.ClearKnop.Click();
    EXPECT_EQ(Seen(), band);
    EXPECT_EQ(Picture().DrawMode, invertPen);
    Move(100, 100);
    EXPECT_EQ(Seen(), band);
    // The next gesture wipes what it drew itself, and nothing else.
    Press(50, 50);
    Move(60, 90);
    EXPECT_EQ(Seen(), With(band, {50, 50}, {60, 90}, nullptr, 1));
}

TEST_F(ArcDrawingTest, DrawModeFollowsTheClicks) {
    EXPECT_EQ(Picture().DrawMode, copyPen);
    Click(250, 250);
    EXPECT_EQ(Picture().DrawMode, invertPen);
    Click(350, 250);
    EXPECT_EQ(Picture().DrawMode, invertPen);
    Click(250, 100);
    EXPECT_EQ(Picture().DrawMode, copyPen);
}

TEST_F(ArcDrawingTest, APenChangedOnTheWayLeavesWhatItCannotWipe) {
    const Image before = Seen();
    Press(250, 250);
    Move(350, 200);
    form.HScroll1.SetValue(6);
    Move(350, 300);  // the pen is that of the press
    EXPECT_EQ(Seen(), With(before, {250, 250}, {350, 300}, nullptr, 1));
    Press(350, 300);
    EXPECT_EQ(Seen(),
              With(With(before, {250, 250}, {350, 300}, nullptr, 1), {250, 250}, {350, 300}, nullptr, 6));
}

TEST_F(ArcDrawingTest, AGestureGoesOnAfterAVisitToAnotherMode) {
    FillCanvasWithNoise();
    const Image before = Seen();
    Press(250, 250);
    Move(350, 200);
    Choose(1);
    Choose(0);
    Move(100, 200);
    EXPECT_EQ(Seen(), With(before, {250, 250}, {100, 200}, nullptr, 1));
    // A triangle leaves the copy pen behind; the rubber band inverts all the same, and leaves it as it is.
    Choose(1);
    Press(10, 10);
    Move(60, 60, leftButton);
    Release(60, 60);
    Choose(0);
    Move(350, 250);
    EXPECT_EQ(Picture().DrawMode, copyPen);
    Press(350, 250);
    EXPECT_EQ(Picture().DrawMode, invertPen);
    EXPECT_EQ(At(300, 250), (before.Shared()->Row(250)[300] & 0xFF) * 65536 +
                                (before.Shared()->Row(250)[300] >> 8 & 0xFF) * 256 +
                                (before.Shared()->Row(250)[300] >> 16 & 0xFF));
}

// Going back to the original design takes the rubber band with it, but not the clicks.
TEST_F(ArcDrawingTest, AResetOnTheWayLeavesNoTraceOfTheRubberBand) {
    FillCanvasWithNoise();
    const Image before = Seen();
    Press(250, 250);
    Move(350, 200);
    form.ResetKnop.Click();
    EXPECT_EQ(Seen(), before);
    Move(100, 200);
    EXPECT_EQ(Seen(), With(before, {250, 250}, {100, 200}, nullptr, 1));
    Press(100, 200);
    Move(250, 120);
    form.ResetKnop.Click();
    const Place start{100, 200};
    Move(250, 130);
    EXPECT_EQ(Seen(), With(before, {250, 250}, {250, 130}, &start, 1));
}

}  // namespace
}  // namespace coinlet
