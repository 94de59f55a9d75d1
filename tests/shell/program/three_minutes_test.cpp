// A tag in three minutes: circle, fill, text, border, hole, saved. By the pointer, and by keys alone.

#include "base/files.h"
#include "started_program.h"
#include "surface/codecs.h"

#include <filesystem>

namespace coinlet::test {
namespace {

constexpr Colour fillColour = RGB(255, 252, 13);  // of the colour field after the start
constexpr Colour goldBorder = RGB(200, 150, 20);
constexpr int frameSide = 500, borderDepth = 20;
const QPoint circleStart(50, 50), circleEnd(450, 450), inCircle(250, 150), textPlace(300, 300), hole(250, 90);

// In the dialogs, from their upper left corner.
const QPoint secondBorder(60, 32), goldOption(498, 94), borderExport(490, 292), saveButton(183, 80);

class ProgramThreeMinutes : public StartedProgram {
protected:
    void SetUp() override {
        std::filesystem::remove_all(folder / "Borders");
        std::filesystem::create_directory(folder / "Borders");
        for (const char* name : {"1.gif", "2.gif"}) {
            Bitmap strip(4 * frameSide, frameSide, ToPixel(white));
            for (int y = 0; y < borderDepth && name[0] == '2'; ++y)
                for (int x = 3 * frameSide; x < 4 * frameSide; ++x)
                    strip.Row(y)[x] = ToPixel(goldBorder);
            ASSERT_FALSE(SavePicture(Image(std::move(strip)), folder / "Borders" / name));
        }
        Start();
    }

    QPoint OnCanvas(const QPoint& place) const { return PlaceOf(form.Pic, place.x(), place.y()); }
    bool Shows(const QPoint& place, Colour colour) {
        const QRgb expected = qRgb(Red(colour), Green(colour), Blue(colour));
        return Comes([&] { return ColourAt(OnCanvas(place)) == expected; });
    }
    bool TextIsOnCanvas() {
        // It ends above and to the left of its place, in black on the fill.
        const QRect box(OnCanvas(textPlace - QPoint(100, 35)), OnCanvas(textPlace - QPoint(5, 5)));
        return Comes([&] {
            const QImage shown = Screen::Grab(box);
            int ink = 0;
            for (int y = 0; y < shown.height(); ++y)
                for (int x = 0; x < shown.width(); ++x)
                    ink += shown.pixel(x, y) == 0xFF000000 ? 1 : 0;
            return ink > 100;
        });
    }
    void TypeName(const std::string& name) {
        for (const char letter : name)
            Key(std::string(1, letter));
    }
    Image Stored(const std::string& name) {
        const auto path = folder / "Ontwerpen" / (name + ".pat");
        EXPECT_TRUE(Comes([&] { return FileExists(path); }));
        EXPECT_TRUE(MainIsInFront());
        const auto bytes = ReadFile(path);
        return bytes ? DecodeBmp(*bytes).value_or(Image()) : Image();
    }

    // --- By the pointer ------------------------------------------------------------------------------------
    void Arm(int tool) { Click(form.Knop[tool], 20, 14); }
    void MakeByPointer() {
        Arm(2);
        Choose(Front(), form.Vormen[3]);
        ASSERT_TRUE(MainIsInFront());
        MoveTo(OnCanvas(circleStart));
        Press();
        MoveTo(OnCanvas(circleEnd));
        Release();
        ASSERT_TRUE(Shows({circleStart.x(), 250}, black));
        Arm(5);
        Click(OnCanvas(inCircle));
        ASSERT_TRUE(Shows(inCircle, fillColour));
        Arm(8);
        Click(form.PlaatsKnop, 40, 15);
        Click(OnCanvas(textPlace));
        ASSERT_TRUE(TextIsOnCanvas());
        Click(form.ExitKnop, 40, 14);
        Choose(OpenMenu(form.Bib), form.LibraryBorders);
        const QPoint corner = Front().place.topLeft();
        Click(corner + secondBorder);
        Click(corner + goldOption);
        Click(corner + borderExport);
        ASSERT_TRUE(MainIsInFront());
        ASSERT_TRUE(Shows({250, 5}, goldBorder));
        Arm(14);
        Click(OnCanvas(hole));
        ASSERT_TRUE(Shows(hole, white));
        Choose(OpenMenu(form.File), form.FileSave);
        const QPoint dialog = Front().place.topLeft();
        TypeName("pointer");
        Click(dialog + saveButton);
    }

    // --- By keys -------------------------------------------------------------------------------------------
    void Go(const char* forward, const char* backward, int way) {
        const std::string key = way < 0 ? backward : forward;
        constexpr int longStep = 10;
        if (const int steps = std::abs(way) / longStep; steps > 0) Keys("shift+" + key, steps);
        if (const int steps = std::abs(way) % longStep; steps > 0) Keys(key, steps);
    }
    void GoTo(const QPoint& place) {
        Go("Right", "Left", place.x() - at_.x());
        Go("Down", "Up", place.y() - at_.y());
        at_ = place;
        ASSERT_TRUE(Comes([&] { return screen.Pointer() == OnCanvas(place); }));
    }
    void MakeByKeys() {
        Key("s");
        Front();
        Key("e");
        ASSERT_TRUE(MainIsInFront());
        GoTo(circleStart);
        HoldKey("space");
        GoTo(circleEnd);
        LetGoKey("space");
        ASSERT_TRUE(Shows({circleStart.x(), 250}, black));
        Key("f");
        GoTo(inCircle);
        Key("space");
        ASSERT_TRUE(Shows(inCircle, fillColour));
        Key("t");
        // Text, font, size, six ticks, and the button.
        Keys("Tab", 9);
        Key("space");
        GoTo(textPlace);
        Key("space");
        ASSERT_TRUE(TextIsOnCanvas());
        Key("Escape");
        Key("alt+l");
        Front();
        Key("t");
        ASSERT_TRUE(Comes([&] { return screen.TitleOf(Front()) == form.LibraryBorders.Caption; }));
        Key("Down");
        Key("Tab");
        Keys("Down", 3);
        // Two ticks are passed.
        Keys("Tab", 3);
        Key("space");
        ASSERT_TRUE(MainIsInFront());
        ASSERT_TRUE(Shows({250, 5}, goldBorder));
        Key("h");
        GoTo(hole);
        Key("space");
        ASSERT_TRUE(Shows(hole, white));
        Key("alt+f");
        Front();
        Key("s");
        ASSERT_TRUE(Comes([&] { return screen.TitleOf(Front()) == "Save Coinlet"; }));
        TypeName("keys");
        Key("Return");
    }

private:
    QPoint at_{0, 0};  ///< Where the keys have brought the pointer.
};

TEST_F(ProgramThreeMinutes, KeysAndPointerMakeTheSameTag) {
    ASSERT_NO_FATAL_FAILURE(MakeByPointer());
    const Image byPointer = Stored("pointer");
    ASSERT_EQ(byPointer.Width(), 700);
    Kill();
    Start();
    ASSERT_NO_FATAL_FAILURE(MakeByKeys());
    const Image byKeys = Stored("keys");
    ASSERT_EQ(byKeys.Width(), 700);

    EXPECT_EQ(byKeys.At(hole.x(), hole.y()), white);
    EXPECT_EQ(byKeys.At(inCircle.x(), 200), fillColour);
    EXPECT_EQ(byKeys.At(circleStart.x(), 250), black);
    EXPECT_EQ(byKeys.At(250, 5), goldBorder);
    EXPECT_EQ(byKeys.At(250, 480), white);
    for (int y = 0; y < byKeys.Height(); ++y)
        for (int x = 0; x < byKeys.Width(); ++x)
            ASSERT_EQ(byKeys.At(x, y), byPointer.At(x, y)) << x << ", " << y;
}

}  // namespace
}  // namespace coinlet::test
