// The canvas by keys alone: a letter chooses the tool, the arrows move the real pointer, Space draws.

#include "started_program.h"

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;

class ProgramCanvasKeys : public StartedProgram {
protected:
    void SetUp() override {
        Start();
        // The arrow at the left end of the slider takes the pen from two pixels to one.
        Click(form.HScroll1, 5, 8);
    }
    QPoint OnCanvas(const QPoint& place) const { return PlaceOf(form.Pic, place.x(), place.y()); }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(OnCanvas(place)) == colour; });
    }
    bool PointerComesTo(const QPoint& place) {
        const bool comes = Comes([&] { return screen.Pointer() == OnCanvas(place); });
        const QPoint off = screen.Pointer() - OnCanvas(place);
        EXPECT_TRUE(comes) << off.x() << ", " << off.y() << " off";
        return comes;
    }
    static QRgb OnScreen(Colour colour) { return qRgb(Red(colour), Green(colour), Blue(colour)); }
};

TEST_F(ProgramCanvasKeys, ArrowsMoveThePointerHoweverQuicklyTheyCome) {
    Key("d");
    // The canvas shows that the keys are its own, in all four directions.
    const QRect frame = PlaceOf(form.KeysShape);
    for (const QPoint& place : {frame.topLeft(), frame.bottomRight(), frame.topRight(), frame.bottomLeft()})
        EXPECT_TRUE(Comes([&] { return ColourAt(place) == OnScreen(form.KeysShape.BorderColor); }));
    Keys("shift+Right", 7);
    Keys("Down", 40);
    EXPECT_TRUE(PointerComesTo({70, 40}));
    Keys("Right", 60);
    EXPECT_TRUE(PointerComesTo({130, 40}));
    // From where the user has put it.
    MoveTo(OnCanvas({200, 300}));
    Key("Up");
    EXPECT_TRUE(PointerComesTo({200, 299}));
    // From elsewhere on the screen it comes back.
    MoveTo({1390, 1040});
    Key("Left");
    EXPECT_TRUE(Comes([&] { return PlaceOf(form.Pic).contains(screen.Pointer()); }));
}

TEST_F(ProgramCanvasKeys, SpaceHeldDownDrawsAlongTheArrows) {
    Key("d");
    Keys("shift+Right", 5);
    Keys("shift+Down", 5);
    HoldKey("space");
    Keys("Right", 30);
    Keys("Down", 20);
    LetGoKey("space");
    Keys("Right", 10);
    ASSERT_TRUE(PointerComesTo({90, 70}));
    MoveTo({1390, 1040});
    EXPECT_TRUE(Shows({80, 69}, ink));
    const QImage canvas = Look({.id = 0, .place = PlaceOf(form.Pic)});
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const bool drawn = (y == 50 && x >= 50 && x < 80) || (x == 80 && y >= 50 && y < 70);
            ASSERT_EQ(canvas.pixel(x, y), drawn ? ink : paper) << x << ", " << y;
        }
    }
}

TEST_F(ProgramCanvasKeys, AKeyThatComesUpElsewhereEndsItsStroke) {
    Key("d");
    Keys("shift+Down", 5);
    HoldKey("space");
    Keys("Right", 30);
    ASSERT_TRUE(Shows({29, 50}, ink));
    Key("ctrl+s");
    EXPECT_EQ(screen.TitleOf(Front()), "Save Coinlet");
    LetGoKey("space");
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    MoveTo(OnCanvas({100, 100}));
    MoveTo(OnCanvas({200, 100}));
    Key("Left");
    ASSERT_TRUE(PointerComesTo({199, 100}));
    EXPECT_EQ(ColourAt(OnCanvas({150, 100})), paper);
    EXPECT_EQ(ColourAt(OnCanvas({65, 75})), paper);
}

TEST_F(ProgramCanvasKeys, ShiftTurnsAPreviewWhileThePointerRests) {
    Key("l");
    MoveTo(OnCanvas({100, 100}));
    Press();
    MoveTo(OnCanvas({200, 110}));
    ASSERT_TRUE(Shows({150, 105}, ink));
    HoldKey("shift");
    EXPECT_TRUE(Shows({150, 100}, ink));
    EXPECT_TRUE(Shows({150, 105}, paper));
    LetGoKey("shift");
    EXPECT_TRUE(Shows({150, 105}, ink));
    HoldKey("shift");
    Release();
    LetGoKey("shift");
    EXPECT_TRUE(Shows({150, 100}, ink));
    EXPECT_TRUE(Shows({150, 105}, paper));
}

TEST_F(ProgramCanvasKeys, TheToolInUseIsMarkedBehindItsButton) {
    const QPoint beside = PlaceOf(form.Knop[1], -1, 10);
    const QImage rest = Screen::Grab(PlaceOf(form.Knop[1]));
    const QRgb ground = ColourAt(beside);
    Key("l");
    EXPECT_TRUE(Comes([&] { return ColourAt(beside) == OnScreen(form.ToolShape.FillColor); }));
    // The button itself is as it was, but for the corners that are cut off.
    const QImage marked = Screen::Grab(PlaceOf(form.Knop[1]));
    for (int y = 0; y < rest.height(); ++y) {
        for (int x = 0; x < rest.width(); ++x) {
            const bool cut = (x == 0 || x == rest.width() - 1) && (y == 0 || y == rest.height() - 1);
            ASSERT_TRUE(cut || marked.pixel(x, y) == rest.pixel(x, y)) << x << ", " << y;
        }
    }
    Key("f");
    EXPECT_TRUE(Comes([&] { return ColourAt(beside) == ground; }));
}

TEST_F(ProgramCanvasKeys, ShiftAndF10TakeTheColourUnderThePointer) {
    Key("d");
    MoveTo(OnCanvas({60, 60}));
    Press();
    MoveTo(OnCanvas({160, 60}));
    ASSERT_TRUE(Shows({159, 60}, ink));
    Release();
    MoveTo(OnCanvas({100, 60}));
    Key("shift+F10");
    EXPECT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.ColorLabel, 40, 12)) == ink; }));
    EXPECT_EQ(screen.Windows().size(), 1U);
}

}  // namespace
}  // namespace coinlet::test
