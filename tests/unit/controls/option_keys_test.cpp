// Option buttons are one stop of the tab key; the arrows choose among them.

#include "controls/check_box.h"
#include "controls/frame.h"
#include "controls/text_box.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct OptionKeysForm : Form {
    explicit OptionKeysForm(FormServices services) : Form(services, "Sample") {
        for (Control* control : TabOrder()) {
            control->Move(0, 0, 300, 300);
            log.Listen(*control, &Control::Click, "Click");
        }
    }
    test::EventLog log;
    TextBox Before{*this, "Before"};
    Frame Frame1{*this, "Frame1"};
    OptionButton A{Frame1, "A"}, B{Frame1, "B"}, C{Frame1, "C"};
    OptionButton D{*this, "D"}, E{*this, "E"};
};

struct OptionKeysTest : testing::Test {
    OptionKeysTest() { services.platform.ShowMain(form); }

    /// Who has the focus after the tab key, as often as it goes round.
    std::string Round(bool backward = false) {
        form.Before.SetFocus();
        std::string stops;
        do {
            form.MoveFocusByTab(backward);
            stops += form.Focus()->Name();
        } while (form.Focus() != &form.Before);
        return stops;
    }
    const Control* After(int key, int shift = 0) {
        form.KeyDown(nullptr, key, shift);
        return form.Focus();
    }

    test::TestServices services;
    OptionKeysForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(OptionKeysTest, TabStopsAtTheChosenOneElseAtTheFirst) {
    EXPECT_EQ(Round(), "ADBefore");
    form.B.SetValue(true);
    form.E.SetValue(true);
    EXPECT_EQ(Round(), "BEBefore");
    EXPECT_EQ(Round(true), "EBBefore");
}

TEST_F(OptionKeysTest, WhatCannotHaveTheFocusIsNoStop) {
    form.A.Visible = false;
    EXPECT_EQ(Round(), "BDBefore");
    form.C.SetValue(true);
    form.C.SetEnabled(false);
    EXPECT_EQ(Round(), "BDBefore");
    form.B.TabStop = false;
    EXPECT_EQ(Round(), "DBefore");
}

TEST_F(OptionKeysTest, ArrowsChooseTheNextOneRoundAbout) {
    form.A.SetValue(true);
    form.A.SetFocus();
    log.Take();
    EXPECT_EQ(After(keyDown), &form.B);
    EXPECT_TRUE(form.B.Value());
    EXPECT_EQ(After(keyRight), &form.C);
    EXPECT_EQ(After(keyDown), &form.A);
    EXPECT_EQ(After(keyUp), &form.C);
    EXPECT_EQ(After(keyLeft), &form.B);
    EXPECT_EQ(log.Take(), (Lines{"B.Click", "C.Click", "A.Click", "C.Click", "B.Click"}));
    EXPECT_FALSE(form.D.Value() || form.E.Value());
}

TEST_F(OptionKeysTest, ArrowsPassOverWhatCannotBeChosen) {
    form.A.SetFocus();
    form.B.SetEnabled(false);
    EXPECT_EQ(After(keyDown), &form.C);
    form.A.Visible = false;
    EXPECT_EQ(After(keyDown), &form.C);
    EXPECT_TRUE(form.C.Value());
}

TEST_F(OptionKeysTest, OtherKeysChooseNothing) {
    form.A.SetFocus();
    for (const int key : {keyHome, keyEnd, keyPageDown, keyReturn})
        EXPECT_EQ(After(key), &form.A);
    EXPECT_EQ(After(keyDown, controlHeld), &form.A);
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_TRUE(form.A.WantsKey(keyDown, 0));
    EXPECT_FALSE(form.A.WantsKey(keyDown, controlHeld));
}

TEST_F(OptionKeysTest, AHandlerMayCloseTheForm) {
    form.A.SetFocus();
    form.B.GotFocus = [&] { form.Unload(); };
    EXPECT_EQ(After(keyDown), nullptr);
    EXPECT_FALSE(form.Loaded());
}

}  // namespace
}  // namespace coinlet
