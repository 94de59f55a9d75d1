// The user's pointer and keys on a control: which events, in which order, and when none.

#include "controls/control.h"

#include "controls/frame.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct ControlForm : Form {
    explicit ControlForm(FormServices services) : Form(services, "Sample") {
        Text1.Move(0, 0, 600, 300);
        Label1.Move(0, 0, 600, 300);
        Inner.Move(0, 0, 300, 300);
        Pic.Move(0, 0, 150, 150);
        log.ListenToAll(Text1);
        log.ListenToAll(Label1);
        log.ListenToAll(Inner);
    }

    test::EventLog log;
    TextBox Text1{*this, "Text1"};
    Label Label1{*this, "Label1"};
    Frame Frame1{*this, "Frame1"};
    TextBox Inner{Frame1, "Inner"};
    PictureBox Pic{*this, "Pic"};
    Shape Band{*this, "Band"};
};

struct ControlTest : testing::Test {
    ControlTest() { services.platform.ShowMain(form); }

    test::TestServices services;
    ControlForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(ControlTest, AClickIsDownUpClickAndMovesTheFocusFirst) {
    form.Text1.PointerClicked();
    EXPECT_EQ(log.Take(), (Lines{"Text1.GotFocus", "Text1.MouseDown 1 0 20 10", "Text1.MouseUp 1 0 20 10",
                                 "Text1.Click"}));
    form.Text1.PointerClicked();
    EXPECT_EQ(log.Take(), (Lines{"Text1.MouseDown 1 0 20 10", "Text1.MouseUp 1 0 20 10", "Text1.Click"}));
}

TEST_F(ControlTest, ALabelIsClickedAndTakesNoFocus) {
    form.Text1.SetFocus();
    log.Take();
    form.Label1.PointerClicked();
    EXPECT_EQ(log.Take(), (Lines{"Label1.MouseDown 1 0 20 10", "Label1.MouseUp 1 0 20 10", "Label1.Click"}));
    EXPECT_TRUE(form.Text1.HasFocus());
}

TEST_F(ControlTest, OnlyALeftPressThatBeganHereAndEndsInsideClicks) {
    form.Label1.PointerPressed(1, 0, 5, 5);
    form.Label1.PointerReleased(1, 0, 40, 5);  // 600 twips are 40 pixels: the first column outside
    EXPECT_EQ(log.Take(), (Lines{"Label1.MouseDown 1 0 5 5", "Label1.MouseUp 1 0 40 5"}));
    form.Label1.PointerReleased(1, 0, 39, 19);
    EXPECT_EQ(log.Take(), Lines{"Label1.MouseUp 1 0 39 19"});
    form.Label1.PointerPressed(1, 0, 0, 0);
    form.Label1.PointerReleased(1, 0, 39, 19);
    EXPECT_EQ(log.Take(), (Lines{"Label1.MouseDown 1 0 0 0", "Label1.MouseUp 1 0 39 19", "Label1.Click"}));
}

TEST_F(ControlTest, TheRightButtonNeitherClicksNorMovesTheFocus) {
    form.Text1.PointerPressed(2, 3, 5, 5);
    form.Text1.PointerReleased(2, 3, 5, 5);
    EXPECT_EQ(log.Take(), (Lines{"Text1.MouseDown 2 3 5 5", "Text1.MouseUp 2 3 5 5"}));
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(ControlTest, KeysAreDownPressAndUp) {
    form.Text1.KeyPressed(65, 1);
    form.Text1.CharacterTyped('A');
    form.Text1.KeyReleased(65, 1);
    EXPECT_EQ(log.Take(), (Lines{"Text1.KeyDown 65 1", "Text1.KeyPress 65", "Text1.KeyUp 65 1"}));
    EXPECT_EQ(form.Text1.Text(), "");
}

TEST_F(ControlTest, ADisabledControlGetsNothing) {
    form.Text1.SetEnabled(false);
    form.Text1.PointerClicked();
    form.Text1.PointerMoved(0, 0, 1, 1);
    form.Text1.KeyPressed(65, 0);
    form.Text1.CharacterTyped('A');
    form.Text1.KeyReleased(65, 0);
    form.Text1.UserTypes("A");
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_EQ(form.Text1.Text(), "");
}

TEST_F(ControlTest, ADisabledFrameDisablesWhatItHolds) {
    form.Frame1.SetEnabled(false);
    EXPECT_TRUE(form.Inner.Enabled());
    EXPECT_FALSE(form.Inner.Reachable());
    form.Inner.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(ControlTest, AHiddenFrameHidesWhatItHolds) {
    EXPECT_TRUE(form.Inner.Shown());
    form.Frame1.Visible = false;
    EXPECT_TRUE(form.Inner.Visible);
    EXPECT_FALSE(form.Inner.Shown());
    EXPECT_FALSE(form.Inner.CanFocus());
}

TEST_F(ControlTest, AControlOfAFormThatIsNotLoadedGetsNothing) {
    form.Unload();
    form.Label1.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(ControlTest, AnOutlineTakesNoEvents) {
    form.Band.Move(0, 0, 300, 300);
    int events = 0;
    form.Band.MouseDown = [&](int, int, float, float) { ++events; };
    form.Band.Click = [&] { ++events; };
    form.Band.PointerClicked();
    EXPECT_EQ(events, 0);
}

TEST_F(ControlTest, AHandlerThatDisablesTheControlEndsItsClick) {
    form.Label1.MouseDown = [&](int, int, float, float) { form.Label1.SetEnabled(false); };
    form.Label1.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
    form.Label1.SetEnabled(true);
    // The press was forgotten: a release alone doesn't click.
    form.Label1.PointerReleased(1, 0, 5, 5);
    EXPECT_EQ(log.Take(), Lines{"Label1.MouseUp 1 0 5 5"});
}

TEST_F(ControlTest, AHandlerThatUnloadsTheFormEndsTheClick) {
    form.Label1.MouseUp = [&](int, int, float, float) { form.Unload(); };
    form.Label1.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{"Label1.MouseDown 1 0 20 10"});
    form.Text1.GotFocus = [&] { ADD_FAILURE(); };
    form.Text1.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(ControlTest, AGotFocusHandlerThatUnloadsTheFormEndsThePress) {
    form.Text1.GotFocus = [&] { form.Unload(); };
    form.Text1.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(ControlTest, AHandlerMayReplaceItself) {
    int first = 0, second = 0;
    form.Label1.Click = [&, marker = std::string(100, 'x')] {
        form.Label1.Click = [&] { ++second; };
        first += static_cast<int>(marker.size());
    };
    form.Label1.PointerClicked();
    form.Label1.PointerClicked();
    EXPECT_EQ(first, 100);
    EXPECT_EQ(second, 1);
}

TEST_F(ControlTest, PixelsAreAFifteenthOfTwipsHalvesToEven) {
    form.Label1.SetWidth(37.5);   // 2.5 pixels
    form.Label1.SetHeight(52.5);  // 3.5 pixels
    EXPECT_EQ(form.Label1.PixelWidth(), 2);
    EXPECT_EQ(form.Label1.PixelHeight(), 4);
}

TEST_F(ControlTest, ThePointerOfAPictureIsInTheUnitsOfItsScale) {
    form.Pic.surface.SetScaleMode(twipScale);
    EXPECT_EQ(form.Pic.PointerUnitsPerPixel(), 15);
    int clicks = 0;
    form.Pic.Click = [&] { ++clicks; };
    form.Pic.PointerPressed(1, 0, 149, 149);
    form.Pic.PointerReleased(1, 0, 149, 149);
    EXPECT_EQ(clicks, 1);
    form.Pic.surface.SetScaleMode(pixelScale);
    form.Pic.PointerPressed(1, 0, 9, 9);
    form.Pic.PointerReleased(1, 0, 10, 9);  // 150 twips are 10 pixels
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlTest, AnArrayFindsItsElementsFromAnyFirstIndex) {
    ControlArray<Label> labels(form, "Lab", 3, 4);
    EXPECT_EQ(labels.First(), 3);
    EXPECT_EQ(labels.Last(), 6);
    EXPECT_FALSE(labels.Contains(2));
    EXPECT_TRUE(labels.Contains(6));
    EXPECT_FALSE(labels.Contains(7));
    EXPECT_EQ(labels[5].Index(), 5);
    EXPECT_EQ(form.Find("Lab", 5), &labels[5]);
    EXPECT_THROW(labels[7], std::out_of_range);
    EXPECT_THROW(labels[2], std::out_of_range);

    std::vector<int> clicked;
    labels.Bind(&Label::Click, [&](int index) { clicked.push_back(index); });
    labels[3].Click();
    labels[6].Click();
    EXPECT_EQ(clicked, (std::vector{3, 6}));
}

TEST_F(ControlTest, ElementsComeAndGo) {
    const auto before = form.ElementRevision();
    const auto count = form.Elements().size();
    {
        const Label passing(form.Frame1, "Passing");
        EXPECT_EQ(form.Find("Passing"), &passing);
        EXPECT_EQ(form.Frame1.Children().back(), &passing);
        EXPECT_EQ(form.Elements().size(), count + 1);
    }
    EXPECT_EQ(form.Find("Passing"), nullptr);
    EXPECT_EQ(form.Frame1.Children(), std::vector<Control*>{&form.Inner});
    EXPECT_EQ(form.Elements().size(), count);
    EXPECT_EQ(form.ElementRevision(), before + 2);
}

}  // namespace
}  // namespace coinlet
