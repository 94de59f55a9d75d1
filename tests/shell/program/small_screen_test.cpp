// The program on a screen that may be too small for its main window: what is cut off can be reached.

#include "base/numbers.h"
#include "controls/house_colours.h"
#include "started_program.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace coinlet::test {
namespace {

class OnEveryScreen : public StartedProgram {
protected:
    /// The middle of what is of the fill colour, which stands in the column farthest to the right; nothing if
    /// less of it is seen than can be pressed.
    QPoint FillColour(const OpenWindow& window) {
        const QImage look = Look(window);
        const QRgb wanted = qRgb(Red(accentColour), Green(accentColour), Blue(accentColour));
        QRect found;
        for (int y = 0; y < look.height(); ++y) {
            int run = 0;
            for (int x = 0; x < look.width(); ++x) {
                run = look.pixel(x, y) == wanted ? run + 1 : 0;
                constexpr int enough = 100;
                if (run >= enough) found |= QRect(x - run + 1, y, run, 1);
            }
        }
        return found.isEmpty() ? QPoint() : window.place.topLeft() + found.center();
    }
};

TEST_F(OnEveryScreen, TheRightmostColumnIsReached) {
    Start();
    const OpenWindow window = screen.Windows().front();
    const QRect room = QGuiApplication::primaryScreen()->geometry();
    const int formWidth = RoundHalfEven(form.Width / form.ChildUnitsPerPixel());
    EXPECT_EQ(window.place.width(), std::min(formWidth, room.width()));
    EXPECT_LE(window.place.height(), room.height());
    EXPECT_EQ(FillColour(window).isNull(), formWidth > room.width());
    if (formWidth > room.width()) {
        const QPoint thumb(window.place.center().x(), window.place.bottom() - 6);
        MoveTo(thumb);
        Press();
        MoveTo(thumb + QPoint(room.width() / 2, 0));
        Release();
    }
    const QPoint place = FillColour(window);
    ASSERT_FALSE(place.isNull());
    Click(place);
    // The chooser of colours, whole or with bars of its own.
    const OpenWindow dialog = Front();
    EXPECT_TRUE(room.contains(dialog.place));
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
}

}  // namespace
}  // namespace coinlet::test
