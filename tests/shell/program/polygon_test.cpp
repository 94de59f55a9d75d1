// A polygon from its dialog to the canvas, by the real pointer and keys.

#include "started_program.h"

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;

// In the dialog, from its upper left corner.
const QPoint drawing(14, 14), facesDown(546, 97), facesField(470, 42), exportKnop(490, 440);
const QPoint rotationThumb(520, 164), rotationEnd(676, 164), sizeLeft(108, 436), halfTick(578, 356);

class ProgramPolygon : public StartedProgram {
protected:
    QPoint OpenDialog() {
        Click(form.Knop[3], 20, 14);
        const OpenWindow dialog = Front();
        EXPECT_EQ(screen.TitleOf(dialog), "Design Polygons");
        return dialog.place.topLeft();
    }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(place) == colour; });
    }
};

TEST_F(ProgramPolygon, ATriangleIsDesignedPlacedPastedAndUndone) {
    Start();
    const QPoint corner = OpenDialog(), centre = corner + drawing + QPoint(200, 200);
    ASSERT_TRUE(Shows(centre, ink));
    EXPECT_EQ(ColourAt(centre + QPoint(0, -100)), paper);
    // The arrow of the bar makes ten faces fewer by one; typed, four are an upright cross.
    Click(corner + facesDown);
    MoveTo(corner + facesField);
    Click(corner + facesField);
    Key("ctrl+a");
    Key("4");
    Key("Return");
    ASSERT_TRUE(Shows(centre + QPoint(0, -100), ink));
    EXPECT_TRUE(Shows(centre + QPoint(0, 100), ink));
    // Half of it, and then as small as one step makes it.
    Click(corner + halfTick);
    EXPECT_TRUE(Shows(centre + QPoint(0, 100), paper));
    EXPECT_EQ(ColourAt(centre + QPoint(0, -100)), ink);
    Click(corner + sizeLeft);
    ASSERT_TRUE(Shows(corner + drawing + QPoint(190, 190), ink));

    Click(corner + exportKnop);
    ASSERT_TRUE(MainIsInFront());
    // It floats at the corner of the canvas, inside a frame of one pixel.
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 190, 1 + 190), ink));
    MoveTo(PlaceOf(form.Pic, 150, 150));
    Press();
    MoveTo(PlaceOf(form.Pic, 180, 170));
    MoveTo(PlaceOf(form.Pic, 210, 190));
    Release();
    ASSERT_TRUE(Shows(PlaceOf(form.Pic, 61 + 190, 41 + 90), ink));
    Click(form.HoekKnop, 10, 10);
    Choose(Front(), form.Paste[2]);
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 61 + 190, 41 + 190), ink));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 61 + 190, 41 + 90), ink));
    EXPECT_EQ(ColourAt(PlaceOf(form.Pic, 61 + 190, 41 + 290)), paper);
    Key("ctrl+z");
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 61 + 190, 41 + 190), paper));
}

TEST_F(ProgramPolygon, TheRotationFollowsTheThumbAndStartsAnewAtItsEnd) {
    Start();
    const QPoint corner = OpenDialog(), centre = corner + drawing + QPoint(200, 200);
    ASSERT_TRUE(Shows(centre + QPoint(190, 0), ink));
    for (int i = 0; i < 2; ++i) {  // The thumb must be back at the left end to be taken there again.
        MoveTo(corner + rotationThumb);
        Press();
        MoveTo(corner + rotationThumb + QPoint(10, 0));
        ASSERT_TRUE(Shows(centre + QPoint(190, 0), paper)) << i;
        MoveTo(corner + rotationEnd);
        EXPECT_TRUE(Shows(centre + QPoint(190, 0), ink)) << i;
        Release();
        EXPECT_TRUE(Shows(centre + QPoint(190, 0), ink)) << i;
    }
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 200, 200), paper));
}

}  // namespace
}  // namespace coinlet::test
