// A whole road by pointer and keys: what was drawn on the screen is in the file, pixel by pixel.

#include "base/files.h"
#include "started_program.h"
#include "surface/codecs.h"

#include <string>

namespace coinlet::test {
namespace {

constexpr Colour fillColour = RGB(255, 252, 13);  // of the colour field after the start
constexpr Colour ruleColour = RGB(190, 190, 190);
constexpr int designWidth = 700, designHeight = 500;
constexpr int verticalRule = 500, horizontalRule = 330, panelLeft = 510;
const QPoint firstRow(40, 52);  // of the list of designs, in its dialog
const QPoint boxStart(120, 100), boxEnd(300, 240);

/// The box on the canvas: a black outline of one pixel through both corners, filled, on white.
Colour ExpectedOnCanvas(int x, int y) {
    if (x < boxStart.x() || x > boxEnd.x() || y < boxStart.y() || y > boxEnd.y()) return white;
    const bool outline = x == boxStart.x() || x == boxEnd.x() || y == boxStart.y() || y == boxEnd.y();
    return outline ? black : fillColour;
}

class ProgramRoad : public StartedProgram {
protected:
    void SetUp() override { Start(); }

    QPoint OnCanvas(const QPoint& place) const { return PlaceOf(form.Pic, place.x(), place.y()); }
    bool Shows(const QPoint& place, Colour colour) {
        const QRgb expected = qRgb(Red(colour), Green(colour), Blue(colour));
        return Comes([&] { return ColourAt(OnCanvas(place)) == expected; });
    }
    void DrawTheBox() {
        // The arrow at the left end of the slider takes the pen from two pixels to one.
        Click(form.HScroll1, 5, 8);
        Click(form.Knop[2], 20, 14);
        Choose(Front(), form.Vormen[1]);
        ASSERT_TRUE(MainIsInFront());
        MoveTo(OnCanvas(boxStart));
        Press();
        MoveTo(OnCanvas(boxEnd));
        Release();
        ASSERT_TRUE(Shows({boxEnd.x(), boxStart.y() + 1}, black));
    }
    void FillTheBox() {
        Click(form.Knop[5], 20, 14);
        Click(OnCanvas((boxStart + boxEnd) / 2));
        ASSERT_TRUE(Shows(boxStart + QPoint(1, 1), fillColour));
    }
    /// Saves by the keys alone.
    void SaveAs(const std::string& name) {
        Key("ctrl+s");
        EXPECT_EQ(screen.TitleOf(Front()), "Save Coinlet");
        for (const char letter : name)
            Key(std::string(1, letter));
        Key("Return");
    }
    Image Stored(const std::string& name) {
        const auto path = folder / "Ontwerpen" / (name + ".pat");
        EXPECT_TRUE(Comes([&] { return FileExists(path); }));
        const auto bytes = ReadFile(path);
        return bytes ? DecodeBmp(*bytes).value_or(Image()) : Image();
    }
};

TEST_F(ProgramRoad, FileHoldsWhatWasDrawn) {
    DrawTheBox();
    FillTheBox();
    const QImage panel = Look({.id = 0, .place = PlaceOf(form.InfoPic)});
    SaveAs("tag");
    const Image design = Stored("tag");
    ASSERT_EQ(design.Width(), designWidth);
    ASSERT_EQ(design.Height(), designHeight);
    for (int y = 0; y < designHeight; ++y)
        for (int x = 0; x < verticalRule; ++x)
            ASSERT_EQ(design.At(x, y), ExpectedOnCanvas(x, y)) << x << ", " << y;
    for (int y = 0; y < designHeight; ++y) {
        const bool onRule = y == horizontalRule;
        ASSERT_EQ(design.At(verticalRule, y), ruleColour) << y;
        for (int x = verticalRule + 1; x < panelLeft; ++x)
            ASSERT_EQ(design.At(x, y), onRule ? ruleColour : white) << x << ", " << y;
    }
    for (int x = verticalRule; x < designWidth; ++x)
        ASSERT_EQ(design.At(x, horizontalRule), ruleColour) << x;
    // The panel is stored as the screen shows it, but for the rule across.
    for (int y = 0; y < designHeight; ++y) {
        if (y == horizontalRule) continue;
        for (int x = 0; x < panel.width(); ++x) {
            const QRgb shown = panel.pixel(x, y);
            ASSERT_EQ(design.At(panelLeft + x, y), RGB(qRed(shown), qGreen(shown), qBlue(shown)))
                << x << ", " << y;
        }
    }
    // Once the dialog has shown that all is saved, nothing is left that anybody could lose.
    ASSERT_TRUE(MainIsInFront());
    CloseBox();
    EXPECT_TRUE(EndsWell());
}

TEST_F(ProgramRoad, DesignIsOpenedAfterTheProgramWasKilled) {
    DrawTheBox();
    FillTheBox();
    SaveAs("tag");
    // The file is there before the bar is full.
    ASSERT_FALSE(Stored("tag").Empty());
    Kill();

    Start();
    Key("ctrl+o");
    const OpenWindow dialog = Front();
    ASSERT_EQ(screen.TitleOf(dialog), "Open Coinlet");
    Click(dialog.place.topLeft() + firstRow);
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    ASSERT_TRUE(Shows((boxStart + boxEnd) / 2, fillColour));
    const QImage canvas = Look({.id = 0, .place = PlaceOf(form.Pic)});
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const QRgb shown = canvas.pixel(x, y);
            ASSERT_EQ(RGB(qRed(shown), qGreen(shown), qBlue(shown)), ExpectedOnCanvas(x, y))
                << x << ", " << y;
        }
    }
}

TEST_F(ProgramRoad, NameOfTheOpenDesignIsReplacedByTyping) {
    SaveAs("tag");
    ASSERT_FALSE(Stored("tag").Empty());
    ASSERT_TRUE(MainIsInFront());
    Key("ctrl+o");
    Front();
    Key("Down");
    Key("Return");
    ASSERT_TRUE(MainIsInFront());
    SaveAs("other");
    EXPECT_FALSE(Stored("other").Empty());
    EXPECT_TRUE(MainIsInFront());
}

TEST_F(ProgramRoad, PromptOfTheInfoTextIsReplacedByTyping) {
    Choose(OpenMenu(form.Bewerken), form.BewerkenInformation);
    EXPECT_EQ(screen.TitleOf(Front()), "Coinlet Info Text");
    Key("a");
    Key("Return");
    Key("b");
    Key("Tab");
    Key("space");
    ASSERT_TRUE(MainIsInFront());
    SaveAs("tag");
    ASSERT_TRUE(MainIsInFront());
    const auto bytes = ReadFile(folder / "Ontwerpen" / "tag.txt");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(std::string(bytes->begin(), bytes->end()),
              "Ivo Kestrell Software 2014\r\n--------------------------\r\na\r\nb\r\n\r\n");
}

TEST_F(ProgramRoad, DialogHasTheKeysAgainAfterItsQuestion) {
    SaveAs("tag");
    ASSERT_FALSE(Stored("tag").Empty());
    ASSERT_TRUE(MainIsInFront());
    SaveAs("tag");
    Front(1);
    // Not over the older one: it gets another name.
    Key("Escape");
    ASSERT_TRUE(Comes([&] { return screen.Windows().size() == 2; }));
    const OpenWindow dialog = Front();
    EXPECT_EQ(screen.TitleOf(dialog), "Save Coinlet");
    ASSERT_TRUE(Comes([&] { return screen.HasTheKeys(dialog); }));
    Key("2");
    Key("Return");
    EXPECT_FALSE(Stored("tag2").Empty());
    EXPECT_TRUE(MainIsInFront());
}

}  // namespace
}  // namespace coinlet::test
