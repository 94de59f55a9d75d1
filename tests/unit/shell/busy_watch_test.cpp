#include "shell/busy_watch.h"

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <thread>

namespace coinlet::test {
namespace {

using namespace std::chrono_literals;
using Clock = WorkTime::Clock;
using Windows = BusySign::Windows;
namespace fs = std::filesystem;

/// A sign that writes down what becomes of it: "+" and the windows, "-".
class BusyWatchTest : public ::testing::Test {
protected:
    std::string Log() const {
        const std::lock_guard lock(mutex_);
        return log_;
    }
    bool Shows(const std::string& log) const {
        const auto patience = Clock::now() + 20s;
        while (Log() != log && Clock::now() < patience)
            std::this_thread::sleep_for(1ms);
        return Log() == log;
    }

    /// True if less than the user's patience has passed, so that no sign can have come. To be asked after the
    /// log was read: on a busy machine it may be false at any time, and nothing follows from that.
    static bool IsEarly(Clock::time_point begin) { return Clock::now() - begin < WorkTime::patience; }

    Windows open{1, 2};
    std::thread::id shownBy, takenOffBy;
    Clock::time_point shownAt;

private:
    void Note(const std::string& what) {
        const std::lock_guard lock(mutex_);
        log_ += what;
    }

    mutable std::mutex mutex_;
    std::string log_;

protected:
    BusyWatch watch{{.windows = [this] { return open; },
                     .show =
                         [this](const Windows& on) {
                             shownAt = Clock::now();
                             shownBy = std::this_thread::get_id();
                             std::string ids;
                             for (const auto id : on)
                                 ids += std::to_string(id);
                             Note("+" + ids);
                         },
                     .takeOff =
                         [this] {
                             takenOffBy = std::this_thread::get_id();
                             Note("-");
                         }}};
};

TEST_F(BusyWatchTest, LongWorkIsShownAfterThreeTenthsOfASecondUntilItsEnd) {
    const auto begin = Clock::now();
    {
        const BusyWatch::Work work(watch);
        EXPECT_TRUE(Shows("+12"));
        EXPECT_GE(shownAt - begin, 300ms);
        std::this_thread::sleep_for(50ms);
        EXPECT_EQ(Log(), "+12");
    }
    EXPECT_EQ(Log(), "+12-");
    EXPECT_NE(shownBy, std::this_thread::get_id());
    EXPECT_EQ(takenOffBy, std::this_thread::get_id());
}

TEST_F(BusyWatchTest, ManyShortEventsAreNoLongWork) {
    const auto end = Clock::now() + 700ms;
    bool allAreShort = true;
    while (Clock::now() < end) {
        const auto begin = Clock::now();
        {
            const BusyWatch::Work work(watch);
            const BusyWatch::Work inner(watch);
        }
        allAreShort = allAreShort && IsEarly(begin);
    }
    if (allAreShort) {
        EXPECT_EQ(Log(), "");
    }
}

TEST_F(BusyWatchTest, WorkInsideWorkIsPartOfIt) {
    const auto begin = Clock::now();
    const BusyWatch::Work work(watch);
    while (Log().empty() && Clock::now() < begin + 20s)
        const BusyWatch::Work inner(watch);
    EXPECT_EQ(Log(), "+12");
    EXPECT_GE(shownAt - begin, 300ms);
}

TEST_F(BusyWatchTest, IdlenessIsNotShown) {
    { const BusyWatch::Work work(watch); }
    const std::string before = Log();
    std::this_thread::sleep_for(400ms);
    EXPECT_EQ(Log(), before);
}

TEST_F(BusyWatchTest, PauseIsNoWorkAndWhatFollowsIsANewPiece) {
    const auto begin = Clock::now();
    const BusyWatch::Work work(watch);
    std::this_thread::sleep_for(200ms);
    std::string before;
    Clock::time_point goesOn;
    {
        const BusyWatch::Pause pause(watch);
        before = Log();
        if (IsEarly(begin)) {
            EXPECT_EQ(before, "");
        }
        std::this_thread::sleep_for(400ms);
        EXPECT_EQ(Log(), before);
        goesOn = Clock::now();
    }
    EXPECT_TRUE(Shows(before + "+12"));
    EXPECT_GE(shownAt - goesOn, 300ms);
}

TEST_F(BusyWatchTest, PauseTakesTheSignOffAndAnEventInItHasItsOwn) {
    {
        const BusyWatch::Work work(watch);
        EXPECT_TRUE(Shows("+12"));
        {
            const BusyWatch::Pause pause(watch);
            EXPECT_EQ(Log(), "+12-");
            {
                const BusyWatch::Work event(watch);
                EXPECT_TRUE(Shows("+12-+12"));
            }
            EXPECT_EQ(Log(), "+12-+12-");
            std::this_thread::sleep_for(400ms);
            EXPECT_EQ(Log(), "+12-+12-");
        }
        EXPECT_TRUE(Shows("+12-+12-+12"));
    }
    EXPECT_EQ(Log(), "+12-+12-+12-");
}

TEST_F(BusyWatchTest, PauseWithoutWorkChangesNothing) {
    { const BusyWatch::Pause pause(watch); }
    std::this_thread::sleep_for(400ms);
    EXPECT_EQ(Log(), "");
}

TEST_F(BusyWatchTest, ExceptionTakesTheSignOff) {
    try {
        const BusyWatch::Work work(watch);
        EXPECT_TRUE(Shows("+12"));
        throw std::runtime_error("out of paper");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(Log(), "+12-");
    }
}

TEST_F(BusyWatchTest, WindowsAreThoseOfTheBeginningOfTheWork) {
    { const BusyWatch::Work work(watch); }
    const std::string before = Log();
    open = {7};
    const BusyWatch::Work work(watch);
    EXPECT_TRUE(Shows(before + "+7"));
}

TEST_F(BusyWatchTest, WindowThatComesAmidstTheWorkShowsTheSignToo) {
    {
        const BusyWatch::Work work(watch);
        EXPECT_TRUE(Shows("+12"));
        open = {1, 2, 3};
        watch.WindowsChanged();
        EXPECT_TRUE(Shows("+12+123"));
    }
    EXPECT_EQ(Log(), "+12+123-");
    watch.WindowsChanged();
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(Log(), "+12+123-");
}

TEST_F(BusyWatchTest, WindowThatComesBeforeTheSignIsAmongThoseThatShowIt) {
    const auto begin = Clock::now();
    const BusyWatch::Work work(watch);
    open = {1, 2, 3};
    watch.WindowsChanged();
    const bool inTime = IsEarly(begin);
    while (Log().empty() && Clock::now() < begin + 20s)
        std::this_thread::sleep_for(1ms);
    EXPECT_NE(Log(), "");
    if (inTime) {
        EXPECT_TRUE(Shows("+123"));
    }
}

TEST_F(BusyWatchTest, MayEndAmidstTheWorkOfItsThread) {
    for (int i = 0; i < 100; ++i) {
        std::atomic<int> shown = 0;
        BusyWatch brief({.windows = [] { return Windows(); },
                         .show = [&](const Windows&) { ++shown; },
                         .takeOff = [&] { --shown; }});
        { const BusyWatch::Work work(brief); }
        // What is over can't be shown any more.
        EXPECT_EQ(shown, 0);
        if (i % 2 == 0) std::this_thread::sleep_for(1ms);
        EXPECT_EQ(shown, 0);
    }
}

TEST(BusyWatchWithoutASign, TellsNobodyAndNeedsNoThread) {
    const fs::path threads = "/proc/self/task";
    const auto count = [&] { return std::distance(fs::directory_iterator(threads), {}); };
    if (!fs::exists(threads)) GTEST_SKIP() << "no /proc here";
    const auto before = count();
    int asked = 0, told = 0;
    BusyWatch watch({.windows = [&] { return ++asked, Windows(); }, .show = {}, .takeOff = [&] { ++told; }});
    EXPECT_EQ(count(), before);
    {
        const BusyWatch::Work work(watch);
        std::this_thread::sleep_for(400ms);
        const BusyWatch::Pause pause(watch);
        watch.WindowsChanged();
    }
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(told, 0);
}

std::atomic<bool> signalCame;
std::atomic<bool> signalCameHere;
thread_local bool isTheProgramsOwn = false;

TEST_F(BusyWatchTest, SignalsComeToTheProgramsThread) {
    isTheProgramsOwn = true;
    signalCame = false;
    auto* before = std::signal(SIGUSR1, [](int) {
        signalCameHere = isTheProgramsOwn;
        signalCame = true;
    });
    // While this thread doesn't take them, nobody does.
    sigset_t one, old;
    sigemptyset(&one);
    sigaddset(&one, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &one, &old);
    kill(getpid(), SIGUSR1);
    std::this_thread::sleep_for(50ms);
    EXPECT_FALSE(signalCame);
    pthread_sigmask(SIG_SETMASK, &old, nullptr);
    EXPECT_TRUE(signalCame);
    EXPECT_TRUE(signalCameHere);
    std::signal(SIGUSR1, before);
}

}  // namespace
}  // namespace coinlet::test
