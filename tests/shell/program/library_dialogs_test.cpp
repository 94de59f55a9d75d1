// The dialogs of the Library menu, on the screen: what goes to the canvas and the side panel or floats there,
// and a chart that follows the pointer.

#include "started_program.h"
#include "support/symbol_font.h"
#include "surface/codecs.h"

#include <filesystem>
#include <string>

namespace coinlet::test {
namespace {

constexpr QRgb paper = 0xFFFFFFFF;
constexpr int frameSide = 500, cellSide = 150;

// In the dialogs, from their upper left corner.
const QPoint secondBorder(60, 32), goldOption(498, 94), borderExport(490, 292);
const QPoint secondBack(12 + cellSide + 75, 72 + 75), chosenBack(12 + 75, 262 + 75), backExport(420, 398);
const QPoint chartFrame(12, 36);

/// Each frame of the strip is of this colour above and white below.
QRgb FrameColour(int frame, int strip) {
    return qRgb(40 + 50 * frame, 100 * strip, 20);
}
QRgb BackColour(int cell) {
    return qRgb(40 + 50 * cell, 100, 20);
}
QRgb ChartColour(int x, int y) {
    return qRgb(x % 256, y % 256, 10 * (x / 256) + y / 256);
}

class ProgramLibraryDialogs : public StartedProgram {
protected:
    /// Writes the pictures of the libraries; each pixel is what `colourAt(x, y)` says.
    template <class ColourAt>
    void WritePicture(const std::string& file, int width, int height, const ColourAt& colourAt) {
        Bitmap bitmap(width, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                bitmap.Row(y)[x] = colourAt(x, y);
        }
        const auto error = SavePicture(Image(std::move(bitmap)), folder / file);
        ASSERT_FALSE(error) << error.message();
    }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(place) == colour; });
    }
    /// Opens a dialog by the menu; gives the place of its upper left corner.
    QPoint Open(const MenuItem& entry) {
        Choose(OpenMenu(form.Bib), entry);
        const OpenWindow dialog = Front();
        EXPECT_EQ(screen.TitleOf(dialog), entry.Caption);
        return dialog.place.topLeft();
    }
};

TEST_F(ProgramLibraryDialogs, BorderInGoldGoesToTheCanvas) {
    std::filesystem::remove_all(folder / "Borders");
    std::filesystem::create_directory(folder / "Borders");
    for (const int strip : {1, 2}) {
        WritePicture(
            "Borders/" + std::to_string(strip) + ".gif", 4 * frameSide, frameSide,
            [&](int x, int y) { return y < frameSide / 2 ? FrameColour(x / frameSide, strip) : paper; });
    }
    Start();
    const QPoint corner = Open(form.LibraryBorders);
    const QPoint preview = corner + QPoint(224, 12);
    ASSERT_TRUE(Shows(preview + QPoint(20, 20), FrameColour(0, 1)));
    Click(corner + secondBorder);
    ASSERT_TRUE(Shows(preview + QPoint(20, 20), FrameColour(0, 2)));
    Click(corner + goldOption);
    ASSERT_TRUE(Shows(preview + QPoint(20, 20), FrameColour(3, 2)));
    EXPECT_EQ(ColourAt(preview + QPoint(20, 200)), paper);
    Click(corner + borderExport);
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 0, 0), FrameColour(3, 2)));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 499, 249), FrameColour(3, 2)));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 250, 250), paper));
    Key("ctrl+z");
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 0, 0), paper));
}

TEST_F(ProgramLibraryDialogs, BackThatWasClickedGoesToTheSidePanel) {
    WritePicture("Data/Back-1.bak", 4 * cellSide, 2 * cellSide,
                 [](int x, int y) { return BackColour(x / cellSide + (y < cellSide ? 0 : 1)); });
    Start();
    const QPoint corner = Open(form.LibraryBackside);
    // The slider of the rows has the keys.
    Key("Right");
    ASSERT_TRUE(Shows(corner + secondBack, BackColour(2)));
    Click(corner + secondBack);
    ASSERT_TRUE(Shows(corner + chosenBack, BackColour(2)));
    Click(corner + backExport);
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(PlaceOf(form.InfoPic, 14, 340), BackColour(2)));
    EXPECT_TRUE(Shows(PlaceOf(form.InfoPic, 163, 489), BackColour(2)));
}

TEST_F(ProgramLibraryDialogs, ClipartFloatsOverTheCanvas) {
    constexpr int clipartWidth = 330, clipartHeight = 360;
    std::filesystem::remove_all(folder / "Cliparts");
    std::filesystem::create_directory(folder / "Cliparts");
    WritePicture("Cliparts/one.art", 5 * clipartWidth, clipartHeight, [](int x, int) {
        return x % clipartWidth < clipartWidth / 2 ? BackColour(x / clipartWidth) : paper;
    });
    Start();
    const QPoint corner = Open(form.ClipartGroot);
    const QPoint thumbnails = corner + QPoint(12, 72), clipart = corner + QPoint(12, 208);
    ASSERT_TRUE(Shows(thumbnails + QPoint(10, 60), BackColour(0)));
    Click(thumbnails + QPoint(110 + 30, 60));
    ASSERT_TRUE(Shows(clipart + QPoint(164, 359), BackColour(1)));
    EXPECT_EQ(ColourAt(clipart + QPoint(165, 359)), paper);
    // The slider's lower arrow, once: 111 pixels wide.
    Click(corner + QPoint(360, 560));
    ASSERT_TRUE(Shows(clipart + QPoint(54, 120), BackColour(1)));
    EXPECT_NE(ColourAt(clipart + QPoint(111, 60)), paper);
    // Mirrored, the colour is on the right.
    Click(corner + QPoint(420, 294));
    ASSERT_TRUE(Shows(clipart + QPoint(110, 120), BackColour(1)));
    EXPECT_EQ(ColourAt(clipart + QPoint(10, 60)), paper);
    Click(corner + QPoint(428, 554));
    ASSERT_TRUE(MainIsInFront());
    // Inside the frame of what floats.
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 110, 1 + 120), BackColour(1)));
    EXPECT_EQ(ColourAt(PlaceOf(form.Pic, 10, 10)), paper);
    Click(form.HoekKnop, 10, 10);
    Choose(Front(), form.Paste[1]);
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 110, 1 + 120), BackColour(1)));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 111, 1 + 120), paper));
}

TEST_F(ProgramLibraryDialogs, SymbolFloatsOverTheCanvas) {
    std::filesystem::remove_all(folder / "Fonts");
    std::filesystem::create_directory(folder / "Fonts");
    const Bytes font = SymbolFont("Coinlet Squares");
    folder.Write("Fonts/squares.ttf", std::string(font.begin(), font.end()));
    Start();
    Choose(OpenMenu(form.Bib), form.Symbolen);
    const OpenWindow dialog = Front();
    EXPECT_EQ(screen.TitleOf(dialog), "Symbols");
    const QPoint strip = dialog.place.topLeft() + QPoint(24, 88);
    ASSERT_TRUE(Shows(strip + QPoint(30, 40), paper));
    Click(dialog.place.topLeft() + QPoint(320, 38));
    // An em is 80 pixels: squares of 40, the first one from column 20 and row 24 on.
    constexpr QRgb ink = 0xFF000000;
    ASSERT_TRUE(Shows(strip + QPoint(20, 24), ink));
    EXPECT_TRUE(Comes([&] { return screen.TitleOf(dialog) == "True Type Symbols (7520)"; }));
    EXPECT_EQ(ColourAt(strip + QPoint(19, 24)), paper);
    EXPECT_EQ(ColourAt(strip + QPoint(59, 63)), ink);
    // The arrow at the right end, once: one symbol on.
    Click(strip + QPoint(545, 218 + 6 + 10));
    MoveTo(strip + QPoint(15, 20));
    Press();
    MoveTo(strip + QPoint(40, 50));
    MoveTo(strip + QPoint(64, 69));
    Release();
    Click(dialog.place.topLeft() + QPoint(400, 370));
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 5, 1 + 4), ink));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 44, 1 + 43), ink));
    EXPECT_EQ(ColourAt(PlaceOf(form.Pic, 1 + 4, 1 + 4)), paper);
    Click(form.HoekKnop, 10, 10);
    Choose(Front(), form.Paste[2]);
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 5, 1 + 4), ink));
    EXPECT_TRUE(Shows(PlaceOf(form.Pic, 1 + 45, 1 + 43), paper));
}

TEST_F(ProgramLibraryDialogs, GlitterChartFollowsThePointer) {
    WritePicture("Data/Glitter.bak", 1000, 900, [](int x, int y) { return ChartColour(x, y); });
    Start();
    const QPoint corner = Open(form.LibraryGlitter) + chartFrame;
    ASSERT_TRUE(Shows(corner + QPoint(300, 200), ChartColour(300, 200)));
    MoveTo(corner + QPoint(300, 200));
    Press();
    MoveTo(corner + QPoint(260, 190));
    // What was taken hold of stays under the pointer.
    EXPECT_TRUE(Shows(corner + QPoint(260, 190), ChartColour(300, 200)));
    MoveTo(corner + QPoint(100, 150));
    EXPECT_TRUE(Shows(corner + QPoint(100, 150), ChartColour(300, 200)));
    // At its left edge it stops; up and down it still follows.
    MoveTo(corner + QPoint(640, 190));
    EXPECT_TRUE(Shows(corner + QPoint(640, 190), ChartColour(640, 200)));
    Release();
    Key("End");
    EXPECT_TRUE(Shows(corner + QPoint(300, 503), ChartColour(300, 899)));
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
}

}  // namespace
}  // namespace coinlet::test
