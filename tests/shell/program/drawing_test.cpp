// Drawing by hand: what the pointer draws is on the screen, pixel by pixel.

#include "started_program.h"

#include <vector>

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;

QPoint StepOf(const QPoint& way) {
    const auto sign = [](int number) { return number > 0 ? 1 : number < 0 ? -1 : 0; };
    return {sign(way.x()), sign(way.y())};
}

/// The canvas with polylines of a pen of one pixel. Their pieces are horizontal, vertical or diagonal, so
/// that each of their pixels is certain; a piece stops one pixel short of its end.
QImage Expected(const std::vector<std::vector<QPoint>>& strokes) {
    QImage canvas(canvasSide, canvasSide, QImage::Format_RGB32);
    canvas.fill(paper);
    for (const auto& stroke : strokes) {
        for (std::size_t i = 1; i < stroke.size(); ++i) {
            const QPoint step = StepOf(stroke[i] - stroke[i - 1]);
            for (QPoint at = stroke[i - 1]; at != stroke[i]; at += step)
                canvas.setPixel(at, ink);
        }
    }
    return canvas;
}

class ProgramDrawing : public StartedProgram {
protected:
    void SetUp() override {
        Start();
        // The arrow at the left end of the slider takes the pen from two pixels to one.
        Click(form.HScroll1, 5, 8);
    }
    void Arm(const Control& tool) { Click(tool, 20, 14); }
    QPoint OnCanvas(const QPoint& place) const { return PlaceOf(form.Pic, place.x(), place.y()); }
    bool Shows(const QPoint& place, QRgb colour) {
        return Comes([&] { return ColourAt(OnCanvas(place)) == colour; });
    }
    /// Drags along the stroke, always waiting until the screen shows where the pointer is, for of moves that
    /// come too quickly a program only sees the last.
    void Drag(const std::vector<QPoint>& stroke) {
        MoveTo(OnCanvas(stroke.front()));
        Press();
        for (std::size_t i = 1; i < stroke.size(); ++i) {
            MoveTo(OnCanvas(stroke[i]));
            EXPECT_TRUE(Shows(stroke[i] - StepOf(stroke[i] - stroke[i - 1]), ink)) << i;
        }
        Release();
    }
    /// Compares the whole canvas, once it has come to rest, and names the first wrong pixel.
    void ExpectCanvas(const QImage& expected) {
        const OpenWindow canvas{.id = 0, .place = PlaceOf(form.Pic)};
        EXPECT_TRUE(Comes([&] { return Screen::Grab(canvas.place) == expected; }));
        const QImage shown = Look(canvas);
        ASSERT_EQ(shown.size(), expected.size());
        for (int y = 0; y < expected.height(); ++y)
            for (int x = 0; x < expected.width(); ++x)
                ASSERT_EQ(shown.pixel(x, y), expected.pixel(x, y)) << x << ", " << y;
    }
};

TEST_F(ProgramDrawing, FreeHandStrokeIsWhereThePointerWent) {
    const std::vector<QPoint> house{{100, 300}, {100, 200}, {150, 150}, {200, 200},
                                    {200, 300}, {100, 300}, {200, 200}, {100, 200}};
    Arm(form.Knop[0]);
    Drag(house);
    ExpectCanvas(Expected({house}));
}

TEST_F(ProgramDrawing, LineJoinsPressAndRelease) {
    const std::vector<std::vector<QPoint>> lines{
        {{20, 30}, {470, 30}}, {{250, 480}, {250, 60}}, {{60, 60}, {440, 440}}, {{499, 0}, {0, 499}}};
    Arm(form.Knop[1]);
    for (const auto& line : lines)
        Drag(line);
    ExpectCanvas(Expected(lines));
}

TEST_F(ProgramDrawing, LineLeavesNothingOfItsWay) {
    Arm(form.Knop[1]);
    MoveTo(OnCanvas({100, 100}));
    Press();
    for (const QPoint& place : {QPoint(400, 100), QPoint(400, 400), QPoint(100, 400)}) {
        MoveTo(OnCanvas(place));
        EXPECT_TRUE(Shows(place - StepOf(place - QPoint(100, 100)), ink));
    }
    Release();
    ExpectCanvas(Expected({{{100, 100}, {100, 400}}}));
}

TEST_F(ProgramDrawing, UndoTakesTheLastStrokeBack) {
    const std::vector<QPoint> first{{50, 50}, {450, 50}}, second{{50, 90}, {450, 90}};
    Arm(form.Knop[0]);
    Drag(first);
    Drag(second);
    ExpectCanvas(Expected({first, second}));
    Key("ctrl+z");
    ExpectCanvas(Expected({first}));
}

TEST_F(ProgramDrawing, RightButtonDrawsNothingAndTakesAColour) {
    Arm(form.Knop[0]);
    Drag({{50, 50}, {450, 50}});
    // The colour field shows what lies under the pointer: the stroke's black.
    MoveTo(OnCanvas({200, 50}));
    ClickRight();
    EXPECT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.ColorLabel, 40, 12)) == ink; }));
    ExpectCanvas(Expected({{{50, 50}, {450, 50}}}));
}

}  // namespace
}  // namespace coinlet::test
