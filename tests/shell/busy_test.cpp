// An event that takes long: the pointer on the screen says so, while the program has no hand free for it.

#include "sample_form.h"
#include "shell/form_window.h"
#include "shown_pointer.h"
#include "user.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QProcess>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace coinlet::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class Busy : public ShellTest {
protected:
    /// The program's own thread does nothing else until the screen shows the pointer; false if it never does.
    static bool WorksUntilItShows(const std::optional<PointerLook>& pointer) {
        const auto end = Clock::now() + 20s;
        while (ShownPointer() != pointer) {
            if (Clock::now() > end) return false;
            std::this_thread::sleep_for(5ms);
        }
        return true;
    }
    static bool Shows(User& user, const std::optional<PointerLook>& pointer) {
        return user.Sees([&] { return ShownPointer() == pointer; });
    }

    /// Runs with the pointer over the button, and with the looks of the pointer known.
    void RunOver(const std::function<void(User&)>& work) {
        Run(form, [&](User& user) {
            XDoTool("mousemove %1 %2", user.PlaceOf(form.OkKnop, 40, 14));
            ASSERT_TRUE(user.Sees(
                [&] { return platform.WindowOf(form)->ViewOf(form.OkKnop)->Widget().underMouse(); }));
            usual = ShownPointer();
            ASSERT_TRUE(usual);
            SetHourglass(user, hourglassPointer);
            wait = ShownPointer();
            SetHourglass(user, defaultPointer);
            ASSERT_NE(wait, usual);
            ASSERT_TRUE(Shows(user, usual));
            work(user);
        });
    }
    void SetHourglass(User& user, int pointer) {
        user.Has([&] { platform.Screen.MousePointer = pointer, platform.Mirror(); });
        user.Has([] {});
    }
    void ClickAndWork(User& user) { user.Click(form.OkKnop, 40, 14); }
    /// What the user does while the program's own thread is the one that runs.
    static void XDoTool(const char* command, const QPoint& place) {
        const QString words = QString::fromLatin1(command).arg(place.x()).arg(place.y());
        EXPECT_EQ(QProcess::execute(QStringLiteral("xdotool"), words.split(QLatin1Char(' '))), 0);
    }

    SampleForm form{services};
    std::optional<PointerLook> usual, wait;
};

TEST_F(Busy, PointerShowsLongWorkFromThreeTenthsOfASecondToItsEnd) {
    std::atomic<Clock::time_point> pressed;
    Clock::duration sincePressed{};
    bool early = true, shown = false;
    int propertyMeanwhile = -1;
    form.OkKnop.Click = [&] {
        const auto begin = Clock::now();
        const bool isUsual = ShownPointer() == usual;
        // On a machine that is busy itself it may be late already.
        if (Clock::now() - pressed.load() < 300ms) early = isUsual;
        shown = WorksUntilItShows(wait);
        sincePressed = Clock::now() - pressed.load();
        propertyMeanwhile = platform.Screen.MousePointer;
        std::this_thread::sleep_for(begin + 600ms - Clock::now());
        EXPECT_EQ(ShownPointer(), wait);
        form.log.emplace_back("worked");
    };
    RunOver([&](User& user) {
        pressed = Clock::now();
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        // At once: no event need come for it.
        EXPECT_EQ(ShownPointer(), usual);
        user.Has([&] {
            EXPECT_TRUE(shown);
            EXPECT_TRUE(early);
            EXPECT_GE(sincePressed, 300ms);
            EXPECT_EQ(propertyMeanwhile, defaultPointer);
            EXPECT_EQ(platform.Screen.MousePointer, defaultPointer);
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        });
    });
}

TEST_F(Busy, ShortWorkChangesNothing) {
    std::atomic<Clock::time_point> pressed;
    int looks = 0, others = 0;
    form.OkKnop.Click = [&] {
        const auto begin = Clock::now();
        while (Clock::now() < begin + 200ms) {
            const bool isUsual = ShownPointer() == usual;
            // On a machine that is busy itself a look may take long.
            if (Clock::now() - pressed.load() >= 300ms) break;
            ++looks;
            if (!isUsual) ++others;
        }
        form.log.emplace_back("worked");
    };
    RunOver([&](User& user) {
        for (int i = 1; i <= 3; ++i) {
            pressed = Clock::now();
            ClickAndWork(user);
            ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == i; }));
        }
    });
    EXPECT_EQ(others, 0) << "of " << looks;
}

TEST_F(Busy, WhatTheUserDoesMeanwhileComesAfterwards) {
    std::vector<std::string> order;
    QPoint place;
    form.Pic.MouseDown = [&](int, int, float, float) { order.emplace_back("press"); };
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        order.emplace_back("busy");
        // He clicks at something else, and the program doesn't know yet.
        XDoTool("mousemove %1 %2 click 1", place);
        std::this_thread::sleep_for(100ms);
        order.emplace_back("done");
    };
    RunOver([&](User& user) {
        place = user.PlaceOf(form.Pic, 50, 50);
        ClickAndWork(user);
        EXPECT_TRUE(user.Sees([&] { return order.size() >= 3; }));
        user.Has([&] { EXPECT_EQ(order, (std::vector<std::string>{"busy", "done", "press"})); });
        EXPECT_TRUE(Shows(user, usual));
    });
}

TEST_F(Busy, PointerOfAControlComesBack) {
    form.Pic.MousePointer = crossPointer;
    form.Pic.MouseDown = [&](int, int, float, float) {
        EXPECT_TRUE(WorksUntilItShows(wait));
        form.log.emplace_back("worked");
    };
    RunOver([&](User& user) {
        user.MoveTo(user.PlaceOf(form.Pic, 50, 50));
        std::optional<PointerLook> cross;
        ASSERT_TRUE(user.Sees([&] { return (cross = ShownPointer()) != usual; }));
        EXPECT_NE(cross, wait);
        user.Click(form.Pic, 50, 50);
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(ShownPointer(), cross);
    });
}

TEST_F(Busy, HourglassThatTheProgramShowsStays) {
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        platform.Screen.MousePointer = hourglassPointer;
        form.log.emplace_back("worked");
    };
    form.PicKnop.Click = [&] {
        EXPECT_EQ(ShownPointer(), wait);
        std::this_thread::sleep_for(400ms);
        platform.Screen.MousePointer = toolPointer;
        form.log.emplace_back("ended");
    };
    RunOver([&](User& user) {
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(ShownPointer(), wait);
        user.Click(form.PicKnop, 5, 5);
        ASSERT_TRUE(user.Sees([&] { return form.Count("ended") == 1; }));
        EXPECT_EQ(ShownPointer(), usual);
    });
}

TEST_F(Busy, FaultEndsIt) {
    expectedFaults = 1;
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        form.log.emplace_back("worked");
        throw std::runtime_error("out of memory");
    };
    RunOver([&](User& user) {
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(ShownPointer(), usual);
    });
}

TEST_F(Busy, EndOfTheProgramEndsIt) {
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        platform.End();
    };
    RunOver([&](User& user) { ClickAndWork(user); });
    EXPECT_TRUE(platform.Ended());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Busy, WaitingIsNoWork) {
    int others = 0;
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        // Asked by an event that comes while the program waits.
        QTimer look;
        look.callOnTimeout([&] {
            if (ShownPointer() != usual) ++others;
            form.log.emplace_back("looked");
        });
        look.start(20);
        platform.Wait(0.5);
        look.stop();
        EXPECT_TRUE(WorksUntilItShows(wait));
        platform.DoEvents();
        EXPECT_EQ(ShownPointer(), usual);
        form.log.emplace_back("worked");
    };
    RunOver([&](User& user) {
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(ShownPointer(), usual);
    });
    EXPECT_GT(form.Count("looked"), 0);
    EXPECT_EQ(others, 0);
}

class SlowDialog : public Form {
public:
    explicit SlowDialog(FormServices services) : Form(services, "Slow") {
        Width = Height = 200 * 15;
        OkKnop.Move(60 * 15, 100 * 15, 80 * 15, 28 * 15);
    }
    void Form_Load() override { whenLoading(); }
    void Form_Activate() override { whenActivated(); }

    std::function<void()> whenLoading, whenActivated;
    VistaButton OkKnop{*this, "OkKnop"};
};

TEST_F(Busy, DialogThatComesSlowlyShowsItTooAndWaitsWithoutIt) {
    SlowDialog dialog(services);
    dialog.whenLoading = [&] { EXPECT_TRUE(WorksUntilItShows(wait)); };
    dialog.whenActivated = [&] {
        XDoTool("mousemove %1 %2", platform.WindowOf(dialog)->geometry().topLeft() + QPoint(20, 20));
        EXPECT_TRUE(WorksUntilItShows(wait));
        form.log.emplace_back("activated");
    };
    dialog.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        dialog.Unload();
    };
    form.OkKnop.Click = [&] {
        platform.ShowModal(dialog);
        form.log.emplace_back("closed");
    };
    RunOver([&](User& user) {
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([&] { return form.Count("activated") == 1; }));
        for (const auto end = Clock::now() + 500ms; Clock::now() < end;)
            ASSERT_EQ(ShownPointer(), usual);
        user.Click(dialog.OkKnop, 10, 10);
        ASSERT_TRUE(user.Sees([&] { return form.Count("closed") == 1; }));
        EXPECT_EQ(ShownPointer(), usual);
    });
}

TEST_F(Busy, BoxWaitsWithoutIt) {
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        static_cast<void>(platform.ShowMessage({.prompt = "Done."}));
        EXPECT_TRUE(WorksUntilItShows(wait));
        form.log.emplace_back("worked");
    };
    RunOver([&](User& user) {
        ClickAndWork(user);
        ASSERT_TRUE(user.Sees([] { return QApplication::activeModalWidget() != nullptr; }));
        for (const auto end = Clock::now() + 500ms; Clock::now() < end;)
            ASSERT_EQ(ShownPointer(), usual);
        user.Key("Return");
        ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == 1; }));
        EXPECT_EQ(ShownPointer(), usual);
    });
}

/// What a program hands over that has to be waited for.
class SlowText : public QMimeData {
public:
    explicit SlowText(std::function<void()> wait) : wait_(std::move(wait)) {}
    QStringList formats() const override { return {QStringLiteral("text/plain")}; }
    bool hasFormat(const QString& type) const override { return formats().contains(type); }

protected:
    QVariant retrieveData(const QString&, QMetaType) const override {
        wait_();
        return QStringLiteral("/no/such/file");
    }

private:
    std::function<void()> wait_;
};

TEST_F(Busy, ProgramThatHandsOverSlowlyIsWaitedForWithIt) {
    bool shown = false;
    const SlowText text([&] { shown = shown || WorksUntilItShows(wait); });
    RunOver([&](User& user) {
        user.Has([&] {
            platform.WindowOf(form)->setAcceptDrops(true);
            QDragEnterEvent entered(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(platform.WindowOf(form), &entered);
            EXPECT_FALSE(shown);
            QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(platform.WindowOf(form), &dropped);
        });
        EXPECT_EQ(ShownPointer(), usual);
    });
    EXPECT_TRUE(shown);
}

/// The connections and other things that the program holds open.
long OpenFiles() {
    using std::filesystem::directory_iterator;
    return std::distance(directory_iterator("/proc/self/fd"), directory_iterator());
}

TEST_F(Busy, NothingIsLeftOver) {
    form.OkKnop.Click = [&] {
        EXPECT_TRUE(WorksUntilItShows(wait));
        form.log.emplace_back("worked");
    };
    long before = 0;
    RunOver([&](User& user) {
        for (int i = 1; i <= 6; ++i) {
            ClickAndWork(user);
            ASSERT_TRUE(user.Sees([&] { return form.Count("worked") == i; }));
            if (i == 1) before = OpenFiles();
        }
        EXPECT_EQ(OpenFiles(), before);
    });
}

}  // namespace
}  // namespace coinlet::test
