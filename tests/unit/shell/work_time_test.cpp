#include "shell/work_time.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

using namespace std::chrono_literals;

constexpr WorkTime::Time noon{std::chrono::hours(12)};

TEST(WorkTimeTest, NobodyIsToldOfIdleness) {
    WorkTime work;
    EXPECT_FALSE(work.DueAt());
    EXPECT_FALSE(work.End());
}

TEST(WorkTimeTest, IsDueThreeTenthsOfASecondAfterTheBeginning) {
    WorkTime work;
    work.Begin(noon);
    EXPECT_EQ(work.DueAt(), noon + 300ms);
}

TEST(WorkTimeTest, ShortWorkIsOverBeforeAnybodyIsTold) {
    WorkTime work;
    work.Begin(noon);
    EXPECT_FALSE(work.End());
    EXPECT_FALSE(work.DueAt());
}

TEST(WorkTimeTest, EachPieceOfWorkHasItsOwnTime) {
    WorkTime work;
    work.Begin(noon);
    work.End();
    work.Begin(noon + 250ms);
    EXPECT_EQ(work.DueAt(), noon + 550ms);
}

TEST(WorkTimeTest, TellsOnceAndTakesItBackOnce) {
    WorkTime work;
    work.Begin(noon);
    work.Tell();
    EXPECT_FALSE(work.DueAt());
    EXPECT_TRUE(work.End());
    EXPECT_FALSE(work.End());
    work.Begin(noon + 1s);
    EXPECT_EQ(work.DueAt(), noon + 1300ms);
    EXPECT_FALSE(work.End());
}

TEST(WorkTimeTest, WhatIsSaidElsewhereIsSaidAgainAtOnce) {
    WorkTime work;
    work.Begin(noon);
    work.Tell();
    work.TellAgain();
    EXPECT_EQ(work.DueAt(), noon + 300ms);
    work.Tell();
    EXPECT_FALSE(work.DueAt());
    EXPECT_TRUE(work.End());
}

TEST(WorkTimeTest, WhatIsSaidElsewhereAndNotYetAgainIsTakenBack) {
    WorkTime work;
    work.Begin(noon);
    work.Tell();
    work.TellAgain();
    EXPECT_TRUE(work.End());
}

TEST(WorkTimeTest, NothingIsSaidEarlierBecauseItIsToBeSaidElsewhere) {
    WorkTime work;
    work.Begin(noon);
    work.TellAgain();
    EXPECT_EQ(work.DueAt(), noon + 300ms);
    EXPECT_FALSE(work.End());
}

}  // namespace
}  // namespace coinlet::test
