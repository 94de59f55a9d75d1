// The focus of a form: who has it, who is told, and what Tab, Escape and Enter do.

#include "controls/combo_box.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct FocusForm : Form {
    explicit FocusForm(FormServices services) : Form(services, "Sample") {
        for (Control* control : TabOrder()) {
            control->Move(0, 0, 900, 300);
            log.ListenToAll(*control);
        }
    }

    test::EventLog log;
    TextBox A{*this, "A"};
    Label Between{*this, "Between"};
    Frame Frame1{*this, "Frame1"};
    TextBox B{Frame1, "B"};
    ListBox C{*this, "C"};
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    VistaButton ExitKnop{*this, "ExitKnop"};
};

struct FocusTest : testing::Test {
    FocusTest() { services.platform.ShowMain(form); }

    test::TestServices services;
    FocusForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(FocusTest, TheOldOneIsToldBeforeTheNewOne) {
    form.A.SetFocus();
    EXPECT_EQ(log.Take(), Lines{"A.GotFocus"});
    form.B.SetFocus();
    EXPECT_EQ(log.Take(), (Lines{"A.LostFocus", "B.GotFocus"}));
    EXPECT_EQ(form.Focus(), &form.B);
    form.B.SetFocus();
    EXPECT_EQ(log.Take(), Lines{});
    form.MoveFocus(nullptr);
    EXPECT_EQ(log.Take(), Lines{"B.LostFocus"});
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(FocusTest, WhatCannotHaveItChangesNothing) {
    form.A.SetFocus();
    log.Take();
    form.Between.SetFocus();
    form.B.SetEnabled(false);
    form.B.SetFocus();
    form.C.Visible = false;
    form.C.SetFocus();
    EXPECT_EQ(form.Focus(), &form.A);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FocusTest, AHiddenOrDisabledControlHasItNoMore) {
    form.B.SetFocus();
    form.Frame1.Visible = false;
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_FALSE(form.B.HasFocus());
    form.Frame1.Visible = true;
    form.B.SetEnabled(false);
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(FocusTest, WhatIsHiddenOrDisabledLosesItForGood) {
    form.B.SetFocus();
    log.Take();
    form.SettleFocus();
    EXPECT_EQ(form.Focus(), &form.B);
    EXPECT_EQ(log.Take(), Lines{});
    form.Frame1.Visible = false;
    form.SettleFocus();
    EXPECT_EQ(log.Take(), Lines{"B.LostFocus"});
    form.Frame1.Visible = true;
    form.SettleFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    // The tab key goes on from where it was.
    form.MoveFocusByTab(false);
    EXPECT_EQ(form.Focus(), &form.C);
    form.C.SetEnabled(false);
    form.MoveFocusByTab(true);
    EXPECT_EQ(form.Focus(), &form.B);
    // Whatever got it since, that place is forgotten.
    form.OkKnop.SetFocus();
    form.OkKnop.SetEnabled(false);
    form.SettleFocus();
    EXPECT_EQ(form.OkKnop.State(), ButtonState::Disabled);
    form.OkKnop.SetEnabled(true);
    EXPECT_EQ(form.OkKnop.State(), ButtonState::Normal);
    form.A.SetFocus();
    form.MoveFocus(nullptr);
    form.MoveFocusByTab(false);
    EXPECT_EQ(form.Focus(), &form.A);
}

TEST_F(FocusTest, ALostFocusHandlerMayMoveItOn) {
    form.A.SetFocus();
    log.Take();
    form.A.LostFocus = [&] { form.C.SetFocus(); };
    form.B.SetFocus();
    EXPECT_EQ(form.Focus(), &form.C);
    // B got it and lost it again before it heard of the first.
    EXPECT_EQ(log.Take(), (Lines{"B.LostFocus", "C.GotFocus"}));
}

TEST_F(FocusTest, ALostFocusHandlerMayDisableTheNewOne) {
    form.A.SetFocus();
    log.Take();
    form.A.LostFocus = [&] { form.B.SetEnabled(false); };
    form.B.SetFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    form.B.SetEnabled(true);
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FocusTest, TabGoesRoundInTabOrder) {
    form.C.TabIndex = -1;
    form.CancelKnop.TabStop = false;
    Lines order;
    for (int i = 0; i < 6; ++i) {
        form.MoveFocusByTab(false);
        order.emplace_back(form.Focus()->Name());
    }
    EXPECT_EQ(order, (Lines{"C", "A", "B", "OkKnop", "ExitKnop", "C"}));
    order.clear();
    for (int i = 0; i < 3; ++i) {
        form.MoveFocusByTab(true);
        order.emplace_back(form.Focus()->Name());
    }
    EXPECT_EQ(order, (Lines{"ExitKnop", "OkKnop", "B"}));
}

TEST_F(FocusTest, TabGoesOnFromAControlWithoutATabStop) {
    form.B.TabStop = false;
    form.B.SetFocus();
    form.MoveFocusByTab(false);
    EXPECT_EQ(form.Focus(), &form.C);
}

TEST_F(FocusTest, TabBackwardWithoutAFocusStartsAtTheEnd) {
    form.MoveFocusByTab(true);
    EXPECT_EQ(form.Focus(), &form.ExitKnop);
}

TEST_F(FocusTest, TabWithNothingToStopAtDoesNothing) {
    for (Control* control : form.TabOrder())
        control->TabStop = false;
    form.MoveFocusByTab(false);
    form.MoveFocusByTab(true);
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(FocusTest, EscapeIsAKeyFirstAndThenCancels) {
    form.A.SetFocus();
    log.Take();
    form.KeyDown(nullptr, keyEscape, 0);
    EXPECT_EQ(log.Take(), (Lines{"A.KeyDown 27 0", "CancelKnop.Click"}));
    form.CancelKnop.Visible = false;
    form.KeyDown(nullptr, keyEscape, 0);
    EXPECT_EQ(log.Take(), (Lines{"A.KeyDown 27 0", "ExitKnop.Click"}));
    form.ExitKnop.SetEnabled(false);
    form.KeyDown(nullptr, keyEscape, 0);
    EXPECT_EQ(log.Take(), Lines{"A.KeyDown 27 0"});
}

TEST_F(FocusTest, EscapeCancelsWithoutAFocusToo) {
    form.CancelKnop.SetEnabled(false);
    form.KeyDown(nullptr, keyEscape, 0);
    EXPECT_EQ(log.Take(), Lines{"ExitKnop.Click"});
}

TEST_F(FocusTest, AKeyHandlerThatClosesTheFormEndsTheKey) {
    form.A.SetFocus();
    form.A.KeyDown = [&](int, int) { form.Unload(); };
    log.Take();
    form.KeyDown(nullptr, keyEscape, 0);
    form.KeyDown(nullptr, keyEscape, 0);
    form.KeyTyped(&form.A, 27);
    form.KeyUp(&form.A, keyEscape, 0);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FocusTest, EnterPressesTheDefaultButtonWhereItMeansNothingElse) {
    form.DefaultButton = &form.OkKnop;
    form.KeyDown(nullptr, keyReturn, 0);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.Click"});
    form.KeyDown(&form.A, keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"A.KeyDown 13 0", "OkKnop.Click"}));
    form.A.MultiLine = true;
    form.KeyDown(&form.A, keyReturn, 0);
    EXPECT_EQ(log.Take(), Lines{"A.KeyDown 13 0"});
    form.KeyDown(&form.CancelKnop, keyReturn, 0);
    EXPECT_EQ(log.Take(), Lines{"CancelKnop.KeyDown 13 0"});
    form.KeyDown(&form.C, keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"C.KeyDown 13 0", "OkKnop.Click"}));
    form.OkKnop.SetEnabled(false);
    form.KeyDown(&form.C, keyReturn, 0);
    EXPECT_EQ(log.Take(), Lines{"C.KeyDown 13 0"});
}

TEST_F(FocusTest, AListThatOpensItsRowOnEnterKeepsTheKey) {
    form.DefaultButton = &form.OkKnop;
    form.C.AddItem("row");
    form.C.SetListIndex(0);
    log.Listen(form.C, &ListBox::DblClick, "DblClick");
    log.Take();
    form.KeyDown(&form.C, keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"C.KeyDown 13 0", "C.DblClick"}));
}

TEST_F(FocusTest, KeysGoToTheFocusOrToWhomTheyAreFor) {
    form.A.SetFocus();
    log.Take();
    form.KeyDown(nullptr, 65, 0);
    form.KeyTyped(nullptr, 97);
    form.KeyUp(nullptr, 65, 0);
    form.KeyDown(&form.B, 66, 4);
    EXPECT_EQ(log.Take(), (Lines{"A.KeyDown 65 0", "A.KeyPress 97", "A.KeyUp 65 0", "B.KeyDown 66 4"}));
    EXPECT_EQ(form.A.Text(), "");
}

TEST_F(FocusTest, AControlThatEndsHasTheFocusNoMore) {
    {
        TextBox passing(form, "Passing");
        passing.SetFocus();
        form.DefaultButton = &passing;
        EXPECT_EQ(form.Focus(), &passing);
    }
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_EQ(form.DefaultButton, nullptr);
}

}  // namespace
}  // namespace coinlet
