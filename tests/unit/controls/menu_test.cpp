// Menus and timers: how they hang together, and when an entry can be chosen.

#include "controls/menu.h"

#include "controls/timer.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

struct MenuForm : Form {
    using Form::Form;

    MenuItem File{*this, "File", "File"};
    MenuItem FileNew{File, "FileNew", "New"};
    MenuItem FileRule{File, "FileRule", "-"};
    MenuItem FileMore{File, "FileMore", "More"};
    MenuItem Deep{FileMore, "Deep", "Deep", 2};
    Timer Timer1{*this, "Timer1"};
};

struct MenuTest : testing::Test {
    test::TestServices services;
    MenuForm form{services.ForForms(), "Sample"};
};

TEST_F(MenuTest, EntriesHangInTheirMenus) {
    EXPECT_EQ(form.Menus(), std::vector<MenuItem*>{&form.File});
    EXPECT_EQ(form.File.Entries(), (std::vector{&form.FileNew, &form.FileRule, &form.FileMore}));
    EXPECT_EQ(form.Deep.Parent(), &form.FileMore);
    EXPECT_EQ(form.Find("Deep", 2), &form.Deep);
    EXPECT_EQ(form.Find("Deep"), nullptr);
}

TEST_F(MenuTest, OnlyEntriesThatAreReachedCanBeChosen) {
    EXPECT_TRUE(form.FileNew.CanBeChosen());
    EXPECT_TRUE(form.Deep.CanBeChosen());
    EXPECT_FALSE(form.File.CanBeChosen());
    EXPECT_FALSE(form.FileMore.CanBeChosen());
    EXPECT_FALSE(form.FileRule.CanBeChosen());

    form.File.Visible = false;  // a popup menu
    EXPECT_TRUE(form.FileNew.CanBeChosen());
    EXPECT_TRUE(form.Deep.CanBeChosen());
    form.FileMore.Visible = false;
    EXPECT_FALSE(form.Deep.CanBeChosen());
    form.FileMore.Visible = true;
    form.File.Enabled = false;
    EXPECT_FALSE(form.Deep.CanBeChosen());
    form.File.Enabled = true;
    form.FileNew.Visible = false;
    EXPECT_FALSE(form.FileNew.CanBeChosen());
    form.FileNew.Visible = true;
    form.FileNew.Enabled = false;
    EXPECT_FALSE(form.FileNew.CanBeChosen());
}

TEST_F(MenuTest, EntriesLeaveTheirMenuWhenTheyEnd) {
    {
        const MenuItem passing(form.File, "Passing", 1);
        EXPECT_EQ(form.File.Entries().back(), &passing);
    }
    EXPECT_EQ(form.File.Entries().back(), &form.FileMore);
    auto menu = std::make_unique<MenuItem>(form, "Short", "Short");
    const MenuItem entry(*menu, "Entry", "Entry");
    menu.reset();
    EXPECT_EQ(entry.Parent(), nullptr);
    EXPECT_EQ(form.Menus(), std::vector<MenuItem*>{&form.File});
}

TEST_F(MenuTest, TimersComeAndGo) {
    EXPECT_EQ(form.Timers(), std::vector<Timer*>{&form.Timer1});
    auto timer = std::make_unique<Timer>(form, "Passing");
    EXPECT_EQ(form.Timers().size(), 2U);
    int ticks = 0;
    timer->Tick = [&] {
        timer.reset();
        ++ticks;
    };
    timer->Tick();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(form.Timers(), std::vector<Timer*>{&form.Timer1});
    EXPECT_EQ(form.Timer1.Owner(), nullptr);
}

}  // namespace
}  // namespace coinlet
