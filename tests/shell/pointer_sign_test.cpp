// The picture that stands for the pointer where the window system doesn't let a program move it.

#include "shell/pointer_sign.h"

#include "sample_form.h"
#include "shell/form_window.h"
#include "user.h"

#include <QImage>

namespace coinlet::test {
namespace {

class PointerSigns : public ShellTest {
protected:
    QWidget& Canvas() { return platform.WindowOf(form)->ViewOf(form.Pic)->Widget(); }
    /// What the widget paints now.
    QImage Painted() {
        QImage picture(Canvas().size(), QImage::Format_RGB32);
        Canvas().render(&picture);
        return picture;
    }

    SampleForm form{services};
};

TEST_F(PointerSigns, ThisWindowSystemMovesThePointer) {
    EXPECT_TRUE(PointerCanBeMoved());
}

TEST_F(PointerSigns, ACrossStandsWithItsMiddleAtThePlace) {
    form.Pic.MousePointer = crossPointer;
    Run(form, [&](User& user) {
        user.Has([&] {
            const QImage before = Painted();
            PointerSign sign;
            sign.ShowOn(Canvas(), QPoint(60, 70));
            const QImage one = Painted();
            EXPECT_EQ(one.pixel(60, 70), qRgb(0, 0, 0));
            EXPECT_EQ(one.pixel(60, 65), qRgb(0, 0, 0));
            EXPECT_EQ(one.pixel(65, 70), qRgb(0, 0, 0));
            EXPECT_NE(one.pixel(64, 74), qRgb(0, 0, 0));
            sign.ShowOn(Canvas(), QPoint(90, 40));
            const QImage other = Painted();
            EXPECT_EQ(other.pixel(90, 40), qRgb(0, 0, 0));
            EXPECT_EQ(other.copy(50, 60, 20, 20), before.copy(50, 60, 20, 20));
        });
    });
}

TEST_F(PointerSigns, ThePencilStandsWithItsPointAtThePlace) {
    form.Pic.MousePointer = toolPointer;
    Run(form, [&](User& user) {
        user.Has([&] {
            PointerSign sign;
            const QImage before = Painted();
            sign.ShowOn(Canvas(), QPoint(60, 70));
            const QImage after = Painted();
            // The pencil leans to the upper right of its point.
            EXPECT_NE(after.copy(60, 40, 30, 30), before.copy(60, 40, 30, 30));
            EXPECT_EQ(after.copy(30, 40, 28, 60), before.copy(30, 40, 28, 60));
            EXPECT_EQ(after.copy(58, 73, 60, 20), before.copy(58, 73, 60, 20));
        });
    });
}

TEST_F(PointerSigns, ItGoesWhenThePointerIsUsedAndWhenTheKeysGoElsewhere) {
    PointerSign sign;
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.Pic, 20, 20));
        user.Has([&] {
            form.Pic.SetFocus();
            platform.Mirror();
            sign.ShowOn(Canvas(), QPoint(60, 70));
            EXPECT_TRUE(sign.IsShown());
        });
        user.MoveTo(user.PlaceOf(form.Pic, 25, 30));
        EXPECT_TRUE(user.Sees([&] { return !sign.IsShown(); }));
        user.Has([&] {
            form.Text1.SetFocus();
            platform.Mirror();
            sign.ShowOn(platform.WindowOf(form)->ViewOf(form.Text1)->Widget(), QPoint(10, 10));
            EXPECT_TRUE(sign.IsShown());
            form.Combo1.SetFocus();
            platform.Mirror();
            EXPECT_FALSE(sign.IsShown());
        });
    });
}

}  // namespace
}  // namespace coinlet::test
