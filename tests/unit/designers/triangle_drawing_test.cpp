// Triangles that follow the pointer.

#include "unit/designers/arc_world.h"

namespace coinlet {
namespace {

constexpr int rightAngled = 0, isosceles = 1;

class TriangleDrawingTest : public test::ArcWorld {
protected:
    TriangleDrawingTest() { Choose(1); }
    void ChooseKind(int kind) { form.Triangles.Check1[kind].SetValue(true); }

    struct Line {
        double x1, y1, x2, y2;
    };
    /// The lines of a triangle from the press to the pointer, each corner in one of them.
    static std::vector<Line> Lines(int kind, double x0, double y0, double x, double y) {
        if (kind == rightAngled) return {{x0, y, x, y0}, {x, y0, x0, y0}, {x0, y0, x0, y}};
        const double apex = (x0 + x) / 2;
        return {{apex, y, x, y0}, {x, y0, x0, y0}, {x0, y0, apex, y}};
    }
    Image With(const Image& before, const std::vector<Line>& lines, int pen, int drawMode) {
        Surface picture = Blank();
        picture.SetPicture(before);
        picture.DrawWidth = pen;
        picture.DrawMode = drawMode;
        for (const Line& line : lines)
            picture.Line(line.x1, line.y1, line.x2, line.y2, black);
        return picture.Image();
    }
    void Drag(float x1, float y1, float x2, float y2) {
        Press(x1, y1);
        Move(x2, y2, leftButton);
        Release(x2, y2);
    }
};

TEST_F(TriangleDrawingTest, RightAngleStandsAtThePress) {
    Drag(100, 100, 200, 300);
    EXPECT_EQ(Seen(), With(Blank().Image(), Lines(rightAngled, 100, 100, 200, 300), 1, copyPen));
    EXPECT_EQ(At(100, 100), black);
    EXPECT_EQ(At(150, 100), black);
    EXPECT_EQ(At(200, 100), black);
    EXPECT_EQ(At(100, 200), black);
    EXPECT_EQ(At(100, 300), black);
    EXPECT_EQ(At(150, 200), black);  // the middle of the long side
    EXPECT_EQ(At(200, 300), white);
}

TEST_F(TriangleDrawingTest, IsoscelesHasItsApexOverTheMiddleOfTheBase) {
    ChooseKind(isosceles);
    Drag(100, 300, 200, 100);
    EXPECT_EQ(Seen(), With(Blank().Image(), Lines(isosceles, 100, 300, 200, 100), 1, copyPen));
    EXPECT_EQ(At(150, 100), black);
    EXPECT_EQ(At(100, 300), black);
    EXPECT_EQ(At(200, 300), black);
    EXPECT_EQ(At(150, 300), black);
    EXPECT_EQ(At(125, 200), black);
    EXPECT_EQ(At(175, 200), black);
}

TEST_F(TriangleDrawingTest, PreviewsLeaveNoTrace) {
    const std::vector<std::pair<float, float>> way{{300, 260}, {200, 400}, {100, 250}, {250, 250}, {250, 90},
                                                   {-40, 620}, {499, 0},   {251, 251}, {160, 333}};
    for (const int kind : {rightAngled, isosceles}) {
        ChooseKind(kind);
        for (int pen = 1; pen <= 10; ++pen) {
            FillCanvasWithNoise();
            form.HScroll1.SetValue(pen);
            Press(250, 250);
            Image before = Seen();  // with the former triangle on it
            for (const auto& [x, y] : way) {
                Move(x, y, leftButton);
                // With the base drawn from left to right a thin isosceles preview lacks its right corner, and
                // its apex is inverted twice.
                std::vector<Line> lines = Lines(kind, 250, 250, x, y);
                if (kind == isosceles) {
                    const double apex = (250.0 + x) / 2;
                    lines = {{apex, y, x, 250}, {apex, y, 250, 250}, {250, 250, x, 250}};
                }
                ASSERT_EQ(Seen(), With(before, lines, pen, invertPen)) << kind << ", " << pen << ": " << x;
            }
            Release(160, 333);
            ASSERT_EQ(Seen(), With(before, Lines(kind, 250, 250, 160, 333), pen, copyPen));
        }
    }
}

TEST_F(TriangleDrawingTest, TheFirstPressPutsADotInTheCorner) {
    form.HScroll1.SetValue(2);
    Press(250, 250);
    EXPECT_EQ(At(0, 0), black);
    EXPECT_EQ(At(2, 2), white);
    Surface expected = Blank();
    expected.DrawWidth = 2;
    expected.Line(0, 0, 0, 0, black);
    EXPECT_EQ(Seen(), expected.Image());
    // A thin pen leaves nothing there.
    form.ResetKnop.Click();
    ChooseKind(isosceles);
    form.HScroll1.SetValue(1);
    Press(250, 250);
    EXPECT_EQ(Seen(), Blank().Image());
}

TEST_F(TriangleDrawingTest, APressDrawsTheFormerTriangleOnceMore) {
    Drag(100, 100, 200, 300);
    form.ResetKnop.Click();
    EXPECT_EQ(At(150, 100), white);
    Press(400, 400);
    EXPECT_EQ(Seen(), With(Blank().Image(), Lines(rightAngled, 100, 100, 200, 300), 1, copyPen));
    Release(400, 400);
    // The other kind has points of its own.
    form.ResetKnop.Click();
    ChooseKind(isosceles);
    Press(300, 300);
    EXPECT_EQ(Seen(), Blank().Image());
}

TEST_F(TriangleDrawingTest, TheBoxesExcludeEachOtherAndMayBothBeOff) {
    CheckBox& first = form.Triangles.Check1[rightAngled];
    CheckBox& second = form.Triangles.Check1[isosceles];
    EXPECT_TRUE(first.Value());
    EXPECT_FALSE(second.Value());
    second.SetValue(true);
    EXPECT_FALSE(first.Value());
    first.SetValue(true);
    EXPECT_FALSE(second.Value());
    first.SetValue(false);
    EXPECT_FALSE(second.Value());
    form.HScroll1.SetValue(4);
    Picture().DrawMode = invertPen;
    Drag(100, 100, 200, 300);
    EXPECT_EQ(Seen(), Blank().Image());
    EXPECT_EQ(Picture().DrawMode, invertPen);
}

TEST_F(TriangleDrawingTest, OnlyALeftDragShapesIt) {
    Press(100, 100);
    Move(200, 200);
    Move(200, 200, rightButton);
    EXPECT_EQ(Seen(), Blank().Image());
    Move(200, 200, leftButton);
    EXPECT_NE(Seen(), Blank().Image());
    EXPECT_EQ(Picture().DrawMode, invertPen);
    Release(200, 200, rightButton);
    EXPECT_EQ(Picture().DrawMode, copyPen);
    EXPECT_EQ(At(150, 100), black);
}

TEST_F(TriangleDrawingTest, ColourIsThatOfThePen) {
    Picture().ForeColor = RGB(255, 0, 0);
    Drag(100, 100, 200, 300);
    EXPECT_EQ(At(150, 100), black);
}

}  // namespace
}  // namespace coinlet
