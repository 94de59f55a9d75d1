// Curves and lines through points that the user sets and drags.

#include "surface/device.h"
#include "unit/designers/arc_world.h"

#include <cmath>

namespace coinlet {
namespace {

constexpr Colour red = RGB(255, 0, 0);

struct Place {
    int x, y;
};

class CurveDrawingTest : public test::ArcWorld {
protected:
    CurveDrawingTest() {
        Choose(3);
        // Numbers would lie on the lines that are to be seen here. The first point alone has its number all
        // the same, until there is a second one.
        panel.Check3.SetValue(true);
    }
    void Set(const std::vector<Place>& places) {
        for (const Place& place : places)
            Click(static_cast<float>(place.x), static_cast<float>(place.y));
    }
    void Drag(Place from, Place to) {
        Press(static_cast<float>(from.x), static_cast<float>(from.y));
        Move(static_cast<float>(to.x), static_cast<float>(to.y), leftButton);
        Release(static_cast<float>(to.x), static_cast<float>(to.y));
    }
    static double Factorial(int n) { return n <= 1 ? 1.0 : n * Factorial(n - 1); }
    static double Weight(int i, int n, double t) {
        return Factorial(n) / (Factorial(i) * Factorial(n - i)) * std::pow(t, i) * std::pow(1 - t, n - i);
    }
    enum Parts { curveAlone, withLines, withMarksAndLines };
    /// The curve from scratch.
    void DrawSlowCurve(Surface& picture, const std::vector<Place>& places, Parts parts) {
        if (parts == withMarksAndLines) {
            for (const Place& place : places)
                picture.Circle(place.x, place.y, 2, red);
        }
        if (parts != curveAlone) {
            picture.DrawStyle = dottedLine;
            for (std::size_t i = 0; i + 1 < places.size(); ++i)
                picture.Line(places[i].x, places[i].y, places[i + 1].x, places[i + 1].y, black);
            picture.DrawStyle = solidLine;
        }
        const int degree = static_cast<int>(places.size()) - 1;
        float lastX = static_cast<float>(places[0].x), lastY = static_cast<float>(places[0].y);
        picture.PSet(lastX, lastY, black);
        for (double t = 0; t <= 1; t += 0.01) {
            double x = 0, y = 0;
            for (int i = 0; i <= degree; ++i) {
                x += Weight(i, degree, t) * places[static_cast<std::size_t>(i)].x;
                y += Weight(i, degree, t) * places[static_cast<std::size_t>(i)].y;
            }
            const auto nextX = static_cast<float>(x), nextY = static_cast<float>(y);
            picture.Line(lastX, lastY, nextX, nextY, black);
            lastX = nextX, lastY = nextY;
        }
        picture.Line(lastX, lastY, places.back().x, places.back().y, red);
    }

    CurveDrawing& panel = form.Curves;
};

TEST_F(CurveDrawingTest, OnePointIsAMarkAndNothingElse) {
    Set({{100, 120}});
    Surface expected = Blank();
    expected.Circle(100, 120, 2, red);
    expected.Print("1");
    EXPECT_EQ(Seen(), expected.Image());
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 1");
}

// The switches are for drawing anew, which begins with the second point.
TEST_F(CurveDrawingTest, APressMarksTheFirstPointWhateverTheSwitchesSay) {
    panel.Check2.SetValue(true);
    Set({{100, 120}});
    Surface marked = Blank();
    marked.Circle(100, 120, 2, red);
    marked.Print("1");
    EXPECT_EQ(Seen(), marked.Image());
    Set({{300, 120}});
    Surface expected = Blank();
    DrawSlowCurve(expected, {{100, 120}, {300, 120}}, withLines);
    EXPECT_EQ(Seen(), expected.Image());
}

// A first point doesn't take away what other modes drew; the second one does.
TEST_F(CurveDrawingTest, ThePictureGoesBackToItsBackgroundFromTheSecondPointOn) {
    Choose(1);
    Press(300, 300);
    Move(400, 400, leftButton);
    Release(400, 400);
    Choose(3);
    Set({{100, 120}});
    EXPECT_EQ(At(350, 300), black);
    Set({{200, 120}});
    EXPECT_EQ(At(350, 300), white);
}

TEST_F(CurveDrawingTest, PaintedCurvesStay) {
    Set({{100, 100}, {200, 100}});
    panel.DrawKnop.Click();
    Set({{300, 300}, {400, 300}});
    EXPECT_EQ(At(150, 100), black);
    EXPECT_EQ(At(350, 300), black);
    panel.DrawKnop.Click();
    form.ResetKnop.Click();
    EXPECT_EQ(Seen(), Blank().Image());
    EXPECT_EQ(form.TMPres.surface.Image(), Blank().Image());
}

TEST_F(CurveDrawingTest, TwoPointsAreALineWithARedEnd) {
    Set({{100, 120}, {300, 120}});
    panel.DrawKnop.Click();
    for (int x = 100; x < 298; ++x)
        EXPECT_EQ(At(x, 120), black) << x;
    EXPECT_EQ(At(298, 120), red);
    EXPECT_EQ(At(299, 120), red);
    EXPECT_EQ(At(300, 120), white);
}

// Sums of doubles are often hardly less than a half; a fill would leak through a hole there.
TEST_F(CurveDrawingTest, HasNoHoles) {
    for (int last = 191; last < 490; last += 4) {
        // The right button never takes hold of a point.
        Click(101, 120, rightButton);
        Click(static_cast<float>(last), 120, rightButton);
        panel.DrawKnop.Click();
        for (int x = 101; x < last; ++x)
            ASSERT_NE(At(x, 120), white) << last << ": " << x;
        form.ResetKnop.Click();
    }
}

TEST_F(CurveDrawingTest, ThreePointsAreAParabola) {
    const std::vector<Place> places{{100, 400}, {250, 50}, {420, 333}};
    Set(places);
    Surface expected = Blank();
    DrawSlowCurve(expected, places, withMarksAndLines);
    EXPECT_EQ(Seen(), expected.Image());
    panel.DrawKnop.Click();
    Surface painted = Blank();
    DrawSlowCurve(painted, places, curveAlone);
    EXPECT_EQ(Seen(), painted.Image());
}

TEST_F(CurveDrawingTest, EveryDegreeIsRightToThePixel) {
    std::vector<Place> places;
    for (int i = 0; i < 101; ++i) {
        // More than 2 pixels from each other, so that each press is a new point.
        const Place place{20 + 23 * (i % 20), 40 + 70 * (i / 20) + 29 * i % 60};
        places.push_back(place);
        Set({place});
        if (i == 0) continue;
        Surface expected = Blank();
        DrawSlowCurve(expected, places, withMarksAndLines);
        ASSERT_EQ(Seen(), expected.Image()) << "degree " << i;
    }
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 101");
}

TEST_F(CurveDrawingTest, MarksAreNumbered) {
    panel.Check3.SetValue(false);
    Set({{100, 120}});
    Surface expected = Blank();
    expected.Circle(100, 120, 2, red);
    expected.Print("1");
    EXPECT_EQ(Seen(), expected.Image());
    form.ResetKnop.Click();
    Set({{200, 120}, {300, 200}});
    Surface three = Blank();
    int number = 0;
    const std::vector<Place> places{{100, 120}, {200, 120}, {300, 200}};
    for (const Place& place : places) {
        three.Circle(place.x, place.y, 2, red);
        three.Print(std::to_string(++number));
    }
    DrawSlowCurve(three, places, withLines);
    EXPECT_EQ(Seen(), three.Image());
}

TEST_F(CurveDrawingTest, StraightPiecesAreSolid) {
    panel.Option3.SetValue(true);
    Set({{100, 100}, {200, 150}, {120, 300}});
    Surface expected = Blank();
    for (const Place& place : {Place{100, 100}, {200, 150}, {120, 300}})
        expected.Circle(place.x, place.y, 2, red);
    expected.Line(100, 100, 200, 150, black);
    expected.Line(200, 150, 120, 300, black);
    EXPECT_EQ(Seen(), expected.Image());
    panel.DrawKnop.Click();
    Surface painted = Blank();
    painted.Line(100, 100, 200, 150, black);
    painted.Line(200, 150, 120, 300, black);
    EXPECT_EQ(Seen(), painted.Image());
}

TEST_F(CurveDrawingTest, ALineEndsInARedDotWithAWidePen) {
    panel.Option3.SetValue(true);
    form.HScroll1.SetValue(4);
    panel.Check4.SetValue(false);
    Set({{100, 100}, {200, 150}});
    panel.DrawKnop.Click();
    EXPECT_EQ(At(200, 150), red);
    EXPECT_EQ(At(150, 125), black);
}

// Without lines from point to point the cursor is where the last number left it, or in the corner.
TEST_F(CurveDrawingTest, WithoutLinesTheRedPieceComesFromTheCursor) {
    panel.Option3.SetValue(true);
    panel.Check4.SetValue(true);
    Set({{100, 100}, {300, 300}});
    Surface expected = Blank();
    expected.Circle(100, 100, 2, red);
    expected.Circle(300, 300, 2, red);
    EXPECT_EQ(Seen(), expected.Image());  // a line from the last mark to itself
    panel.DrawKnop.Click();
    Surface painted = Blank();
    painted.Line(0, 0, 300, 300, red);
    EXPECT_EQ(Seen(), painted.Image());
    panel.Check3.SetValue(false);
    form.ResetKnop.Click();
    Set({{150, 100}, {350, 300}});
    EXPECT_EQ(At(0, 300 + static_cast<int>(Picture().TextHeight("2"))), red);
}

TEST_F(CurveDrawingTest, AChangeOfTheLineIsSeenAtOnce) {
    Set({{100, 100}, {300, 100}, {300, 300}});
    EXPECT_EQ(At(298, 130), white);
    const Image curved = Seen();
    panel.Option3.SetValue(true);
    EXPECT_EQ(At(300, 130), black);
    EXPECT_EQ(At(150, 113), white);
    panel.Option2.SetValue(true);
    EXPECT_EQ(Seen(), curved);
    panel.Check4.SetValue(true);
    EXPECT_NE(Seen(), curved);
    panel.Check4.SetValue(false);
    EXPECT_EQ(Seen(), curved);
}

TEST_F(CurveDrawingTest, WithoutPointsAChangeOfTheLineLeavesThePictureAlone) {
    Choose(2);
    form.Segments.SegmentKnop[0].Click();
    Choose(3);
    const Image before = Seen();
    panel.Option3.SetValue(true);
    panel.Check4.SetValue(true);
    EXPECT_EQ(Seen(), before);
    form.HScroll1.SetValue(2);  // the pen draws anew whatever there is
    EXPECT_EQ(Seen(), Blank().Image());
}

TEST_F(CurveDrawingTest, PointsAreDragged) {
    Set({{100, 100}, {300, 100}});
    Press(301, 99);
    EXPECT_EQ(panel.Label8.Caption, "Moving Point:  2");
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  2");
    Move(250.9F, 399.9F, leftButton);
    Surface expected = Blank();
    DrawSlowCurve(expected, {{100, 100}, {250, 399}}, withMarksAndLines);
    EXPECT_EQ(Seen(), expected.Image());
    Release(250, 399);
    EXPECT_EQ(Seen(), expected.Image());
    EXPECT_EQ(panel.Label8.Caption, "Control Point Information");
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  2");
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 2");
    Move(400, 400);
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(CurveDrawingTest, PressesCountByWholePixelsDownwards) {
    Click(100.9F, -0.1F);
    Surface expected = Blank();
    expected.Circle(100, -1, 2, red);
    expected.Print("1");
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(CurveDrawingTest, ARightPressSetsAPointOnAPoint) {
    Set({{100, 100}});
    Click(100, 100, rightButton);
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 2");
    EXPECT_EQ(panel.Label8.Caption, "Control Point Information");
}

TEST_F(CurveDrawingTest, APressNearTheCornerIsAHitOfTheFreeEntry) {
    Drag({1, 1}, {50, 60});
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  1");
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 0");
    EXPECT_EQ(Seen(), Blank().Image());
    // The free entry is there now.
    Press(51, 61);
    EXPECT_EQ(panel.Label8.Caption, "Moving Point:  1");
}

TEST_F(CurveDrawingTest, APressNearAPointOfAPaintedCurveIsAHit) {
    Set({{100, 100}, {300, 100}});
    panel.DrawKnop.Click();
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 2");
    Click(101, 101);
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  1");
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 2");
    Click(101, 101, rightButton);
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 1");
    // The entry after it still has the second point of that curve.
    Click(299, 99);
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  2");
}

TEST_F(CurveDrawingTest, ThePointerIsACrossOverAPoint) {
    EXPECT_EQ(form.Pic.MousePointer, defaultPointer);
    Set({{100, 100}});
    Move(102, 98);
    EXPECT_EQ(form.MousePointer, crossPointer);
    Move(103, 98);
    EXPECT_EQ(form.MousePointer, defaultPointer);
    Move(2, 2);
    EXPECT_EQ(form.MousePointer, crossPointer);
}

TEST_F(CurveDrawingTest, AHundredAndSecondPointGivesAMessage) {
    for (int i = 0; i < 100; ++i)
        Click(static_cast<float>(20 + 4 * i), 50);
    Click(20, 150);
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 101");
    const Image before = Seen();
    Click(250, 400);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].prompt, "(9) Cannot Add Points (Unclick Do Not Add Points)");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Warning);
    EXPECT_EQ(platform.messages[0].title, "Coinlet Designer");
    EXPECT_EQ(Seen(), before);
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 101");
    Click(20, 50, rightButton);  // on a point
    EXPECT_EQ(platform.messages.size(), 2U);
    // Moves and drags go on, and no free entry lies in the corner.
    Move(1, 1);
    EXPECT_EQ(form.MousePointer, defaultPointer);
    Drag({20, 150}, {400, 420});
    EXPECT_EQ(panel.Label9.Caption, "Selected Point:  101");
    EXPECT_NE(Seen(), before);
    EXPECT_EQ(platform.messages.size(), 2U);
}

TEST_F(CurveDrawingTest, APlaceBeyondSixteenBitsGivesAMessage) {
    Press(1e9F, 10);
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].prompt, "(6) Cannot Add Points (Unclick Do Not Add Points)");
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 0");
    Set({{100, 100}, {200, 200}});
    Press(200, 200);
    Move(1e9F, 1e9F, leftButton);
    Surface expected = Blank();
    DrawSlowCurve(expected, {{100, 100}, {200, 200}}, withMarksAndLines);
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(CurveDrawingTest, BarredPointsAreNotAdded) {
    panel.Check5.SetValue(true);
    Set({{100, 100}});
    EXPECT_EQ(panel.Label10.Caption, "Total Points : 0");
    EXPECT_EQ(Seen(), Blank().Image());
    Drag({1, 1}, {50, 50});
    EXPECT_EQ(panel.Label8.Caption, "No Control Points can be added..");
}

TEST_F(CurveDrawingTest, AThickPenHidesTheJoiningLines) {
    Set({{100, 100}, {300, 100}, {300, 300}});
    form.HScroll1.SetValue(2);
    EXPECT_TRUE(panel.Check4.Value());
    EXPECT_EQ(Picture().DrawWidth, 2);
    EXPECT_EQ(At(300, 200), white);
    panel.Check4.SetValue(false);
    EXPECT_EQ(At(300, 200), black);
    form.HScroll1.SetValue(3);
    EXPECT_TRUE(panel.Check4.Value());
    form.HScroll1.SetValue(1);
    EXPECT_TRUE(panel.Check4.Value());
    // In other modes the slider only sets the pen of the next press.
    panel.Check4.SetValue(false);
    Choose(0);
    const Image before = Seen();
    form.HScroll1.SetValue(5);
    EXPECT_FALSE(panel.Check4.Value());
    EXPECT_EQ(Picture().DrawWidth, 1);
    EXPECT_EQ(Seen(), before);
    EXPECT_EQ(form.Label3.Caption, "Line With (5)");
}

TEST_F(CurveDrawingTest, ADisabledBoxIsNotTicked) {
    panel.Check4.SetEnabled(false);
    form.HScroll1.SetValue(5);
    EXPECT_FALSE(panel.Check4.Value());
}

TEST_F(CurveDrawingTest, PointsOutliveAVisitToAnotherModeAndAReset) {
    Set({{100, 100}, {300, 100}});
    Choose(0);
    form.Arcs.ClearKnop.Click();
    form.ResetKnop.Click();
    EXPECT_EQ(Seen(), Blank().Image());
    Choose(3);
    EXPECT_EQ(Seen(), Blank().Image());
    Set({{300, 300}});
    Surface expected = Blank();
    DrawSlowCurve(expected, {{100, 100}, {300, 100}, {300, 300}}, withMarksAndLines);
    EXPECT_EQ(Seen(), expected.Image());
}

TEST_F(CurveDrawingTest, PaintingWithoutPointsTakesAwayWhatOtherModesDrew) {
    Choose(2);
    form.Segments.SegmentKnop[0].Click();
    Choose(3);
    panel.DrawKnop.Click();
    EXPECT_EQ(Seen(), Blank().Image());
}

TEST_F(CurveDrawingTest, ACurveTakesTheRubberBandOfAnArcWithIt) {
    Choose(0);
    Press(250, 250);
    Move(350, 250);
    Choose(3);
    Picture().DrawMode = copyPen;
    Set({{100, 100}, {200, 100}});
    const Image curve = Seen();
    Choose(0);
    Move(250, 150);
    EXPECT_EQ(At(300, 250), white);
    EXPECT_EQ(At(250, 200), black);
    Move(250, 250);
    EXPECT_EQ(Seen(), curve);
}

TEST_F(CurveDrawingTest, HiddenSwitchesAreOffAndUnseen) {
    const ArcForm fresh(context);
    for (const CheckBox* box : {&fresh.Curves.Check2, &fresh.Curves.Check3, &fresh.Curves.Check5,
                                &fresh.Curves.Check6, &fresh.Curves.Check7}) {
        EXPECT_FALSE(box->Visible);
        EXPECT_FALSE(box->Value());
    }
    panel.Check2.SetValue(true);
    Set({{100, 100}, {300, 100}});
    EXPECT_EQ(At(100, 98), white);
    EXPECT_EQ(At(102, 100), black);
}

}  // namespace
}  // namespace coinlet
