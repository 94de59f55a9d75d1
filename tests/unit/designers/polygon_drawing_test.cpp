// Polygons that are put down by a click.

#include "designers/regular_polygon.h"
#include "surface/device.h"
#include "unit/designers/arc_world.h"

namespace coinlet {
namespace {

constexpr Colour yellow = RGB(255, 255, 0);

class PolygonDrawingTest : public test::ArcWorld {
protected:
    PolygonDrawingTest() { Choose(4); }
    PolygonDrawing& panel = form.Polygons;
};

TEST_F(PolygonDrawingTest, ListsHoldWhatIsUsual) {
    EXPECT_EQ(panel.Combo1.ListCount(), 18);
    EXPECT_EQ(panel.Combo1.Text(), "3");
    EXPECT_EQ(panel.Combo1.ListIndex(), 0);
    EXPECT_EQ(panel.Combo1.List(17), "20");
    EXPECT_EQ(panel.Combo2.ListCount(), 79);
    EXPECT_EQ(panel.Combo2.List(0), "10");
    EXPECT_EQ(panel.Combo2.List(78), "400");
    EXPECT_EQ(panel.Combo2.ListIndex(), 10);
    EXPECT_EQ(panel.Combo2.Text(), "60");
    EXPECT_EQ(panel.Combo3.ListCount(), 401);
    EXPECT_EQ(panel.Combo3.Text(), "0.00");
    EXPECT_EQ(panel.Combo3.List(7), "0.07");
    EXPECT_EQ(panel.Combo3.List(157), "1.57");
    EXPECT_EQ(panel.Combo3.List(400), "4.00");
}

TEST_F(PolygonDrawingTest, LeftPressDrawsTheOutlineAlone) {
    panel.Combo1.SetText("5");
    panel.Combo3.SetText("0.50");
    Click(200, 210);
    Surface expected = Blank();
    DrawPolygon(expected, 0.5F, 1, {200, 210}, 60, 5, black);
    EXPECT_EQ(Seen(), expected.Image());
    EXPECT_EQ(At(200, 210), white);
    EXPECT_EQ(Picture().FillStyle, transparentFill);
}

TEST_F(PolygonDrawingTest, RightPressFillsItToo) {
    Click(200, 200, rightButton);
    // The triangle points left: (140, 200), (230, 148), (230, 252).
    EXPECT_EQ(At(200, 200), yellow);
    EXPECT_EQ(At(229, 200), yellow);
    EXPECT_EQ(At(145, 200), yellow);
    EXPECT_EQ(At(230, 200), black);
    EXPECT_EQ(At(140, 200), black);
    EXPECT_EQ(At(231, 200), white);
    EXPECT_EQ(At(10, 10), white);
    EXPECT_EQ(Picture().FillStyle, solidFill);
    EXPECT_EQ(Picture().FillColor, yellow);
}

TEST_F(PolygonDrawingTest, FillCoversWhateverIsInside) {
    Picture().Line(150, 200, 220, 200, RGB(1, 2, 3));
    Click(200, 200, rightButton);
    EXPECT_EQ(At(180, 200), yellow);
}

TEST_F(PolygonDrawingTest, NothingIsFilledFromAPixelOfTheFillColour) {
    Picture().PSet(200, 200, yellow);
    Click(200, 200, rightButton);
    EXPECT_EQ(At(200, 200), yellow);
    EXPECT_EQ(At(201, 200), white);
    EXPECT_EQ(At(230, 200), black);  // the outline comes all the same
}

TEST_F(PolygonDrawingTest, OtherButtonsDrawNothing) {
    const Image before = Seen();
    Click(200, 200, middleButton);
    EXPECT_EQ(Seen(), before);
}

TEST_F(PolygonDrawingTest, ColourIsMixedWithTheSliders) {
    EXPECT_EQ(panel.Label16.BackColor, yellow);
    panel.ColorScroll[0].SetValue(10);
    panel.ColorScroll[1].SetValue(20);
    panel.ColorScroll[2].SetValue(30);
    EXPECT_EQ(panel.Label16.BackColor, RGB(10, 20, 30));
    EXPECT_EQ(panel.ColLabel[0].Caption, "10");
    EXPECT_EQ(panel.ColLabel[1].Caption, "20");
    EXPECT_EQ(panel.ColLabel[2].Caption, "30");
    Click(200, 200, rightButton);
    EXPECT_EQ(At(200, 200), RGB(10, 20, 30));
}

TEST_F(PolygonDrawingTest, TheColourFollowsASliderWhileThatIsDragged) {
    panel.ColorScroll[0].UserDrags(10);  // none is let go
    EXPECT_EQ(panel.Label16.BackColor, RGB(10, 255, 0));
    panel.ColorScroll[1].UserDrags(20);
    EXPECT_EQ(panel.Label16.BackColor, RGB(10, 20, 0));
    panel.ColorScroll[2].UserDrags(30);
    EXPECT_EQ(panel.Label16.BackColor, RGB(10, 20, 30));
    EXPECT_EQ(panel.ColLabel[0].Caption, "10");
    EXPECT_EQ(panel.ColLabel[1].Caption, "20");
    EXPECT_EQ(panel.ColLabel[2].Caption, "30");
}

// Events are served between the number and the colour: what comes meanwhile counts.
TEST_F(PolygonDrawingTest, EventsAreServedBetweenTheNumberAndTheColour) {
    std::string captionThen;
    Colour colourThen = -1;
    platform.whenServing = [&] {
        if (!captionThen.empty()) return;
        captionThen = panel.ColLabel[0].Caption;
        colourThen = panel.Label16.BackColor;
        panel.ColorScroll[1].SetValue(7);
    };
    panel.ColorScroll[0].SetValue(5);
    EXPECT_EQ(captionThen, "5");
    EXPECT_EQ(colourThen, yellow);
    EXPECT_EQ(panel.Label16.BackColor, RGB(5, 7, 0));
}

TEST_F(PolygonDrawingTest, CircleThroughTheCornersFollowsThePointer) {
    EXPECT_TRUE(form.Layer.Visible);
    Move(200, 220);
    EXPECT_EQ(form.Layer.Left(), 140);
    EXPECT_EQ(form.Layer.Top(), 160);
    EXPECT_EQ(form.Layer.Width(), 120);
    EXPECT_EQ(form.Layer.Height(), 120);
    panel.Combo2.SetText("12.5");
    Move(200, 220, leftButton);
    EXPECT_EQ(form.Layer.Width(), 25);
    EXPECT_EQ(form.Layer.Left(), 187.5);
    Choose(0);
    Move(10, 10);
    EXPECT_EQ(form.Layer.Left(), 187.5);
    EXPECT_FALSE(form.Layer.Visible);
}

TEST_F(PolygonDrawingTest, ComingBackShowsTheCircleWhereItIs) {
    Move(200, 220);
    Choose(1);
    Choose(4);
    EXPECT_TRUE(form.Layer.Visible);
    EXPECT_EQ(form.Layer.Left(), 140);
}

TEST_F(PolygonDrawingTest, WhatIsNoNumberOfSidesDrawsNothing) {
    FillCanvasWithNoise();
    const Image before = Seen();
    for (const char* text : {"", "many", "0", "-3", "0.4"}) {
        panel.Combo1.SetText(text);
        Click(200, 200);
        Click(200, 200, rightButton);
        EXPECT_EQ(Seen(), before) << text;
    }
}

TEST_F(PolygonDrawingTest, WhatIsNoSizeIsAPoint) {
    panel.Combo2.SetText("big");
    Click(200, 200);
    EXPECT_EQ(Seen(), Blank().Image());
    form.HScroll1.SetValue(3);
    Click(200, 200);
    EXPECT_EQ(At(200, 200), black);
    EXPECT_EQ(At(203, 200), white);
}

TEST_F(PolygonDrawingTest, MonstrousNumbersAreNoHarm) {
    for (const char* number : {"1e308", "-1e308", "1e20", "2147483648", "-2147483649", "99999", "1e-300"}) {
        for (ComboBox* combo : {&panel.Combo1, &panel.Combo2, &panel.Combo3}) {
            const std::string before = combo->Text();
            combo->SetText(number);
            Click(200, 200);
            Click(200, 200, rightButton);
            combo->SetText(before);
        }
    }
    form.ResetKnop.Click();
    Click(200, 200);
    EXPECT_EQ(At(140, 200), black);
}

TEST_F(PolygonDrawingTest, DrawModeThatAnArcLeftInvertsTheOutline) {
    Choose(0);
    Press(10, 10);
    Choose(4);
    Picture().DrawMode = copyPen;
    Picture().Line(0, 0, 499, 499, RGB(255, 0, 0), Box::Filled);
    const Image before = Seen();
    Picture().DrawMode = invertPen;
    Click(200, 200);
    EXPECT_EQ(At(230, 190), RGB(0, 255, 255));
    Click(200, 200);
    EXPECT_EQ(Seen(), before);
}

}  // namespace
}  // namespace coinlet
