// What is pressed and is no button: by Enter, Space and Shift with F10, in the middle or at one of its
// places.

#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/vista_button.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct PressByKeysForm : Form {
    explicit PressByKeysForm(FormServices services) : Form(services, "Sample") {
        Field.Move(0, 0, 600, 300);
        Pic.Move(0, 0, 1500, 1500);
        for (Control* control : {static_cast<Control*>(&Field), static_cast<Control*>(&Pic)}) {
            log.Listen(*control, &Control::MouseDown, "MouseDown");
            log.Listen(*control, &Control::MouseUp, "MouseUp");
            log.Listen(*control, &Control::Click, "Click");
        }
    }
    test::EventLog log;
    Label Field{*this, "Field"};
    PictureBox Pic{*this, "Pic"};
    VistaButton Button{*this, "Button"};
};

struct PressByKeysTest : testing::Test {
    PressByKeysTest() { services.platform.ShowMain(form); }

    void Press(int code, int shift = 0) {
        form.KeyDown(nullptr, code, shift);
        form.KeyUp(nullptr, code, shift);
    }

    test::TestServices services;
    PressByKeysForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(PressByKeysTest, NothingIsPressedThatKeysMayNotPress) {
    form.Field.SetFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    form.KeyDown(&form.Field, keyReturn, 0);
    EXPECT_FALSE(form.Field.WantsKey(keyReturn, 0));
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(PressByKeysTest, EnterSpaceAndShiftF10PressTheMiddle) {
    form.Field.LetKeysPress();
    EXPECT_TRUE(form.Field.StopsTab());
    form.Field.SetFocus();
    Press(keyReturn);
    EXPECT_EQ(log.Take(), (Lines{"Field.MouseDown 1 0 20 10", "Field.MouseUp 1 0 20 10", "Field.Click"}));
    form.KeyDown(nullptr, keySpace, 0);
    EXPECT_EQ(log.Take(), Lines{});
    form.KeyUp(nullptr, keySpace, 0);
    EXPECT_EQ(log.Take(), (Lines{"Field.MouseDown 1 0 20 10", "Field.MouseUp 1 0 20 10", "Field.Click"}));
    Press(keyF10, shiftHeld);
    EXPECT_EQ(log.Take(), (Lines{"Field.MouseDown 2 0 20 10", "Field.MouseUp 2 0 20 10"}));
    for (const int shift : {controlHeld, altHeld})
        for (const int code : {keyReturn, keySpace, keyF10})
            Press(code, shift);
    Press(keyF10);
    Press('A');
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(PressByKeysTest, SpaceMustComeUpWhereItWentDown) {
    form.Field.LetKeysPress();
    form.Field.SetFocus();
    form.KeyUp(nullptr, keySpace, 0);
    form.KeyDown(nullptr, keySpace, 0);
    form.Button.SetFocus();
    form.Field.SetFocus();
    form.KeyUp(nullptr, keySpace, 0);
    form.KeyDown(nullptr, keySpace, 0);
    form.Field.SetEnabled(false);
    form.KeyUp(&form.Field, keySpace, 0);
    form.Field.SetEnabled(true);
    form.KeyUp(&form.Field, keySpace, 0);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(PressByKeysTest, APressOfThePointerLeavesTheFocusWhereItIs) {
    form.Field.LetKeysPress();
    form.Button.SetFocus();
    form.Field.PointerClicked();
    EXPECT_EQ(form.Focus(), &form.Button);
}

TEST_F(PressByKeysTest, AHandlerThatClosesTheFormEndsThePress) {
    form.Field.LetKeysPress();
    form.Field.SetFocus();
    form.Field.MouseDown = [&](int, int, float, float) { form.Unload(); };
    Press(keyReturn);
    EXPECT_EQ(log.Take(), Lines{});
}

/// Three by two places of 20 pixels, the upper right one missing.
std::vector<Rectangle> Places() {
    return {{0, 0, 20, 20}, {20, 0, 20, 20}, {0, 20, 20, 20}, {20, 20, 20, 20}, {40, 20, 20, 20}};
}

TEST_F(PressByKeysTest, ArrowsWalkThePlaces) {
    form.Pic.SetPressPlaces(Places());
    form.Pic.SetFocus();
    EXPECT_EQ(form.Pic.PlaceNumber(), 0);
    const std::vector<std::pair<int, int>> steps{{keyRight, 1}, {keyRight, 4}, {keyUp, 1},      {keyDown, 3},
                                                 {keyRight, 4}, {keyRight, 4}, {keyLeft, 3},    {keyLeft, 2},
                                                 {keyLeft, 2},  {keyDown, 2},  {keyUp, 0},      {keyUp, 0},
                                                 {keyEnd, 4},   {keyHome, 0},  {keyPageDown, 0}};
    for (const auto& [key, place] : steps) {
        Press(key);
        EXPECT_EQ(form.Pic.PlaceNumber(), place) << "after key " << key;
    }
    Press(keyDown, controlHeld);
    EXPECT_EQ(form.Pic.PlaceNumber(), 0);
    EXPECT_TRUE(form.Pic.WantsKey(keyDown, 0));
    EXPECT_FALSE(form.Pic.WantsKey(keyDown, controlHeld));
    EXPECT_FALSE(form.Pic.WantsKey(keyPageDown, 0));
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(PressByKeysTest, ThePlaceIsPressedInItsMiddle) {
    form.Pic.SetPressPlaces(Places());
    form.Pic.SetFocus();
    Press(keyEnd);
    Press(keySpace);
    EXPECT_EQ(log.Take(), (Lines{"Pic.MouseDown 1 0 50 30", "Pic.MouseUp 1 0 50 30", "Pic.Click"}));
}

TEST_F(PressByKeysTest, WithoutPlacesAPictureIsPressedInTheMiddle) {
    form.Pic.SetPressPlaces({});
    EXPECT_EQ(form.Pic.PlaceNumber(), -1);
    form.Pic.SetFocus();
    Press(keyDown);
    Press(keyReturn);
    EXPECT_EQ(log.Take(), (Lines{"Pic.MouseDown 1 0 50 50", "Pic.MouseUp 1 0 50 50", "Pic.Click"}));
    EXPECT_FALSE(form.Pic.WantsKey(keyDown, 0));
}

}  // namespace
}  // namespace coinlet
