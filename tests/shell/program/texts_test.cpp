// Texts on the screen: one that hangs on the pointer until a click burns it in, and one along a circle.

#include "started_program.h"

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;
constexpr int textTool = 8, curvedTextTool = 7;
constexpr int distance = 5;  // between text and pointer

/// The smallest box that holds all that isn't paper.
QRect Inked(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != paper) box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

bool IsCrisp(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != paper && image.pixel(x, y) != ink) return false;
        }
    }
    return true;
}

class ProgramTexts : public StartedProgram {
protected:
    void SetUp() override { Start(); }
    QPoint OnCanvas(int x, int y) const { return PlaceOf(form.Pic, x, y); }
    QImage Canvas() const { return Screen::Grab(PlaceOf(form.Pic)); }
    /// True once something shows on the canvas that ends before the pointer at (x, y), and not far from it.
    bool HangsOn(int x, int y) {
        return Comes([&] {
            const QRect box = Inked(Canvas());
            return !box.isEmpty() && box.right() < x - distance && box.right() > x - 40 &&
                   box.bottom() < y - distance && box.bottom() > y - 40;
        });
    }
};

TEST_F(ProgramTexts, TextHangsOnThePointerUntilAClickBurnsItIn) {
    Click(form.Knop[textTool], 20, 14);
    Click(form.PlaatsKnop, 60, 15);
    MoveTo(OnCanvas(400, 300));
    ASSERT_TRUE(HangsOn(400, 300));
    MoveTo(OnCanvas(350, 200));
    ASSERT_TRUE(HangsOn(350, 200));
    // Quicker than the text, right onto it.
    MoveTo(OnCanvas(300, 185));
    ASSERT_TRUE(HangsOn(300, 185));
    Click(OnCanvas(300, 185));
    // What shows now are the letters of the canvas, whose edges have no half-tones, and they stay there.
    MoveTo(OnCanvas(450, 450));
    EXPECT_TRUE(Comes([&] { return IsCrisp(Canvas()) && HangsOn(300, 185); }));
    Key("ctrl+z");
    EXPECT_TRUE(Comes([&] { return Inked(Canvas()).isEmpty(); }));
}

TEST_F(ProgramTexts, CurvedTextGoesToTheCanvasWhenItIsExported) {
    Click(form.Knop[curvedTextTool], 20, 14);
    const OpenWindow dialog = Front();
    ASSERT_EQ(screen.TitleOf(dialog), "Curved Text");
    const QRect picture(dialog.place.topLeft() + QPoint(12, 12), QSize(canvasSide, canvasSide));
    EXPECT_TRUE(Inked(Screen::Grab(picture)).isEmpty());
    // The text has the focus, and Enter draws it: from the left over the top, sixteen letters of 8 degrees.
    Key("Return");
    ASSERT_TRUE(Comes([&] {
        const QRect box = Inked(Screen::Grab(picture));
        return box.left() < 70 && box.top() < 70 && box.right() > 300 && box.bottom() < 280;
    }));
    const QImage drawn = Screen::Grab(picture);
    Click(dialog.place.topLeft() + QPoint(580, 534));
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Comes([&] { return Canvas() == drawn; }));
}

TEST_F(ProgramTexts, CurvedTextIsDroppedWhenItIsCancelled) {
    Click(form.Knop[curvedTextTool], 20, 14);
    const OpenWindow dialog = Front();
    const QRect picture(dialog.place.topLeft() + QPoint(12, 12), QSize(canvasSide, canvasSide));
    Click(dialog.place.topLeft() + QPoint(640, 498));
    ASSERT_TRUE(Comes([&] { return !Inked(Screen::Grab(picture)).isEmpty(); }));
    Key("Escape");
    ASSERT_TRUE(MainIsInFront());
    EXPECT_TRUE(Comes([&] { return Inked(Canvas()).isEmpty(); }));
    EXPECT_TRUE(Runs());
}

}  // namespace
}  // namespace coinlet::test
