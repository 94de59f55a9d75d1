// A signal ends the program whatever its handlers wait for, and nothing of them runs on.

#include "sample_form.h"
#include "shell/ending_signals.h"
#include "user.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <array>
#include <csignal>
#include <functional>
#include <stdexcept>

namespace coinlet::test {
namespace {

class ForeignEnd : public ShellTest {
protected:
    /// Has a handler do something that never comes to its end by itself, and sends a signal meanwhile.
    void ExpectAnEndAmidst(const std::function<void()>& doing, int signal = SIGTERM) {
        form.Timer1.Interval = 1;
        form.Timer1.Tick = [&] {
            form.Timer1.Enabled = false;
            QTimer::singleShot(20, [&] {
                if (whenSent) whenSent();
                EXPECT_EQ(std::raise(signal), 0);
            });
            doing();
            form.log.emplace_back("ran on");
        };
        int farewells = 0;
        const EndingSignals endingSignals([&] { return platform.Leave([&] { ++farewells; }); });
        platform.Run([&] { platform.ShowMain(form); });
        EXPECT_TRUE(platform.Ended());
        EXPECT_EQ(farewells, 1);
        EXPECT_EQ(form.Count("ran on"), 0);
        EXPECT_EQ(platform.WindowOf(form), nullptr);
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible());
    }
    void ServeForEver() {
        for (;;)
            platform.DoEvents();
    }

    SampleForm form{services};
    std::function<void()> whenSent;
};

TEST_F(ForeignEnd, LeavesAWorkThatServesEvents) {
    ExpectAnEndAmidst([&] { ServeForEver(); });
}

TEST_F(ForeignEnd, LeavesWorkAtAnyDepth) {
    int depth = 0;
    form.Timer1.Interval = 1;
    // Each service of events comes back here, as deep as it goes.
    Timer again(form, "Again");
    again.Interval = 1;
    again.Tick = [&] {
        ++depth;
        ServeForEver();
    };
    ExpectAnEndAmidst([&] { ServeForEver(); });
    EXPECT_GT(depth, 0);
}

TEST_F(ForeignEnd, LeavesAPause) {
    ExpectAnEndAmidst([&] { platform.Wait(3600); });
}

TEST_F(ForeignEnd, LeavesADialog) {
    Form dialog(services, "Small");
    ExpectAnEndAmidst([&] { platform.ShowModal(dialog); });
    EXPECT_FALSE(dialog.Loaded());
}

TEST_F(ForeignEnd, LeavesAMessageOverADialog) {
    struct Asking : Form {
        using Form::Form;
        void Form_Activate() override {
            static_cast<void>(
                platform->ShowMessage({.prompt = "Shall I?", .buttons = MessageButtons::YesNo}));
            ranOn = true;
        }
        Platform* platform = nullptr;
        bool ranOn = false;
    };
    Asking dialog(services, "Small");
    dialog.platform = &platform;
    ExpectAnEndAmidst([&] { platform.ShowModal(dialog); });
    EXPECT_FALSE(dialog.ranOn);
}

TEST_F(ForeignEnd, LeavesAnInputBox) {
    ExpectAnEndAmidst([&] { platform.InputBox("Name:", "Save", "old"); });
}

TEST_F(ForeignEnd, LeavesAFolderPicker) {
    ExpectAnEndAmidst([&] { platform.PickFolder("Select Folder"); });
}

TEST_F(ForeignEnd, LeavesAnOpenMenu) {
    ExpectAnEndAmidst([&] {
        platform.PopupMenu(form.Shapes);
        ServeForEver();
    });
}

TEST_F(ForeignEnd, ComesByEachOfTheSignals) {
    constexpr std::array endings{SIGHUP, SIGINT};
    ExpectAnEndAmidst([&] { platform.Wait(3600); }, endings[0]);
    QtPlatform another;
    const EndingSignals endingSignals([&] { return another.Leave([] {}); });
    EXPECT_EQ(std::raise(endings[1]), 0);
    while (!another.Ended())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

TEST_F(ForeignEnd, TwoSignalsAreOneEnd) {
    whenSent = [] { std::raise(SIGHUP); };
    ExpectAnEndAmidst([&] { platform.Wait(3600); });
}

TEST_F(ForeignEnd, FaultInTheFarewellKeepsNobodyIn) {
    expectedFaults = 1;
    QtPlatform another;
    EXPECT_TRUE(another.Leave([] { throw std::runtime_error("no memory"); }));
}

TEST(EndingSignalsTest, AreAskedForAgainUntilTheyAreHeeded) {
    int asked = 0;
    const EndingSignals endingSignals([&] { return ++asked == 3; });
    EXPECT_EQ(std::raise(SIGTERM), 0);
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(asked, 3);
}

TEST(EndingSignalsTest, LeaveAsTheyWereWhatWasIgnoredAndWhatComesAfterwards) {
    const auto disposition = [](int signal) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        return action.sa_handler;
    };
    // As nohup starts a program.
    ASSERT_NE(std::signal(SIGHUP, SIG_IGN), SIG_ERR);
    {
        const EndingSignals endingSignals([] { return true; });
        EXPECT_EQ(disposition(SIGHUP), SIG_IGN);
        EXPECT_NE(disposition(SIGTERM), SIG_DFL);
    }
    EXPECT_EQ(disposition(SIGHUP), SIG_IGN);
    EXPECT_EQ(disposition(SIGTERM), SIG_DFL);
    std::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace coinlet::test
