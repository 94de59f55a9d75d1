// What the screen shows where one pixel of the program is not one of the screen. Run at several scales, and
// with two screens, from the first of which the window comes to the second.

#include "controls/fine_button.h"
#include "sample_form.h"
#include "shell/form_window.h"
#include "surface/finer_edition.h"
#include "user.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <cmath>
#include <functional>

namespace coinlet::test {
namespace {

constexpr QRgb edge = qRgb(140, 140, 110);

int Rounded(double value) {
    return static_cast<int>(std::floor(value + 0.5));
}

class Scaled : public ShellTest {
protected:
    static QScreen& Where() { return *QGuiApplication::screens().last(); }
    static double Scale() { return Where().devicePixelRatio(); }

    void Run(Form& form, const std::function<void(User&)>& work) {
        ShellTest::Run(form, [&](User& user) {
            FormWindow& window = *platform.WindowOf(form);
            // Not under the pointer, which is in the middle of all screens.
            if (window.screen() != &Where())
                user.MoveWindow(window, Where().geometry().topLeft() + QPoint(100, 60));
            EXPECT_TRUE(user.Sees(
                [&] { return window.screen() == &Where() && window.size() == window.maximumSize(); }));
            EXPECT_TRUE(user.SeesPainted(window));
            work(user);
        });
    }
    int Thickness() { return std::max(1, Rounded(Scale())); }

    /// The screen's pixels that show a rectangle of a control's widget.
    QRect OnScreen(const Control& control, const QRect& part) {
        const QWidget& widget = platform.WindowOf(control.OwnerForm())->ViewOf(control)->Widget();
        const QRectF place = QRectF(part).translated(widget.mapTo(widget.window(), QPoint(0, 0)));
        const int left = Rounded(place.left() * Scale()), top = Rounded(place.top() * Scale());
        const QPoint corner =
            (widget.window()->mapToGlobal(QPoint(0, 0)) - Where().geometry().topLeft()) * Scale();
        return QRect(left, top, Rounded(place.right() * Scale()) - left,
                     Rounded(place.bottom() * Scale()) - top)
            .translated(corner);
    }
    QImage Look(const QRect& place) {
        return Where().grabWindow(0).toImage().copy(place).convertToFormat(QImage::Format_RGB32);
    }
    QImage Look(const Control& control) {
        const QWidget& widget = platform.WindowOf(control.OwnerForm())->ViewOf(control)->Widget();
        return Look(OnScreen(control, widget.rect()));
    }
    /// If all of a line of the picture, between these columns, has one colour.
    static bool IsLine(const QImage& look, int y, int from, int to, QRgb colour) {
        for (int x = from; x < to; ++x)
            if (look.pixel(x, y) != colour) return false;
        return true;
    }

    SampleForm form{services};
};

TEST_F(Scaled, FramesHaveAllFourLines) {
    Run(form, [&](User& user) {
        user.Has([&] {
            const int thickness = Thickness();
            for (const Control* control :
                 std::initializer_list<const Control*>{&form.Label2, &form.Frame1, &form.Text2}) {
                SCOPED_TRACE(control->Name());
                const QImage look = Look(*control);
                const QImage sidewise = look.transformed(QTransform().rotate(90));
                const int width = look.width(), height = look.height();
                // The caption of the frame stands in its upper line, which lies lower.
                const bool hasCaption = control == &form.Frame1;
                const int left = hasCaption ? height / 2 : 0;
                // The toolkit's own frames are at least one line of the screen wide, those of the program as
                // wide as the scale says.
                const bool isOwn = control == &form.Label2 || hasCaption;
                for (int i = 0; i < (isOwn ? thickness : 1); ++i) {
                    if (!hasCaption) {
                        EXPECT_TRUE(IsLine(look, i, 0, width, edge)) << "upper " << i;
                    }
                    EXPECT_TRUE(IsLine(look, height - 1 - i, 0, width, edge)) << "lower " << i;
                    EXPECT_TRUE(IsLine(sidewise, i, 0, height - left, edge)) << "left " << i;
                    EXPECT_TRUE(IsLine(sidewise, width - 1 - i, 0, height - left, edge)) << "right " << i;
                }
                if (!hasCaption) continue;
                int upper = 0;
                for (int y = 0; y < height / 2; ++y)
                    upper += IsLine(look, y, width * 3 / 4, width, edge) ? 1 : 0;
                EXPECT_EQ(upper, thickness);
            }
        });
    });
}

TEST_F(Scaled, TheRingAroundACaptionIsEven) {
    constexpr QRgb ring = qRgb(60, 127, 177), inner = qRgb(255, 255, 255);
    Run(form, [&](User& user) {
        user.Has([&] { form.Check1.SetFocus(), platform.Mirror(); });
        QImage look;
        QRect found;
        EXPECT_TRUE(user.Sees([&] {
            look = Look(form.Check1);
            for (int y = 0; y < look.height(); ++y) {
                for (int x = 0; x < look.width(); ++x)
                    if (look.pixel(x, y) == ring) found |= QRect(x, y, 1, 1);
            }
            return !found.isEmpty();
        }));
        const QImage box = look.copy(found);
        for (const int turn : {0, 90, 180, 270}) {
            SCOPED_TRACE(turn);
            const QImage turned = box.transformed(QTransform().rotate(turn));
            const int thickness = Thickness(), width = turned.width();
            for (int i = 0; i < thickness; ++i) {
                EXPECT_TRUE(IsLine(turned, i, 0, width, ring));
                EXPECT_TRUE(IsLine(turned, thickness + i, thickness, width - thickness, inner));
            }
            EXPECT_FALSE(IsLine(turned, 2 * thickness, 2 * thickness, width - 2 * thickness, inner));
        }
    });
}

TEST_F(Scaled, FieldsHaveALineOnEverySide) {
    Run(form, [&](User& user) {
        user.Has([&] {
            for (const Control* control :
                 std::initializer_list<const Control*>{&form.Text1, &form.Combo1, &form.List1}) {
                SCOPED_TRACE(control->Name());
                const QImage look = Look(*control);
                const QRgb paper = look.pixel(look.width() / 2, look.height() / 2 + Rounded(7 * Scale()));
                const QRgb ground = qRgb(220, 220, 190);
                for (const QImage& turned : {look, look.transformed(QTransform().rotate(90)),
                                             look.transformed(QTransform().rotate(180)),
                                             look.transformed(QTransform().rotate(270))}) {
                    // From the outside inward there is something that is neither form nor field.
                    bool isThere = false;
                    for (int y = 0; y <= 2 * Thickness(); ++y) {
                        const QRgb colour = turned.pixel(turned.width() / 2, y);
                        const bool isLine = colour != ground && colour != paper;
                        isThere = isThere || (isLine && IsLine(turned, y, turned.width() / 4,
                                                               turned.width() * 3 / 4, colour));
                    }
                    EXPECT_TRUE(isThere);
                }
            }
        });
    });
}

TEST_F(Scaled, ButtonsAreDrawnInPixelsOfTheScreen) {
    form.OkKnop.SetCaption("");
    form.OkKnop.SetPictures(1);
    Bitmap strip(10, 10, ToPixel(RGB(0, 255, 0)));
    Bitmap fine(60, 60, ToPixel(RGB(0, 255, 0)));
    for (int i = 0; i < 10; ++i)
        strip.Row(i)[i] = ToPixel(black);
    for (int i = 0; i < 60; ++i)
        fine.Row(i)[i] = fine.Row(i)[59 - i] = ToPixel(RGB(0, 0, 200));
    form.OkKnop.SetPicture(Image(std::move(strip)));
    HasFinerEdition(form.OkKnop.Picture(), [picture = Image(std::move(fine))] { return picture; });
    Run(form, [&](User& user) {
        user.Has([&] {
            const QImage look = Look(form.OkKnop);
            Surface face(fonts, look.width(), look.height());
            DrawFineButton(face, form.OkKnop);
            const PixelRect uncut = UncutPart(face, form.OkKnop);
            int different = 0;
            for (int y = 0; y < look.height(); ++y) {
                for (int x = 0; x < look.width(); ++x) {
                    const bool isCut =
                        (x < uncut.left || x >= uncut.right) && (y < uncut.top || y >= uncut.bottom);
                    const Colour shown = isCut ? RGB(220, 220, 190) : face.Point(x, y);
                    different += ToColour(look.pixel(x, y)) == shown ? 0 : 1;
                }
            }
            EXPECT_EQ(different, 0);
        });
    });
}

// The same letters in the same place of a pixel: a label beside the button, and one below it.
TEST_F(Scaled, CaptionsHaveTheLettersOfLabels) {
    for (VistaButton* button : {&form.OkKnop, &form.GrayKnop}) {
        button->SetCaption("Wider Gap");
        button->SetNoBackground(true);
        button->SetBackColor(RGB(220, 220, 190));
        button->SetForeColor(RGB(80, 0, 0));
        button->SetHeight(48 * 15);
        button->SetEnabled(true);
    }
    const ButtonCaption caption = CaptionOf(form.OkKnop);
    form.Label1.Caption = "Wider Gap";
    form.Label1.ForeColor = RGB(80, 0, 0);
    form.Label1.Alignment = Alignment::Center;
    form.Label1.WordWrap = false;
    // Four pixels are a whole number of the screen's at every scale in quarters.
    constexpr int higher = 60;
    form.Label1.Move(form.OkKnop.Left() + caption.left * 15, form.OkKnop.Top() + (caption.top - higher) * 15,
                     (caption.right - caption.left) * 15, 20 * 15);
    for (Control* other : std::initializer_list<Control*>{&form.HScroll1, &form.Frame1, &form.Check1,
                                                          &form.List1, &form.Combo1, &form.Pic})
        other->Visible = false;
    Run(form, [&](User& user) {
        user.Has([&] {
            const QRect text(caption.left, caption.top, caption.right - caption.left, 16);
            const QImage onButton = Look(OnScreen(form.OkKnop, text));
            const QImage onLabel = Look(OnScreen(form.Label1, QRect(0, 0, text.width(), text.height())));
            EXPECT_EQ(onButton, onLabel);
            int ink = 0;
            for (int y = 0; y < onLabel.height(); ++y) {
                for (int x = 0; x < onLabel.width(); ++x)
                    ink += onLabel.pixel(x, y) == qRgb(220, 220, 190) ? 0 : 1;
            }
            EXPECT_GT(ink, 100);
        });
    });
}

// So do lines on pictures that are there to be read.
TEST_F(Scaled, LinesToReadHaveTheLettersOfLabels) {
    for (Control* other : std::initializer_list<Control*>{&form.HScroll1, &form.Frame1, &form.Check1,
                                                          &form.List1, &form.Combo1, &form.Shape1,
                                                          &form.PicKnop, &form.OkKnop, &form.GrayKnop})
        other->Visible = false;
    constexpr Colour ground = RGB(220, 220, 190), ink = RGB(80, 0, 0);
    // Both stand at a whole number of the screen's pixels at every scale in quarters.
    form.Pic.Move(200 * 15, 100 * 15, 160 * 15, 40 * 15);
    form.Pic.surface.SetBackColor(ground);
    form.Pic.surface.ForeColor = ink;
    form.Pic.surface.FontSize = 9;
    form.Pic.surface.CurrentX = 4;
    form.Pic.surface.CurrentY = 8;
    form.Pic.PrintToRead("Wider Gap");
    form.Label1.Caption = "Wider Gap";
    form.Label1.FontSize = 9;
    form.Label1.ForeColor = ink;
    form.Label1.Alignment = Alignment::Left;
    form.Label1.WordWrap = false;
    form.Label1.Move(204 * 15, 160 * 15, 100 * 15, 20 * 15);
    Run(form, [&](User& user) {
        user.Has([&] {
            ASSERT_EQ(form.Pic.LinesToRead().size(), 1U);
            const QImage onPicture = Look(OnScreen(form.Pic, QRect(4, 8, 80, 16)));
            const QImage onLabel = Look(OnScreen(form.Label1, QRect(0, 0, 80, 16)));
            EXPECT_EQ(onPicture, onLabel);
            int letters = 0;
            for (int y = 0; y < onLabel.height(); ++y) {
                for (int x = 0; x < onLabel.width(); ++x)
                    letters += onLabel.pixel(x, y) == qRgb(220, 220, 190) ? 0 : 1;
            }
            EXPECT_GT(letters, 100);
            // One that is drawn upon shows its pixels.
            form.Pic.surface.PSet(0, 0, black);
            platform.Mirror();
        });
        EXPECT_TRUE(user.Sees(
            [&] { return Look(OnScreen(form.Pic, QRect(0, 0, 1, 1))).pixel(0, 0) == qRgb(0, 0, 0); }));
        user.Has([&] {
            const QImage look = Look(OnScreen(form.Pic, QRect(4, 8, 80, 16)));
            for (int y = 0; y < look.height(); ++y) {
                for (int x = 0; x < look.width(); ++x) {
                    const Colour colour = ToColour(look.pixel(x, y));
                    EXPECT_TRUE(colour == ground || colour == ink);
                }
            }
        });
    });
}

TEST_F(Scaled, PicturesAreWholeAndNotBlurred) {
    form.Shape1.Visible = false;
    form.PicKnop.Visible = false;
    form.Pic.surface.SetBackColor(white);
    for (int i = 0; i < 200; i += 4) {
        form.Pic.surface.Line(i, 0, i, 60, black, Box::Filled);
        form.Pic.surface.Line(70, i, 199, i, black, Box::Filled);
    }
    Run(form, [&](User& user) {
        user.Has([&] {
            const QImage look = Look(form.Pic);
            int lines = 0, before = 0xFFFFFF, rows = 0;
            for (int x = 0; x < look.width(); ++x) {
                const int level = ToColour(look.pixel(x, Rounded(2 * Scale())));
                EXPECT_TRUE(level == white || level == black);
                lines += level == black && before == white ? 1 : 0;
                before = level;
            }
            EXPECT_EQ(lines, 50);
            before = white;
            for (int y = 0; y < look.height(); ++y) {
                const int level = ToColour(look.pixel(look.width() - 1, y));
                rows += level == black && before == white ? 1 : 0;
                before = level;
            }
            EXPECT_EQ(rows, 50);
        });
        // What changes is repainted as if all were.
        for (int i = 1; i < 40; i += 3) {
            user.Has([&] {
                form.Pic.surface.Line(i, 3 * i, i + 20, 3 * i + 2, RGB(200, 0, 0), Box::Filled);
                platform.Mirror();
            });
        }
        QImage partly, whole;
        EXPECT_TRUE(user.Sees([&] {
            partly = Look(form.Pic);
            return partly.pixel(Rounded(45 * Scale()), Rounded(112 * Scale())) == qRgb(200, 0, 0);
        }));
        user.Has([&] { platform.WindowOf(form)->repaint(); });
        user.Has([&] {
            platform.WindowOf(form)->ViewOf(form.Pic)->Widget().repaint();
            whole = Look(form.Pic);
        });
        EXPECT_TRUE(partly == whole);
    });
}

}  // namespace
}  // namespace coinlet::test
