// Windows that come from a screen to another that enlarges differently. Run with two screens.

#include "core/tool_codes.h"
#include "shell/form_window.h"
#include "whole_program.h"

#include <QApplication>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>

#include <functional>
#include <string>

namespace coinlet::test {
namespace {

template <class Window>
Window* Shown() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Window*>(window); found && found->isVisible()) return found;
    return nullptr;
}

class TwoScreens : public WholeProgram {
protected:
    void SetUp() override {
        if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "there is one screen";
        ASSERT_NE(Scale(0), Scale(1));
    }

    static QScreen& ScreenAt(int number) { return *QGuiApplication::screens().at(number); }
    static double Scale(int number) { return ScreenAt(number).devicePixelRatio(); }

    /// Moves a window to a screen. It stays as large as it is to the eye, and its pixels are those of the
    /// screen, none of them enlarged from what the other screen had.
    void ComesTo(User& user, QWidget& window, int number) {
        QSize size;
        user.Has([&] { size = window.size(); });
        // At a whole pixel of the program, whatever the scale in quarters.
        constexpr int aside = 210;
        user.MoveWindow(window, ScreenAt(number).geometry().topLeft() + QPoint(aside, aside));
        EXPECT_TRUE(user.Sees([&] {
            return window.screen() == &ScreenAt(number) && window.devicePixelRatioF() == Scale(number) &&
                   window.size() == size;
        })) << size.width()
            << " by " << size.height() << " became " << window.width() << " by " << window.height();
        ExpectSharp(user, window);
    }

    static void ExpectSharp(User& user, QWidget& window) {
        if (user.SeesPainted(window)) return;
        QImage painted;
        user.Has([&] { painted = PaintedAnew(window); });
        ADD_FAILURE() << window.windowTitle().toStdString() << Differences(user.LookAt(window), painted);
    }

    static std::string Differences(const QImage& one, const QImage& other) {
        if (one.size() != other.size()) {
            return ": " + std::to_string(one.width()) + " by " + std::to_string(one.height()) +
                   " instead of " + std::to_string(other.width()) + " by " + std::to_string(other.height());
        }
        int count = 0;
        QRect place;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) == other.pixel(x, y)) continue;
                ++count;
                place |= QRect(x, y, 1, 1);
            }
        }
        return ": " + std::to_string(count) + " pixels differ, from " + std::to_string(place.left()) + ", " +
               std::to_string(place.top()) + " to " + std::to_string(place.right()) + ", " +
               std::to_string(place.bottom());
    }
};

TEST_F(TwoScreens, TheMainWindowIsSharpOnBoth) {
    Run(Main(), [&](User& user) {
        FormWindow& window = *platform.WindowOf(Main());
        ExpectSharp(user, window);
        const QImage first = user.LookAt(window);
        ComesTo(user, window, 1);
        const QImage second = user.LookAt(window);
        EXPECT_NEAR(second.width() / Scale(1), first.width() / Scale(0), 1);
        EXPECT_NEAR(second.height() / Scale(1), first.height() / Scale(0), 1);
        // The letters of its captions are finer there, not the same ones enlarged.
        EXPECT_NE(second.scaled(first.size()), first);

        // What is drawn there, too, and where the pointer is.
        user.Has([&] {
            Main().Knop[freeHandTool].PointerClicked();
            platform.Mirror();
        });
        user.MoveTo(user.PlaceOf(Main().Pic, 100, 120));
        user.Press();
        user.MoveTo(user.PlaceOf(Main().Pic, 180, 120));
        user.Release();
        EXPECT_TRUE(user.Sees([&] { return Main().Pic.surface.Point(180, 120) == black; }));
        user.Has([&] {
            for (int x = 100; x <= 180; ++x)
                EXPECT_EQ(Main().Pic.surface.Point(x, 120), black) << x;
            EXPECT_EQ(Main().Pic.surface.Point(97, 120), white);
            EXPECT_EQ(Main().Pic.surface.Point(183, 120), white);
        });
        // Where no button is under the pointer, which would shine.
        user.MoveTo(user.PlaceOf(Main().Pic, 300, 300));
        ExpectSharp(user, window);
        ComesTo(user, window, 0);
        ComesTo(user, window, 1);
        ComesTo(user, window, 0);
    });
}

TEST_F(TwoScreens, PopupsComeUpWhereTheyAreAskedFor) {
    Run(Main(), [&](User& user) {
        FormWindow& window = *platform.WindowOf(Main());
        for (const int number : {1, 0, 1}) {
            ComesTo(user, window, number);
            user.Click(Main().Knop[shapesMenuTool], 20, 12);
            EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() != nullptr; }));
            user.Has([&] {
                const QMenu& menu = *Shown<QMenu>();
                const QPoint asked =
                    window.ViewOf(Main().Knop[shapesMenuTool])->Widget().mapToGlobal(QPoint(20, 12));
                EXPECT_EQ(menu.screen(), &ScreenAt(number));
                EXPECT_LE((menu.geometry().topLeft() - asked).manhattanLength(), 2);
            });
            ExpectSharp(user, *Shown<QMenu>());
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([] { return Shown<QMenu>() == nullptr; }));
        }
    });
}

TEST_F(TwoScreens, EveryDialogIsSharpOnBoth) {
    Run(Main(), [&](User& user) {
        // Out of the way of what may shine under it.
        user.MoveTo(user.PlaceOf(Main().Pic, 300, 300));
        for (const DialogRow& row : Dialogs()) {
            SCOPED_TRACE(std::string(row.form));
            Form& dialog = Open(user, row);
            FormWindow& window = *platform.WindowOf(dialog);
            // Carets blink.
            user.Has([&] { QApplication::setCursorFlashTime(0); });
            ComesTo(user, window, 1);
            ComesTo(user, window, 0);
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
        }
    });
}

TEST_F(TwoScreens, BoxesAndPickersKeepTheirSize) {
    Run(Main(), [&](User& user) {
        const auto box = [&](const std::function<void()>& ask, const auto& find) {
            QMetaObject::invokeMethod(qApp, ask, Qt::QueuedConnection);
            EXPECT_TRUE(user.Sees([&] { return find() && find()->isActiveWindow(); }));
            ComesTo(user, *find(), 1);
            ComesTo(user, *find(), 0);
            user.Key("Escape");
            EXPECT_TRUE(user.Sees([&] { return !find(); }));
        };
        user.Has([] { QApplication::setCursorFlashTime(0); });
        box([&] { platform.ShowMessage({.prompt = "All of it?", .icon = MessageIcon::Question}); },
            Shown<QMessageBox>);
        box([&] { platform.InputBox("Name:", "Save", "old"); }, Shown<QInputDialog>);
        box([&] { platform.PickFolder("Select Folder"); }, Shown<QFileDialog>);
    });
}

}  // namespace
}  // namespace coinlet::test
