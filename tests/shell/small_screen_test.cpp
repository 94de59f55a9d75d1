// Windows on a screen that has no room for the whole of them.

#include "controls/pointed_picture.h"
#include "sample_form.h"
#include "shell/form_window.h"
#include "shell/screen_room.h"
#include "user.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <cmath>
#include <memory>
#include <vector>

namespace coinlet::test {
namespace {

constexpr int bar = 16;

TEST(FitIntoRoom, LeavesAWindowThatHasRoomAsItIs) {
    for (const QSize room : {QSize(300, 200), QSize(301, 200), QSize(2000, 2000)}) {
        const WindowFit fit = FitIntoRoom({300, 200}, room, bar);
        EXPECT_EQ(fit.size, QSize(300, 200));
        EXPECT_FALSE(fit.IsCut());
    }
}

TEST(FitIntoRoom, MakesRoomForTheBarBesideWhatIsCut) {
    // Too high: the bar at the side takes of the width, of which there is enough.
    WindowFit fit = FitIntoRoom({300, 200}, {400, 150}, bar);
    EXPECT_EQ(fit.size, QSize(316, 150));
    EXPECT_EQ(fit.whole, QSize(316, 200));
    EXPECT_TRUE(fit.IsCut());
    fit = FitIntoRoom({300, 200}, {250, 400}, bar);
    EXPECT_EQ(fit.size, QSize(250, 216));
    EXPECT_EQ(fit.whole, QSize(300, 216));
}

TEST(FitIntoRoom, OneBarMayBringForthTheOther) {
    for (const QSize room : {QSize(310, 150), QSize(250, 210), QSize(200, 100)}) {
        const WindowFit fit = FitIntoRoom({300, 200}, room, bar);
        EXPECT_EQ(fit.size, room);
        EXPECT_EQ(fit.whole, QSize(316, 216));
    }
}

TEST(FitIntoRoom, CutsNothingWhereNobodyKnowsTheRoom) {
    EXPECT_EQ(FitIntoRoom({300, 200}, {}, bar).size, QSize(300, 200));
    EXPECT_EQ(FitIntoRoom({300, 200}, {-5, 100}, bar).whole, QSize(300, 200));
}

TEST(MovedInto, MovesOnlyWhatSticksOut) {
    const QRect room(100, 50, 800, 600);
    EXPECT_EQ(MovedInto({200, 100, 300, 200}, room), QRect(200, 100, 300, 200));
    EXPECT_EQ(MovedInto({700, 600, 300, 200}, room), QRect(600, 450, 300, 200));
    EXPECT_EQ(MovedInto({-700, -600, 300, 200}, room), QRect(100, 50, 300, 200));
    // What is larger is seen from its beginning on.
    EXPECT_EQ(MovedInto({500, 500, 900, 700}, room), QRect(100, 50, 900, 700));
    EXPECT_EQ(MovedInto({500, 500, 900, 700}, {}), QRect(500, 500, 900, 700));
}

QSize ScreenSize() {
    return QGuiApplication::primaryScreen()->availableGeometry().size();
}

/// A form of a size that is told as what it has more than the screen, or less, with a menu bar, a button in
/// each corner, and a picture in the middle.
struct CornerForm : Form {
    CornerForm(FormServices services, const QSize& more, bool isDialog = false)
        : Form(services, isDialog ? "Dialog" : "Main") {
        const QSize size = ScreenSize() + more;
        Width = size.width() * 15;
        Height = size.height() * 15;
        if (!isDialog) {
            file = std::make_unique<MenuItem>(*this, "File", "File");
            entry = std::make_unique<MenuItem>(*file, "FileNew", "New");
        }
        for (int i = 0; i <= 3; ++i) {
            constexpr int width = 80, height = 28, margin = 4;
            const int right = (size.width() - width - margin) * 15;
            const int below = (size.height() - height - margin) * 15;
            Knop[i].Move(i % 2 == 0 ? margin * 15 : right, i < 2 ? margin * 15 : below, width * 15,
                         height * 15);
            Knop[i].Click = [this, i] { clicks.push_back(i); };
        }
        Pic.Move(Width / 2 - 750, Height / 2 - 750, 1500, 1500);
        Pic.MouseMove = [this](int, int, float x, float y) { place = {x, y}; };
    }
    /// The dialog is left by its last button.
    void LeaveByLast() {
        Knop[3].Click = [this] { Unload(); };
    }

    std::unique_ptr<MenuItem> file, entry;
    ControlArray<VistaButton> Knop{*this, "Knop", 0, 4};
    PictureBox Pic{*this, "Pic"};
    std::vector<int> clicks;
    QPointF place;
};

class SmallScreen : public ShellTest {
protected:
    QScrollArea& AreaOf(const Form& form) { return *platform.WindowOf(form)->findChild<QScrollArea*>(); }
    bool HasBars(const Form& form) {
        return AreaOf(form).horizontalScrollBar()->isVisible() ||
               AreaOf(form).verticalScrollBar()->isVisible();
    }
    bool IsSeen(const Control& control) {
        const QWidget& widget = platform.WindowOf(control.OwnerForm())->ViewOf(control)->Widget();
        return widget.visibleRegion().boundingRect() == widget.rect();
    }
};

TEST_F(SmallScreen, AWindowWithRoomHasNoBarsAndItsFormsSize) {
    CornerForm form(services, {-100, -100});
    Run(form, [&](User& user) {
        user.Has([&] {
            const FormWindow& window = *platform.WindowOf(form);
            EXPECT_EQ(window.width(), ScreenSize().width() - 100);
            EXPECT_EQ(window.minimumSize(), window.size());
            EXPECT_EQ(window.maximumSize(), window.size());
            EXPECT_FALSE(HasBars(form));
        });
    });
}

TEST_F(SmallScreen, TheWindowIsNoLargerThanTheScreenAndEveryCornerIsReached) {
    CornerForm form(services, {300, 200});
    Run(form, [&](User& user) {
        user.Has([&] {
            EXPECT_EQ(platform.WindowOf(form)->size(), ScreenSize());
            EXPECT_TRUE(HasBars(form));
            EXPECT_TRUE(IsSeen(form.Knop[0]));
            EXPECT_FALSE(IsSeen(form.Knop[3]));
        });
        for (const int corner : {0, 1, 2, 3}) {
            user.Has([&] {
                QScrollArea& area = AreaOf(form);
                QScrollBar* across = area.horizontalScrollBar();
                QScrollBar* down = area.verticalScrollBar();
                across->setValue(corner % 2 == 0 ? 0 : across->maximum());
                down->setValue(corner < 2 ? 0 : down->maximum());
            });
            EXPECT_TRUE(user.Sees([&] { return IsSeen(form.Knop[corner]); })) << corner;
            user.Click(form.Knop[corner], 40, 14);
        }
        EXPECT_TRUE(user.Sees([&] { return form.clicks == std::vector<int>{0, 1, 2, 3}; }));
    });
}

TEST_F(SmallScreen, OneDirectionHasNoBarForTheOther) {
    CornerForm form(services, {300, -200});
    Run(form, [&](User& user) {
        user.Has([&] {
            EXPECT_TRUE(AreaOf(form).horizontalScrollBar()->isVisible());
            EXPECT_FALSE(AreaOf(form).verticalScrollBar()->isVisible());
            // The bar lies below the form and not over it.
            EXPECT_TRUE(IsSeen(form.Knop[2]));
        });
    });
}

TEST_F(SmallScreen, TheTabKeyBringsTheFocusIntoView) {
    CornerForm form(services, {300, 200});
    Run(form, [&](User& user) {
        user.Has([&] {
            form.Knop[0].SetFocus();
            platform.Mirror();
        });
        for (const int next : {1, 2, 3, 0}) {
            user.Key("Tab");
            EXPECT_TRUE(user.Sees([&] {
                return form.Focus() == &form.Knop[next] && IsSeen(form.Knop[next]);
            })) << next;
        }
    });
}

/// A picture that is larger than the screen, and on which keys point.
struct LargePictureForm : Form {
    explicit LargePictureForm(FormServices services) : Form(services, "Main") {
        Width = (ScreenSize().width() + 300) * 15;
        Height = (ScreenSize().height() + 200) * 15;
        Pic.Move(0, 0, Width, Height);
        Pic.MouseMove = [this](int, int, float x, float y) { place = {x, y}; };
    }
    PointedPicture Pic{*this, "Pic"};
    QPointF place;
};

TEST_F(SmallScreen, ThePointerThatKeysMoveStaysInSight) {
    LargePictureForm form(services);
    Run(form, [&](User& user) {
        user.Has([&] {
            form.Pic.SetFocus();
            platform.Mirror();
        });
        const QPoint corner(form.Pic.PixelWidth() - 1, form.Pic.PixelHeight() - 1);
        user.Has([&] {
            AreaOf(form).horizontalScrollBar()->setValue(0);
            AreaOf(form).verticalScrollBar()->setValue(0);
            form.Pic.PointerMoved(noButton, 0, static_cast<float>(corner.x() - 15),
                                  static_cast<float>(corner.y() - 15));
        });
        const auto isAt = [&](const QPoint& place) {
            const QWidget& widget = platform.WindowOf(form)->ViewOf(form.Pic)->Widget();
            const QPoint seen = widget.mapFromGlobal(QCursor::pos());
            return form.place == QPointF(place) && (seen - place).manhattanLength() <= 2 &&
                   widget.visibleRegion().contains(seen);
        };
        user.Key("shift+Right");
        EXPECT_TRUE(user.Sees([&] { return isAt(corner - QPoint(5, 15)); }));
        user.Key("shift+Down");
        EXPECT_TRUE(user.Sees([&] { return isAt(corner - QPoint(5, 5)); }));
        user.Has([&] { form.Pic.PointerMoved(noButton, 0, 15, 15); });
        user.Key("shift+Left");
        user.Key("shift+Left");
        EXPECT_TRUE(user.Sees([&] { return isAt({0, 15}); }));
    });
}

TEST_F(SmallScreen, TheWheelMovesTheWindowAlsoOverAPicture) {
    CornerForm form(services, {0, 600});
    Run(form, [&](User& user) {
        int before = 0;
        user.Has([&] {
            AreaOf(form).ensureWidgetVisible(&platform.WindowOf(form)->ViewOf(form.Pic)->Widget());
            before = AreaOf(form).verticalScrollBar()->value();
        });
        user.MoveTo(user.PlaceOf(form.Pic, 50, 50));
        user.Press(5);
        user.Release(5);
        EXPECT_TRUE(user.Sees([&] { return AreaOf(form).verticalScrollBar()->value() > before; }));
    });
}

// A press may give the focus, but what is under the pointer stays there, or a stroke would begin with a leap.
TEST_F(SmallScreen, NothingMovesUnderAPointerThatIsHeld) {
    CornerForm form(services, {300, ScreenSize().height()});
    form.Pic.LetKeysPress();
    form.Pic.MouseDown = [&](int, int, float, float) { form.Pic.SetFocus(); };
    Run(form, [&](User& user) {
        user.Has([&] {
            form.Knop[0].SetFocus();
            platform.Mirror();
            // The picture's lower half is cut off.
            const int middle = platform.WindowOf(form)->ViewOf(form.Pic)->Widget().geometry().center().y();
            AreaOf(form).verticalScrollBar()->setValue(middle - AreaOf(form).viewport()->height());
            EXPECT_FALSE(IsSeen(form.Pic));
        });
        const QPoint place = user.PlaceOf(form.Pic, 50, 20);
        user.MoveTo(place);
        user.Press();
        EXPECT_TRUE(user.Sees([&] { return form.Focus() == &form.Pic; }));
        user.MoveTo(place + QPoint(20, 10));
        const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
        EXPECT_TRUE(user.Sees([&] {
            return std::abs(form.place.x() - 50 - 20 / scale) <= 1 &&
                   std::abs(form.place.y() - 20 - 10 / scale) <= 1;
        }));
        user.Has([&] { EXPECT_FALSE(IsSeen(form.Pic)); });
        user.Release();
    });
}

TEST_F(SmallScreen, ADialogScrollsAsWell) {
    CornerForm form(services, {-200, -200});
    CornerForm dialog(services, {100, 100}, true);
    dialog.LeaveByLast();
    form.Knop[0].Click = [&] { platform.ShowModal(dialog); };
    Run(form, [&](User& user) {
        user.Click(form.Knop[0], 40, 14);
        EXPECT_TRUE(user.Sees([&] { return platform.WindowOf(dialog) && IsSeen(dialog.Knop[0]); }));
        user.Has([&] {
            EXPECT_EQ(platform.WindowOf(dialog)->size(), ScreenSize());
            EXPECT_EQ(platform.WindowOf(dialog)->pos(), QPoint(0, 0));
            AreaOf(dialog).ensureWidgetVisible(&platform.WindowOf(dialog)->ViewOf(dialog.Knop[3])->Widget());
        });
        user.Click(dialog.Knop[3], 40, 14);
        EXPECT_TRUE(user.Sees([&] { return !dialog.Loaded(); }));
    });
}

/// The user makes the window smaller still; what happens in the program leaves that to him. A form that
/// becomes small enough shows no bars any more.
TEST_F(SmallScreen, TheSizeIsTheUsersUntilTheFormHasAnother) {
    CornerForm form(services, {300, 200});
    form.Knop[0].Click = [&] { form.entry->Checked = true; };
    form.Knop[1].Click = [&] {
        form.Width = 500 * 15;
        form.Height = 300 * 15;
    };
    Run(form, [&](User& user) {
        user.Has([&] { platform.WindowOf(form)->resize(400, 300); });
        user.Click(form.Knop[0], 40, 14);
        EXPECT_TRUE(user.Sees([&] { return form.entry->Checked; }));
        user.Has([&] {
            EXPECT_EQ(platform.WindowOf(form)->size(), QSize(400, 300));
            form.Knop[1].Click();
            platform.Mirror();
            EXPECT_EQ(platform.WindowOf(form)->width(), 500);
            EXPECT_EQ(platform.WindowOf(form)->minimumSize(), platform.WindowOf(form)->maximumSize());
        });
        EXPECT_TRUE(user.Sees([&] { return !HasBars(form); }));
    });
}

}  // namespace
}  // namespace coinlet::test
