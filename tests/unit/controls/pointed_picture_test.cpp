// A picture on which keys point: the arrows move the pointer over what is shown of it, Space and Shift+F10
// hold its buttons.
#include "controls/pointed_picture.h"

#include "controls/frame.h"
#include "controls/vista_button.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

/// A picture of 100 by 80 pixels, 20 pixels right of and 10 below the corner of a frame.
struct PointedPictureForm : Form {
    explicit PointedPictureForm(FormServices services) : Form(services, "Sample") {
        Width = Height = 3000;
        Panel.Move(150, 150, 2000, 2000);
        Pic.Move(300, 150, 1500, 1200);
        log.ListenToAll(Pic);
        log.Listen(Pic, &Control::MouseMove, "MouseMove");
    }
    /// What came since the last call, without the keys and the focus.
    Lines Pointer() {
        Lines lines = log.Take();
        std::erase_if(lines, [](const std::string& line) {
            return line.find("Key") != std::string::npos || line.find("Focus") != std::string::npos;
        });
        return lines;
    }

    test::EventLog log;
    Frame Panel{*this, "Panel"};
    PointedPicture Pic{Panel, "Pic"};
    VistaButton Button{*this, "Button"};
};

struct PointedPictureTest : testing::Test {
    PointedPictureTest() {
        services.platform.ShowMain(form);
        form.Button.SetFocus();
    }

    void Down(int code, int shift = 0) { form.KeyDown(nullptr, code, shift); }
    void Up(int code, int shift = 0) { form.KeyUp(nullptr, code, shift); }
    void Press(int code, int shift = 0) { Down(code, shift), Up(code, shift); }

    test::TestServices services;
    PointedPictureForm form{services.ForForms()};
};

TEST_F(PointedPictureTest, TheTabKeyStopsWhereThereArePixels) {
    EXPECT_TRUE(form.Pic.StopsTab());
    form.Pic.SetWidth(0);
    EXPECT_FALSE(form.Pic.StopsTab());
    form.Pic.SetWidth(15);
    form.Pic.SetHeight(0);
    EXPECT_FALSE(form.Pic.StopsTab());
}

TEST_F(PointedPictureTest, APressOfThePointerLeavesTheFocusWhereItIs) {
    form.Pic.PointerClicked();
    EXPECT_EQ(form.Focus(), &form.Button);
}

TEST_F(PointedPictureTest, ArrowsMoveThePointerByOneOrTen) {
    form.Pic.SetFocus();
    Press(keyRight);
    EXPECT_EQ(services.platform.pointerOver, &form.Pic);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 0 1 0"});
    Press(keyDown, shiftHeld);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 1 1 10"});
    Press(keyLeft);
    Press(keyUp, shiftHeld);
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseMove 0 0 0 10", "Pic.MouseMove 0 1 0 0"}));
    // From where the pointer is, and not beyond an edge.
    form.Pic.PointerMoved(noButton, 0, 95, 75);
    Press(keyRight, shiftHeld);
    Press(keyDown, shiftHeld);
    EXPECT_EQ(form.Pointer(),
              (Lines{"Pic.MouseMove 0 0 95 75", "Pic.MouseMove 0 1 99 75", "Pic.MouseMove 0 1 99 79"}));
    // A drag has led the pointer out: the nearest place on the picture.
    form.Pic.PointerMoved(noButton, 0, -30, 200);
    Press(keyRight);
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseMove 0 0 -30 200", "Pic.MouseMove 0 0 0 79"}));
}

TEST_F(PointedPictureTest, OtherKeysAreSomebodyElses) {
    form.Pic.SetFocus();
    for (const int shift : {controlHeld, altHeld}) {
        for (const int code : {keyRight, keySpace, keyF10}) {
            EXPECT_FALSE(form.Pic.WantsKey(code, shift));
            Press(code, shift);
        }
    }
    for (const int code : {keyF10, keyReturn, keyHome, keyEnd, static_cast<int>('A')}) {
        EXPECT_FALSE(form.Pic.WantsKey(code, 0));
        Press(code);
    }
    EXPECT_EQ(form.Pointer(), Lines{});
    for (const int code : {keyLeft, keyUp, keyRight, keyDown, keySpace})
        EXPECT_TRUE(form.Pic.WantsKey(code, 0)) << code;
    EXPECT_TRUE(form.Pic.WantsKey(keyF10, shiftHeld));
}

TEST_F(PointedPictureTest, ArrowsMayBeTakenByOthers) {
    bool taken = true;
    form.Pic.ArrowsAreTaken = [&] { return taken; };
    form.Pic.SetFocus();
    EXPECT_FALSE(form.Pic.WantsKey(keyRight, 0));
    EXPECT_TRUE(form.Pic.WantsKey(keySpace, 0));
    Press(keyRight);
    EXPECT_EQ(form.Pointer(), Lines{});
    taken = false;
    Press(keyRight);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 0 1 0"});
}

TEST_F(PointedPictureTest, KeysHoldButtons) {
    form.Pic.SetFocus();
    form.Pic.PointerMoved(noButton, 0, 10, 20);
    form.log.Take();
    Down(keySpace);
    EXPECT_TRUE(form.PointerHeld());
    // A key that stays down comes again and again; another one holds no second button.
    Down(keySpace);
    Down(keyF10, shiftHeld);
    Down(keyRight);
    // The pointer itself moves on.
    form.Pic.PointerMoved(noButton, 0, 14, 20);
    Up(keyF10);
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseMove 0 0 10 20", "Pic.MouseDown 1 0 10 20",
                                     "Pic.MouseMove 1 0 11 20", "Pic.MouseMove 1 0 14 20"}));
    Up(keySpace);
    EXPECT_FALSE(form.PointerHeld());
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseUp 1 0 14 20", "Pic.Click"}));
    // Should it come up a second time, nothing is left to be ended.
    Up(keySpace);
    EXPECT_EQ(form.Pointer(), Lines{});
    // The right one, whether Shift comes up before F10 or after it.
    Down(keyF10, shiftHeld);
    Up(keyShift);
    Up(keyF10);
    EXPECT_EQ(form.Pointer(),
              (Lines{"Pic.MouseMove 0 1 14 20", "Pic.MouseDown 2 1 14 20", "Pic.MouseUp 2 0 14 20"}));
}

TEST_F(PointedPictureTest, WhatThePointerHoldsItDragsAlone) {
    form.Pic.SetFocus();
    form.Pic.PointerPressed(leftButton, 0, 10, 10);
    form.log.Take();
    Press(keyRight);
    Press(keySpace);
    EXPECT_EQ(form.Pointer(), Lines{});
    form.Pic.PointerReleased(leftButton, 0, 10, 10);
    form.log.Take();
    Press(keyRight);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 0 11 10"});
}

TEST_F(PointedPictureTest, TheFocusTakesTheHeldButtonAlong) {
    form.Pic.SetFocus();
    Down(keySpace);
    form.log.Take();
    form.Button.SetFocus();
    EXPECT_FALSE(form.PointerHeld());
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseUp 1 0 0 0", "Pic.Click"}));
    // A picture that the user is kept from is told of nothing, but holds nothing either.
    form.Pic.SetFocus();
    Down(keySpace);
    form.log.Take();
    form.Pic.SetEnabled(false);
    form.SettleFocus();
    EXPECT_FALSE(form.PointerHeld());
    EXPECT_EQ(form.Pointer(), Lines{});
}

TEST_F(PointedPictureTest, AMoveThatTakesTheFocusPressesNothing) {
    form.Pic.SetFocus();
    form.Pic.MouseMove = [&](int, int, float, float) { form.Button.SetFocus(); };
    Down(keySpace);
    EXPECT_FALSE(form.PointerHeld());
    EXPECT_EQ(form.Pointer(), Lines{});
}

TEST_F(PointedPictureTest, AHandlerThatClosesTheFormEndsAll) {
    form.Pic.SetFocus();
    form.Pic.MouseDown = [&](int, int, float, float) { form.Unload(); };
    Press(keySpace);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 0 0 0"});
}

TEST_F(PointedPictureTest, OnlyWhatItsContainersShowIsPointedAt) {
    // From 300 to 2000 twips of the frame are shown of it, and nothing left of its corner.
    form.Pic.Move(-300, 150, 4500, 1200);
    form.Pic.SetFocus();
    Press(keyLeft);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 0 20 0"});
    form.Pic.PointerMoved(noButton, 0, 150, 0);
    form.log.Take();
    Press(keyRight, shiftHeld);
    // The frame is 133 pixels wide.
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 1 152 0"});
    // Nothing is shown of it at all.
    form.Pic.SetLeft(2100);
    Press(keyRight);
    Press(keySpace);
    EXPECT_EQ(form.Pointer(), Lines{});
}

TEST_F(PointedPictureTest, APictureThatIsDraggedMovesUnderThePointer) {
    float grab = 0;
    form.Pic.MouseDown = [&](int, int, float x, float) { grab = x; };
    form.Pic.MouseMove = [&](int button, int, float x, float) {
        if (button == leftButton) form.Pic.SetLeft(form.Pic.Left() + (x - grab) * 15);
    };
    form.Pic.SetFocus();
    form.Pic.PointerMoved(noButton, 0, 50, 40);
    Down(keySpace);
    for (int i = 0; i < 3; ++i)
        Press(keyRight);
    Press(keyLeft, shiftHeld);
    Up(keySpace);
    EXPECT_EQ(form.Pic.Left(), 300 + (3 - 10) * 15);
    // And where the pointer is on it then, it was grabbed.
    EXPECT_EQ(form.Pointer().back(), "Pic.Click");
    Press(keyF10, shiftHeld);
    EXPECT_EQ(form.Pointer().front(), "Pic.MouseUp 2 1 50 40");
}

TEST_F(PointedPictureTest, APictureInTwipsIsWalkedByPixels) {
    form.Pic.surface.SetScaleMode(twipScale);
    form.Pic.SetFocus();
    Press(keyRight);
    Press(keyDown, shiftHeld);
    EXPECT_EQ(form.Pointer(), (Lines{"Pic.MouseMove 0 0 15 0", "Pic.MouseMove 0 1 15 150"}));
    form.Pic.PointerMoved(noButton, 0, 1485, 1185);
    form.log.Take();
    Press(keyRight, shiftHeld);
    EXPECT_EQ(form.Pointer(), Lines{"Pic.MouseMove 0 1 1485 1185"});
}

}  // namespace
}  // namespace coinlet
