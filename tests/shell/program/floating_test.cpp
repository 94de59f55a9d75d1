// Images that float over the canvas, by the real pointer: copied, dragged to their place and pasted. And the
// menu of flips.

#include "started_program.h"

#include <QTransform>

namespace coinlet::test {
namespace {

constexpr QRgb ink = 0xFF000000, paper = 0xFFFFFFFF;

class ProgramFloating : public StartedProgram {
protected:
    /// With one hole in the upper left quarter of the canvas, so that there is something to see.
    void SetUp() override {
        Start();
        Click(form.Knop[14], 20, 14);
        Click(OnCanvas({120, 100}));
        ASSERT_TRUE(Comes([&] { return ColourAt(OnCanvas({80, 100})) != paper; }));
        // Off the canvas, where no marker follows it.
        MoveTo({1390, 1040});
        before = Look(Canvas());
    }

    QPoint OnCanvas(const QPoint& place) const { return PlaceOf(form.Pic, place.x(), place.y()); }
    OpenWindow Canvas() const { return {.id = 0, .place = PlaceOf(form.Pic)}; }
    QImage ShownOf(const QRect& part) const { return Screen::Grab(part.translated(OnCanvas({0, 0}))); }
    bool CanvasBecomes(const QImage& expected) {
        MoveTo({1390, 1040});
        return Comes([&] { return Screen::Grab(PlaceOf(form.Pic)) == expected; });
    }
    void Drag(const QPoint& from, const QPoint& to) {
        MoveTo(OnCanvas(from));
        Press();
        MoveTo(OnCanvas((from + to) / 2));
        MoveTo(OnCanvas(to));
        Release();
    }

    QImage before;
};

TEST_F(ProgramFloating, ACopyIsPastedWhereItIsSeen) {
    const QRect area(60, 40, 121, 111);
    Click(form.Knop[12], 20, 14);
    Drag(area.topLeft(), area.bottomRight());
    // It floats at the corner, inside a dotted frame of one pixel.
    EXPECT_TRUE(Comes([&] { return ColourAt(OnCanvas({2, 0})) == ink; }));
    EXPECT_TRUE(Comes([&] { return ShownOf(QRect(QPoint(1, 1), area.size())) == before.copy(area); }));
    Drag({30, 30}, {280, 330});
    const QRect goal(QPoint(251, 301), area.size());
    ASSERT_TRUE(Comes([&] { return ShownOf(goal) == before.copy(area); }));
    EXPECT_EQ(Screen::Grab(QRect(OnCanvas({0, 0}), QSize(200, 200))), before.copy(0, 0, 200, 200));

    Click(form.HoekKnop, 10, 10);
    Choose(Front(), form.Paste[1]);
    QImage expected = before;
    for (int y = 0; y < goal.height(); ++y) {
        for (int x = 0; x < goal.width(); ++x)
            expected.setPixel(goal.topLeft() + QPoint(x, y), before.pixel(area.topLeft() + QPoint(x, y)));
    }
    EXPECT_TRUE(CanvasBecomes(expected));
    Key("ctrl+z");
    EXPECT_TRUE(CanvasBecomes(before));
}

TEST_F(ProgramFloating, TheBrowsersPictureFloatsUntilItIsCancelled) {
    Click(form.OkKnop, 40, 14);
    // The picture that the browser starts with.
    const QImage picture = Screen::Grab(PlaceOf(form.Pic2));
    EXPECT_TRUE(Comes([&] { return ShownOf(QRect(QPoint(1, 1), picture.size())) == picture; }));
    Click(form.HoekKnop, 10, 10);
    Choose(Front(), form.Paste[5]);
    EXPECT_TRUE(CanvasBecomes(before));
}

TEST_F(ProgramFloating, FlipsAreChosenInTheirMenu) {
    Click(form.Knop[13], 20, 14);
    Choose(Front(), form.FlipPic[3]);
    EXPECT_TRUE(CanvasBecomes(before.mirrored(true, false)));
    Click(form.Knop[13], 20, 14);
    Choose(Front(), form.FlipPic[5]);
    const QImage mirrored = before.mirrored(true, false);
    EXPECT_TRUE(CanvasBecomes(mirrored.transformed(QTransform().rotate(-90))));
}

}  // namespace
}  // namespace coinlet::test
