// The states, events and properties of the push button.

#include "controls/vista_button.h"

#include "button_form.h"
#include "event_log.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;
using enum ButtonState;

struct ButtonTest : testing::Test {
    ButtonTest() {
        services.platform.ShowMain(form);
        log.ListenToAll(button);
        log.Listen(button, &Control::MouseMove, "MouseMove");
        log.Listen(button, &VistaButton::MouseIn, "MouseIn");
        log.Listen(button, &VistaButton::MouseOut, "MouseOut");
    }

    /// The pointer comes onto the button, or leaves it without any notice.
    void PointerComes() { services.platform.pointerOver = &button; }
    void PointerLeaves() { services.platform.pointerOver = nullptr; }
    void Tick() { button.HoverTimer()->Tick(); }

    test::TestServices services;
    test::ButtonForm form{services.ForForms()};
    VistaButton& button = form.OkKnop;
    test::EventLog log;
};

TEST_F(ButtonTest, ANewButtonHasItsDefaults) {
    EXPECT_EQ(button.Caption(), "OkKnop");
    EXPECT_EQ(button.ForeColor(), black);
    EXPECT_EQ(button.Font().FontName, "Arial");
    EXPECT_TRUE(button.Picture().Empty());
    EXPECT_EQ(button.Pictures(), 2);
    EXPECT_TRUE(button.UseMaskColor());
    EXPECT_EQ(button.MaskColor(), 65280);
    EXPECT_TRUE(button.Enabled());
    EXPECT_FALSE(button.NoBackground());
    EXPECT_EQ(button.BackColor(), RGB(240, 240, 240));
    EXPECT_EQ(button.PictureOffset(), 0);
    EXPECT_EQ(button.State(), Normal);
    EXPECT_TRUE(button.TabStop);
    EXPECT_EQ(button.HoverTimer(), nullptr);
}

TEST_F(ButtonTest, TheNumberOfPicturesIsBoundButForAStoredOne) {
    const std::vector<std::pair<int, int>> bounds = {{-1, 1}, {3, 2}, {0, 0}, {1, 1}, {2, 2}, {-32768, 1}};
    for (const auto& [given, kept] : bounds) {
        button.SetPictures(given);
        EXPECT_EQ(button.Pictures(), kept) << given;
    }
    button.LoadPictures(3);
    EXPECT_EQ(button.Pictures(), 3);
}

TEST_F(ButtonTest, EachPropertyDrawsItAnew) {
    const std::vector<std::function<void()>> assignments = {
        [&] { button.SetCaption("x"); },     [&] { button.SetForeColor(white); },
        [&] { button.SetFont({}); },         [&] { button.SetPicture({}); },
        [&] { button.SetPictures(1); },      [&] { button.SetUseMaskColor(false); },
        [&] { button.SetMaskColor(white); }, [&] { button.SetNoBackground(true); },
        [&] { button.SetBackColor(white); }, [&] { button.SetPictureOffset(1); },
        [&] { button.SetEnabled(false); },   [&] { button.SetWidth(300); },
        [&] { button.SetHeight(300); }};
    for (const auto& assign : assignments) {
        const auto before = button.LookRevision();
        assign();
        EXPECT_EQ(button.LookRevision(), before + 1) << &assign - assignments.data();
    }
}

TEST_F(ButtonTest, AMovingPointerDrawsOnce) {
    PointerComes();
    const auto before = button.LookRevision();
    for (float x = 0; x < 50; ++x)
        button.PointerMoved(0, 0, x, 5);
    EXPECT_EQ(button.LookRevision(), before + 1);
    const auto drawn = button.Face().Revision();
    EXPECT_EQ(button.Face().Revision(), drawn);
}

TEST_F(ButtonTest, EveryMoveInsideIsAMoveAndAMouseIn) {
    PointerComes();
    button.PointerMoved(0, 0, 0, 0);
    button.PointerMoved(0, 0, 69, 23);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseMove 0 0 0 0", "OkKnop.MouseIn", "OkKnop.MouseMove 0 0 69 23",
                                 "OkKnop.MouseIn"}));
    EXPECT_EQ(button.State(), Hover);
}

TEST_F(ButtonTest, AMoveOutsideIsNoMouseInAndKeepsTheHoverLook) {
    button.PointerMoved(1, 0, 70, 5);
    button.PointerMoved(1, 0, 5, 24);
    button.PointerMoved(1, 0, -1, 5);
    EXPECT_EQ(log.Take(),
              (Lines{"OkKnop.MouseMove 1 0 70 5", "OkKnop.MouseMove 1 0 5 24", "OkKnop.MouseMove 1 0 -1 5"}));
    EXPECT_EQ(button.State(), Hover);
    EXPECT_EQ(button.HoverTimer(), nullptr);
}

TEST_F(ButtonTest, OnlyAMoveThatChangesTheLookStartsTheHover) {
    button.PointerMoved(1, 0, 70, 5);
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    EXPECT_EQ(button.State(), Hover);
    EXPECT_EQ(button.HoverTimer(), nullptr);
}

TEST_F(ButtonTest, TheHoverTimerLivesWhileThePointerIsThere) {
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    ASSERT_NE(button.HoverTimer(), nullptr);
    EXPECT_EQ(button.HoverTimer()->Name(), "Hover");
    EXPECT_EQ(button.HoverTimer()->Interval, 10);
    EXPECT_TRUE(button.HoverTimer()->Enabled);
    EXPECT_EQ(button.HoverTimer()->Owner(), &button);
    EXPECT_EQ(form.Timers(), std::vector<Timer*>{button.HoverTimer()});
    Tick();
    ASSERT_NE(button.HoverTimer(), nullptr);
    log.Take();
    PointerLeaves();
    Tick();
    EXPECT_EQ(button.HoverTimer(), nullptr);
    EXPECT_TRUE(form.Timers().empty());
    EXPECT_EQ(button.State(), Normal);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.MouseOut"});
}

TEST_F(ButtonTest, AHoverThatEndsWhileTheButtonIsHeldKeepsTheLook) {
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    button.PointerPressed(1, 0, 5, 5);
    log.Take();
    PointerLeaves();
    Tick();
    EXPECT_EQ(button.State(), Pressed);
    EXPECT_EQ(button.HoverTimer(), nullptr);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.MouseOut"});
}

TEST_F(ButtonTest, AHoverThatEndsWithTheFocusHeldShowsTheFocus) {
    button.SetFocus();
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    EXPECT_EQ(button.State(), Hover);
    PointerLeaves();
    Tick();
    EXPECT_EQ(button.State(), Focused);
}

TEST_F(ButtonTest, AMouseOutHandlerMayUnloadTheForm) {
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    button.MouseOut = [&] { form.Unload(); };
    PointerLeaves();
    Tick();
    EXPECT_FALSE(form.Loaded());
}

TEST_F(ButtonTest, AClickIsDownUpClick) {
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    log.Take();
    button.PointerPressed(1, 0, 5, 6);
    EXPECT_EQ(button.State(), Pressed);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.GotFocus", "OkKnop.MouseDown 1 0 5 6"}));
    button.PointerReleased(1, 0, 5, 6);
    EXPECT_EQ(button.State(), Hover);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseUp 1 0 5 6", "OkKnop.Click"}));
}

TEST_F(ButtonTest, TheButtonIsNotYetPressedWhenItsMouseDownIsRaised) {
    std::vector<ButtonState> seen;
    button.MouseDown = [&](int, int, float, float) { seen.push_back(button.State()); };
    button.MouseUp = [&](int, int, float, float) { seen.push_back(button.State()); };
    button.Click = [&] { seen.push_back(button.State()); };
    PointerComes();
    button.PointerClicked();
    EXPECT_EQ(seen, (std::vector{Normal, Pressed, Hover}));
}

TEST_F(ButtonTest, AReleaseOutsideRaisesNoClick) {
    PointerComes();
    button.PointerPressed(1, 0, 5, 5);
    PointerLeaves();
    log.Take();
    button.PointerReleased(1, 0, 70, 5);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.MouseUp 1 0 70 5"});
    EXPECT_EQ(button.State(), Focused);
    button.PointerPressed(1, 0, 5, 5);
    form.Text1.SetFocus();
    button.PointerPressed(2, 0, 5, 5);
    button.PointerReleased(2, 0, -1, 5);
    EXPECT_EQ(button.State(), Normal);
}

TEST_F(ButtonTest, ARightPressShowsAndDoesNotClick) {
    button.PointerPressed(2, 0, 5, 5);
    EXPECT_EQ(button.State(), Pressed);
    button.PointerReleased(2, 0, 5, 5);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseDown 2 0 5 5", "OkKnop.MouseUp 2 0 5 5"}));
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(ButtonTest, AHeldButtonThatThePointerComesBackToIsPressed) {
    PointerComes();
    button.PointerPressed(1, 0, 5, 5);
    button.PointerMoved(1, 0, 80, 5);
    EXPECT_EQ(button.State(), Hover);
    button.PointerMoved(1, 0, 5, 5);
    EXPECT_EQ(button.State(), Pressed);
    EXPECT_NE(button.HoverTimer(), nullptr);
}

TEST_F(ButtonTest, TheFocusShowsUnlessThePointerIsThere) {
    button.SetFocus();
    EXPECT_EQ(button.State(), Focused);
    form.Text1.SetFocus();
    EXPECT_EQ(button.State(), Normal);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.GotFocus", "OkKnop.LostFocus"}));
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    button.SetFocus();
    EXPECT_EQ(button.State(), Hover);
    form.Text1.SetFocus();
    EXPECT_EQ(button.State(), Hover);
}

TEST_F(ButtonTest, AHeldButtonThatGetsTheFocusStaysPressed) {
    button.PointerPressed(2, 0, 5, 5);
    button.SetFocus();
    EXPECT_EQ(button.State(), Pressed);
}

TEST_F(ButtonTest, TheSpaceBarPressesWithThePointerAway) {
    button.SetFocus();
    log.Take();
    button.KeyPressed(keySpace, 0);
    EXPECT_EQ(button.State(), Pressed);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseDown 0 0 0 0", "OkKnop.KeyDown 32 0"}));
    button.CharacterTyped(keySpace);
    button.KeyReleased(keySpace, 0);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseUp 0 0 -1 0", "OkKnop.Click", "OkKnop.KeyUp 32 0"}));
    EXPECT_EQ(button.State(), Focused);
}

TEST_F(ButtonTest, TheSpaceBarWithoutAFocusEndsNormal) {
    button.KeyPressed(keySpace, 0);
    button.KeyReleased(keySpace, 0);
    EXPECT_EQ(button.State(), Normal);
}

TEST_F(ButtonTest, TheSpaceBarWithThePointerThereEndsInHover) {
    button.SetFocus();
    PointerComes();
    button.KeyPressed(keySpace, 0);
    log.Take();
    button.KeyReleased(keySpace, 0);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.MouseUp 0 0 0 0", "OkKnop.Click", "OkKnop.KeyUp 32 0"}));
    EXPECT_EQ(button.State(), Hover);
}

TEST_F(ButtonTest, OtherKeysAreKeysAndEnterDoesNothing) {
    button.SetFocus();
    log.Take();
    form.KeyDown(nullptr, keyReturn, 0);
    form.KeyTyped(nullptr, 13);
    form.KeyUp(nullptr, keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"OkKnop.KeyDown 13 0", "OkKnop.KeyPress 13", "OkKnop.KeyUp 13 0"}));
    EXPECT_EQ(button.State(), Focused);
}

TEST_F(ButtonTest, ADisabledButtonTellsNothing) {
    button.SetEnabled(false);
    EXPECT_EQ(button.State(), Disabled);
    button.PointerMoved(0, 0, 5, 5);
    button.PointerClicked();
    button.KeyPressed(keySpace, 0);
    button.CharacterTyped(65);
    button.KeyReleased(keySpace, 0);
    button.SetFocus();
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_EQ(button.State(), Disabled);
    button.SetEnabled(true);
    EXPECT_EQ(button.State(), Normal);
}

TEST_F(ButtonTest, WritingEnabledSetsTheStateEvenToTheSame) {
    button.SetFocus();
    button.SetEnabled(true);
    EXPECT_EQ(button.State(), Normal);
}

TEST_F(ButtonTest, AButtonDisabledUnderThePointerStaysDisabled) {
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    button.SetEnabled(false);
    log.Take();
    Tick();
    PointerLeaves();
    Tick();
    EXPECT_EQ(button.HoverTimer(), nullptr);
    EXPECT_EQ(button.State(), Disabled);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(ButtonTest, AHandlerThatDisablesTheButtonLeavesItDisabled) {
    button.MouseDown = [&](int, int, float, float) { button.SetEnabled(false); };
    button.PointerClicked();
    EXPECT_EQ(button.State(), Disabled);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.GotFocus"});
}

TEST_F(ButtonTest, ADisabledButtonThatLosesTheFocusForgetsIt) {
    button.SetFocus();
    button.SetEnabled(false);
    form.Text1.SetFocus();
    EXPECT_EQ(button.State(), Disabled);
    button.SetEnabled(true);
    PointerComes();
    button.PointerMoved(0, 0, 5, 5);
    PointerLeaves();
    Tick();
    EXPECT_EQ(button.State(), Normal);
}

TEST_F(ButtonTest, TheTabStopComesBackWithTheButton) {
    button.SetEnabled(false);
    EXPECT_FALSE(button.TabStop);
    button.SetEnabled(false);
    button.SetEnabled(true);
    EXPECT_TRUE(button.TabStop);
    button.TabStop = false;
    button.SetEnabled(false);
    button.SetEnabled(true);
    EXPECT_FALSE(button.TabStop);
    button.TabStop = true;
    button.SetEnabled(true);
    EXPECT_TRUE(button.TabStop);
}

TEST_F(ButtonTest, AClickHandlerMayHideTheButtonOrUnloadTheForm) {
    button.Click = [&] { form.Unload(); };
    button.KeyPressed(keySpace, 0);
    log.Take();
    button.KeyReleased(keySpace, 0);
    EXPECT_EQ(log.Take(), Lines{"OkKnop.MouseUp 0 0 -1 0"});
}

TEST_F(ButtonTest, TheFaceIsDrawnAsItWasWhenTheStateChanged) {
    constexpr Colour released = RGB(250, 0, 0), held = RGB(0, 0, 250);
    Bitmap strip(9, 3, ToPixel(released));
    for (int y = 0; y < 3; ++y)
        std::fill_n(strip.Row(y) + 6, 3, ToPixel(held));
    button.SetCaption("");
    button.LoadPictures(3);
    button.SetPicture(Image(std::move(strip)));
    const auto inTheMiddle = [&] { return button.Face().Point(35, 11); };

    // A move outside while held shows the hover look with the picture of a press; letting go doesn't change
    // that look until the state does.
    button.PointerPressed(1, 0, 5, 5);
    button.PointerMoved(1, 0, 80, 5);
    EXPECT_EQ(button.State(), Hover);
    EXPECT_EQ(inTheMiddle(), held);
    const auto drawn = button.LookRevision();
    button.PointerReleased(1, 0, 5, 5);
    EXPECT_EQ(button.State(), Hover);
    EXPECT_EQ(button.LookRevision(), drawn);
    EXPECT_EQ(inTheMiddle(), held);
    form.Text1.SetFocus();
    EXPECT_EQ(button.State(), Normal);
    EXPECT_EQ(inTheMiddle(), released);
}

TEST_F(ButtonTest, APressOfAHeldButtonDrawsNothing) {
    button.PointerPressed(1, 0, 5, 5);
    const auto pressed = button.LookRevision();
    button.PointerPressed(2, 0, 5, 5);
    EXPECT_EQ(button.LookRevision(), pressed);
}

TEST_F(ButtonTest, AfterAClickNothingCountsAsHeld) {
    button.PointerPressed(1, 0, 5, 5);
    EXPECT_TRUE(form.PointerHeld());
    button.PointerPressed(2, 0, 5, 5);
    button.PointerReleased(1, 0, 5, 5);
    EXPECT_TRUE(form.PointerHeld());
    button.PointerReleased(2, 0, 5, 5);
    EXPECT_FALSE(form.PointerHeld());
    button.PointerClicked();
    EXPECT_FALSE(form.PointerHeld());
}

}  // namespace
}  // namespace coinlet
