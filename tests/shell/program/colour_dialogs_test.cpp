// The dialogs that remove and replace colours, on the screen: the magnifying glass, and what goes back to the
// canvas.

#include "started_program.h"

namespace coinlet::test {
namespace {

constexpr QRgb paper = 0xFFFFFFFF, ink = 0xFF000000, gold = qRgb(240, 173, 0), noGreen = qRgb(255, 0, 255);
constexpr int removeTool = 10, replaceTool = 11;

// In the dialogs, from their upper left corner.
const QPoint picture(12, 12);
const QPoint removeGreen(562, 244), glassTick(531, 306), removeExport(652, 500);
const QRect lens(524, 320, 256, 152);
const QPoint replaceStart(586, 468), replaceExport(586, 500);
constexpr int goldEntry = 10;

/// A part of the screen, each pixel as a square of four by four.
QImage Enlarged(const QRect& part) {
    const QImage seen = Screen::Grab(part);
    QImage large(part.size() * 4, QImage::Format_RGB32);
    for (int y = 0; y < large.height(); ++y) {
        for (int x = 0; x < large.width(); ++x)
            large.setPixel(x, y, seen.pixel(x / 4, y / 4));
    }
    return large;
}

class ProgramColourDialogs : public StartedProgram {
protected:
    /// Starts with a stroke over the middle of the canvas.
    void SetUp() override {
        Start();
        Click(form.Knop[0], 20, 14);
        MoveTo(OnCanvas(100, 250));
        Press();
        MoveTo(OnCanvas(400, 250));
        ASSERT_TRUE(Shows(OnCanvas(300, 250), ink));
        Release();
    }
    QPoint OnCanvas(int x, int y) const { return PlaceOf(form.Pic, x, y); }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(place) == colour; });
    }
    /// Opens a dialog by its tool button; gives the place of its upper left corner.
    QPoint Open(int tool, const std::string& title) {
        Click(form.Knop[tool], 20, 14);
        const OpenWindow dialog = Front();
        EXPECT_EQ(screen.TitleOf(dialog), title);
        return dialog.place.topLeft();
    }
    QPoint OpenRemoval() { return Open(removeTool, "Color Adjustment / Removal"); }
    QPoint OpenReplacement() { return Open(replaceTool, "Replace Colors"); }
    /// The lens shows what is around the pointer, whose own pixel begins at the middle of it.
    bool GlassShowsAround(const QPoint& lensCorner, const QPoint& pointer) {
        MoveTo(pointer);
        const QRect around(pointer - QPoint(32, 19), QSize(64, 38));
        return Comes([&] { return Screen::Grab(QRect(lensCorner, lens.size())) == Enlarged(around); });
    }
};

TEST_F(ProgramColourDialogs, GlassEnlargesTheScreenWhereverThePointerIs) {
    const QPoint corner = OpenRemoval();
    const QPoint glass = corner + lens.topLeft();
    Click(corner + glassTick);
    // On the stroke, at its end, and where the picture ends.
    EXPECT_TRUE(GlassShowsAround(glass, corner + picture + QPoint(300, 250)));
    EXPECT_EQ(ColourAt(glass + QPoint(128, 76)), ink);
    EXPECT_TRUE(GlassShowsAround(glass, corner + picture + QPoint(101, 240)));
    EXPECT_TRUE(GlassShowsAround(glass, corner + picture + QPoint(499, 3)));
    // On a button of the dialog, on the main window, and beyond it.
    EXPECT_TRUE(GlassShowsAround(glass, corner + removeGreen));
    EXPECT_TRUE(GlassShowsAround(glass, PlaceOf(form.Knop[5], 10, 10)));
    EXPECT_TRUE(GlassShowsAround(glass, {1300, 1000}));
    EXPECT_NE(ColourAt(glass + QPoint(128, 76)), paper);
    Click(corner + glassTick);
    QImage empty(lens.size(), QImage::Format_RGB32);
    empty.fill(paper);
    EXPECT_TRUE(Comes([&] { return Screen::Grab(QRect(glass, lens.size())) == empty; }));
}

TEST_F(ProgramColourDialogs, LeavingWithTheGlassOnIsNoHarm) {
    const QPoint corner = OpenRemoval();
    Click(corner + glassTick);
    ASSERT_TRUE(GlassShowsAround(corner + lens.topLeft(), corner + picture + QPoint(300, 250)));
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(OnCanvas(300, 250), ink));
    EXPECT_TRUE(Runs());
}

TEST_F(ProgramColourDialogs, RemovalGoesToTheCanvasWhenItIsExported) {
    const QPoint corner = OpenRemoval();
    Click(corner + picture + QPoint(300, 250));
    ASSERT_TRUE(Shows(corner + picture + QPoint(200, 250), paper));
    Click(corner + removeGreen);
    ASSERT_TRUE(Shows(corner + picture + QPoint(200, 250), noGreen));
    Click(corner + removeExport);
    ASSERT_TRUE(MainIsInFront());
    QImage expected(canvasSide, canvasSide, QImage::Format_RGB32);
    expected.fill(noGreen);
    EXPECT_TRUE(Comes([&] { return Screen::Grab(PlaceOf(form.Pic)) == expected; }));
}

TEST_F(ProgramColourDialogs, RemovalIsDroppedWhenItIsCancelled) {
    const QPoint corner = OpenRemoval();
    Click(corner + removeGreen);
    ASSERT_TRUE(Shows(corner + picture + QPoint(20, 20), noGreen));
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(OnCanvas(20, 20), paper));
    EXPECT_TRUE(Shows(OnCanvas(300, 250), ink));
}

TEST_F(ProgramColourDialogs, MetalGoesToTheCanvasWhenItIsExported) {
    const QPoint corner = OpenReplacement();
    // The list of palettes has the keys.
    for (int entry = 0; entry < goldEntry; ++entry)
        Key("Down");
    Click(corner + replaceStart);
    ASSERT_TRUE(Shows(corner + picture + QPoint(300, 250), gold));
    Click(corner + replaceExport);
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(OnCanvas(300, 250), gold));
    EXPECT_TRUE(Shows(OnCanvas(300, 240), paper));
}

}  // namespace
}  // namespace coinlet::test
