// The designer of arcs, triangles, segments, curves and polygons, by the real pointer: each way of drawing
// from the first press to the canvas.

#include "started_program.h"

namespace coinlet::test {
namespace {

constexpr QRgb paper = 0xFFFFFFFF, ink = 0xFF000000, red = qRgb(255, 0, 0), yellow = qRgb(255, 255, 0);
constexpr int arcTool = 4;
enum Mode { arcs, triangles, segments, curves, polygons };

// In the dialog, from its upper left corner.
const QPoint picture(12, 12), firstOption(531, 40), optionPitch(0, 22);
const QPoint isosceles(541, 190), lowerLeft(586, 362), upperRight(694, 322), paintCurve(640, 388);
const QPoint reset(566, 488), exportKnop(580, 536);

class ProgramArcDesigner : public StartedProgram {
protected:
    /// Opens it over a canvas with a stroke at its foot.
    void SetUp() override {
        Start();
        Click(form.Knop[0], 20, 14);
        MoveTo(OnCanvas(20, 480));
        Press();
        MoveTo(OnCanvas(120, 480));
        ASSERT_TRUE(Shows(OnCanvas(70, 480), ink));
        Release();
        Click(form.Knop[arcTool], 20, 14);
        const OpenWindow dialog = Front();
        ASSERT_EQ(screen.TitleOf(dialog), "Draw Arc, Pie and Triangles");
        corner = dialog.place.topLeft();
        ASSERT_TRUE(Shows(On(70, 480), ink));
    }
    QPoint OnCanvas(int x, int y) const { return PlaceOf(form.Pic, x, y); }
    QPoint On(int x, int y) const { return corner + picture + QPoint(x, y); }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(place) == colour; });
    }
    void Choose(Mode mode) { Click(corner + firstOption + mode * optionPitch); }
    void Drag(const QPoint& from, const QPoint& to) {
        MoveTo(from);
        Press();
        MoveTo((from + to) / 2);
        MoveTo(to);
        Release();
    }
    /// The canvas becomes what the picture shows now.
    void ExpectExported() {
        MoveTo(corner + exportKnop);
        const QImage made = Look({.id = 0, .place = QRect(On(0, 0), QSize(canvasSide, canvasSide))});
        Click(corner + exportKnop);
        ASSERT_TRUE(MainIsInFront());
        EXPECT_TRUE(Comes([&] { return Screen::Grab(PlaceOf(form.Pic)) == made; }));
        EXPECT_TRUE(Shows(OnCanvas(70, 480), ink));
    }

    QPoint corner;
};

TEST_F(ProgramArcDesigner, APieComesByThreeClicks) {
    Click(On(250, 250));
    MoveTo(On(300, 320));
    ASSERT_TRUE(Shows(On(275, 285), ink));
    // The rubber band follows, and leaves nothing.
    MoveTo(On(350, 250));
    EXPECT_TRUE(Shows(On(300, 250), ink));
    EXPECT_TRUE(Shows(On(275, 285), paper));
    Click(On(350, 250));
    MoveTo(On(170, 170));
    EXPECT_TRUE(Shows(On(250, 150), ink));
    EXPECT_TRUE(Shows(On(300, 250), paper));
    MoveTo(On(250, 150));
    EXPECT_TRUE(Shows(On(210, 210), paper));
    Click(On(250, 150));
    MoveTo(On(100, 300));
    EXPECT_TRUE(Shows(On(310, 170), ink));
    EXPECT_TRUE(Shows(On(250, 200), ink));
    EXPECT_TRUE(Shows(On(190, 170), paper));
    ExpectExported();
    // Undo goes back to before the stroke, which was the last press on the canvas.
    StartedProgram::Choose(OpenMenu(form.Bewerken), form.BewerkenUndo);
    EXPECT_TRUE(Shows(OnCanvas(250, 200), paper));
    EXPECT_TRUE(Shows(OnCanvas(70, 480), paper));
}

TEST_F(ProgramArcDesigner, TrianglesFollowADrag) {
    Choose(triangles);
    MoveTo(On(100, 100));
    Press();
    MoveTo(On(300, 200));
    ASSERT_TRUE(Shows(On(250, 100), ink));
    MoveTo(On(200, 300));
    EXPECT_TRUE(Shows(On(250, 100), paper));
    EXPECT_TRUE(Shows(On(100, 250), ink));
    Release();
    Click(corner + isosceles);
    Drag(On(300, 400), On(400, 200));
    EXPECT_TRUE(Shows(On(350, 400), ink));
    EXPECT_TRUE(Shows(On(325, 300), ink));
    ExpectExported();
}

TEST_F(ProgramArcDesigner, SegmentsComeByTheirButtons) {
    Choose(segments);
    ASSERT_TRUE(Shows(On(150, 250), ink));  // the circle floats
    EXPECT_TRUE(Shows(On(349, 250), ink));
    Click(corner + upperRight);
    EXPECT_TRUE(Shows(On(309, 170), ink));
    Click(corner + lowerLeft);
    EXPECT_TRUE(Shows(On(189, 330), ink));
    // Without the circle the other quarters are empty.
    Choose(arcs);
    EXPECT_TRUE(Shows(On(150, 240), paper));
    EXPECT_TRUE(Shows(On(309, 170), ink));
    ExpectExported();
}

TEST_F(ProgramArcDesigner, CurvesAreSetDraggedAndPainted) {
    Choose(curves);
    Click(On(100, 300));
    ASSERT_TRUE(Shows(On(98, 300), red));
    Click(On(250, 100));
    Click(On(400, 300));
    EXPECT_TRUE(Shows(On(250, 200), ink));  // the top of a parabola
    Drag(On(250, 100), On(250, 200));
    EXPECT_TRUE(Shows(On(250, 250), ink));
    EXPECT_TRUE(Shows(On(175, 200), paper));
    Click(corner + paintCurve);
    EXPECT_TRUE(Shows(On(98, 301), paper));
    EXPECT_TRUE(Shows(On(250, 250), ink));
    ExpectExported();
}

TEST_F(ProgramArcDesigner, PolygonsArePutDownWhereTheCircleIs) {
    Choose(polygons);
    MoveTo(On(150, 150));
    ASSERT_TRUE(Shows(On(90, 150), ink));
    EXPECT_TRUE(Shows(On(209, 150), ink));
    // The circle follows the pointer and leaves nothing.
    MoveTo(On(350, 300));
    EXPECT_TRUE(Shows(On(290, 300), ink));
    EXPECT_TRUE(Shows(On(90, 150), paper));
    ClickRight();
    EXPECT_TRUE(Shows(On(350, 300), yellow));
    Click(On(150, 150));
    EXPECT_TRUE(Shows(On(180, 150), ink));
    EXPECT_TRUE(Shows(On(150, 150), paper));
    Choose(arcs);  // and with it the circle goes
    EXPECT_TRUE(Shows(On(209, 150), paper));
    ExpectExported();
}

TEST_F(ProgramArcDesigner, ResetAndEscapeGiveUp) {
    Choose(polygons);
    Click(On(150, 150));
    ASSERT_TRUE(Shows(On(180, 150), ink));
    Click(corner + reset);
    EXPECT_TRUE(Shows(On(180, 150), paper));
    EXPECT_TRUE(Shows(On(70, 480), ink));
    Click(On(150, 150));
    ASSERT_TRUE(Shows(On(180, 150), ink));
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(OnCanvas(180, 150), paper));
    EXPECT_TRUE(Runs());
}

}  // namespace
}  // namespace coinlet::test
