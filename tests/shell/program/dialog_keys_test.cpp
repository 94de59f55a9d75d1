// What the pointer does on the pictures of dialogs, done by real keys: drawing, picking a colour, cutting
// out, moving a chart.

#include "started_program.h"
#include "support/symbol_font.h"

#include <QImage>

#include <filesystem>
#include <string>

namespace coinlet::test {
namespace {

constexpr QRgb paper = 0xFFFFFFFF, ink = 0xFF000000, red = qRgb(200, 30, 30), blue = qRgb(30, 30, 200);
/// Of the ring around what has the focus.
constexpr QRgb ring = qRgb(60, 127, 177);

class ProgramDialogKeys : public StartedProgram {
protected:
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(place) == colour; });
    }
    QPoint OnCanvas(int x, int y) const { return PlaceOf(form.Pic, x, y); }
    /// Gives the focus by so many tabs to a picture, whose corner is `corner`.
    void TabTo(const QPoint& corner, const std::string& key, int times = 1) {
        Keys(key, times);
        EXPECT_TRUE(Shows(corner + QPoint(-1, 100), ring));
        EXPECT_TRUE(Shows(corner + QPoint(100, -1), ring));
        corner_ = corner;
    }
    QPoint On(int x, int y) const { return corner_ + QPoint(x, y); }
    /// From wherever the pointer is.
    void PointTo(int x, int y) {
        Keys("shift+Left", 80);
        Keys("shift+Up", 80);
        Go(x, y);
        EXPECT_TRUE(Comes([&] { return screen.Pointer() == On(x, y); }));
    }
    void Go(int columns, int rows) {
        constexpr int longStep = 10;
        Repeat("shift+Right", columns / longStep);
        Repeat("Right", columns % longStep);
        Repeat("shift+Down", rows / longStep);
        Repeat("Down", rows % longStep);
    }

private:
    void Repeat(const std::string& key, int times) {
        if (times > 0) Keys(key, times);
    }

    QPoint corner_;
};

TEST_F(ProgramDialogKeys, ATriangleIsDrawn) {
    Start();
    Key("a");
    const OpenWindow dialog = Front();
    ASSERT_EQ(screen.TitleOf(dialog), "Draw Arc, Pie and Triangles");
    Key("Down");
    TabTo(dialog.place.topLeft() + QPoint(12, 12), "shift+Tab");
    PointTo(100, 100);
    HoldKey("space");
    Go(100, 200);
    LetGoKey("space");
    MoveTo(On(450, 450));
    EXPECT_TRUE(Shows(On(150, 100), ink));
    EXPECT_TRUE(Shows(On(100, 250), ink));
    EXPECT_TRUE(Shows(On(150, 200), ink));
    EXPECT_EQ(ColourAt(On(200, 300)), paper);
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
}

TEST_F(ProgramDialogKeys, AStrokeEndsWithTheWindowThatHadItsKey) {
    Start();
    Key("a");
    const OpenWindow dialog = Front();
    Key("Down");
    TabTo(dialog.place.topLeft() + QPoint(12, 12), "shift+Tab");
    PointTo(100, 100);
    HoldKey("space");
    Go(50, 50);
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    LetGoKey("space");
    // The canvas draws nothing by a key that went down elsewhere.
    Key("d");
    MoveTo(OnCanvas(50, 50));
    Keys("Right", 20);
    EXPECT_TRUE(Comes([&] { return screen.Pointer() == OnCanvas(70, 50); }));
    MoveTo(OnCanvas(300, 300));
    EXPECT_TRUE(Shows(OnCanvas(60, 50), paper));
}

TEST_F(ProgramDialogKeys, AColourIsRemoved) {
    Start();
    Click(form.Knop[0], 20, 14);
    MoveTo(OnCanvas(100, 250));
    Press();
    MoveTo(OnCanvas(400, 250));
    ASSERT_TRUE(Shows(OnCanvas(300, 250), ink));
    Release();
    Key("r");
    const OpenWindow dialog = Front();
    TabTo(dialog.place.topLeft() + QPoint(12, 12), "shift+Tab");
    PointTo(200, 249);
    // The patch has the colour under the pointer, once that is on the stroke.
    Key("Down");
    ASSERT_TRUE(Shows(On(300, 250), ink));
    Key("space");
    EXPECT_TRUE(Shows(On(300, 250), paper));
}

TEST_F(ProgramDialogKeys, ASymbolIsCutOut) {
    std::filesystem::remove_all(folder / "Fonts");
    std::filesystem::create_directory(folder / "Fonts");
    const Bytes font = SymbolFont("Coinlet Squares");
    folder.Write("Fonts/squares.ttf", std::string(font.begin(), font.end()));
    Start();
    Choose(OpenMenu(form.Bib), form.Symbolen);
    const OpenWindow dialog = Front();
    const QPoint strip = dialog.place.topLeft() + QPoint(24, 88);
    Key("Return");
    // An em is 80 pixels: squares of 40, the first one from column 20 and row 24 on.
    ASSERT_TRUE(Shows(strip + QPoint(20, 24), ink));
    TabTo(strip, "Tab", 3);
    PointTo(15, 20);
    HoldKey("space");
    Go(49, 49);
    LetGoKey("space");
    // To the ways out.
    Keys("Tab", 2);
    Key("space");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(OnCanvas(1 + 5, 1 + 4), ink));
    EXPECT_TRUE(Shows(OnCanvas(1 + 44, 1 + 43), ink));
    EXPECT_EQ(ColourAt(OnCanvas(1 + 4, 1 + 4)), paper);
}

TEST_F(ProgramDialogKeys, APictureIsCut) {
    std::filesystem::create_directories(home / "Pictures");
    QImage halves(400, 300, QImage::Format_RGB32);
    halves.fill(red);
    for (int y = 0; y < halves.height(); ++y)
        for (int x = 200; x < halves.width(); ++x)
            halves.setPixel(x, y, blue);
    ASSERT_TRUE(halves.save(QString::fromStdString((home / "Pictures/halves.bmp").string()), "BMP"));
    Start();
    Choose(OpenMenu(form.File), form.FileImport);
    const OpenWindow dialog = Front();
    constexpr int dialogHeight = 565;  // the menu bar not counted
    const QPoint view = dialog.place.topLeft() + QPoint(248, 12 + dialog.place.height() - dialogHeight);
    // Enter on the open folder shows what lies in it.
    Key("Return");
    Look(dialog);
    Key("Tab");
    Key("Down");
    ASSERT_TRUE(Shows(view + QPoint(100, 100), red));
    TabTo(view, "Tab");
    PointTo(150, 60);
    HoldKey("space");
    Go(99, 79);
    LetGoKey("space");
    // What is left begins with 50 columns of red.
    ASSERT_TRUE(Shows(On(60, 70), blue));
    EXPECT_TRUE(Shows(On(40, 10), red));
    EXPECT_NE(ColourAt(On(110, 10)), blue);
    EXPECT_NE(ColourAt(On(60, 90)), blue);
}

TEST_F(ProgramDialogKeys, TheGlitterChartIsMoved) {
    QImage chart(1000, 900, QImage::Format_RGB32);
    chart.fill(red);
    for (int y = 0; y < chart.height(); ++y)
        for (int x = 300; x < chart.width(); ++x)
            chart.setPixel(x, y, blue);
    ASSERT_TRUE(chart.save(QString::fromStdString((folder / "Data/Glitter.bak").string()), "BMP"));
    Start();
    Choose(OpenMenu(form.Bib), form.LibraryGlitter);
    const OpenWindow dialog = Front();
    // The ring goes around the frame, which shows a part of the chart.
    TabTo(dialog.place.topLeft() + QPoint(12, 36), "shift+Tab");
    ASSERT_TRUE(Shows(On(299, 300), red));
    ASSERT_TRUE(Shows(On(300, 300), blue));
    PointTo(200, 100);
    HoldKey("space");
    Keys("Left", 7);
    Keys("shift+Left", 3);
    LetGoKey("space");
    EXPECT_TRUE(Shows(On(262, 300), red));
    EXPECT_TRUE(Shows(On(263, 300), blue));
    EXPECT_TRUE(Comes([&] { return screen.Pointer() == On(163, 100); }));
    // Let go, it stays where it is.
    Keys("Left", 5);
    EXPECT_TRUE(Comes([&] { return screen.Pointer() == On(158, 100); }));
    EXPECT_TRUE(Shows(On(263, 300), blue));
}

}  // namespace
}  // namespace coinlet::test
