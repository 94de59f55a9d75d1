// Scroll bars, check boxes, options, text and combo boxes, lists: the events that values raise.

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/frame.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <climits>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct FieldsForm : Form {
    explicit FieldsForm(FormServices services) : Form(services, "Sample") {
        for (Control* control : TabOrder())
            control->Move(0, 0, 300, 300);
        log.Listen(Bar, &ScrollBar::Change, "Change");
        log.Listen(Bar, &ScrollBar::Scroll, "Scroll");
        log.Listen(Check, &Control::Click, "Click");
        log.Listen(One, &Control::Click, "Click");
        log.Listen(Two, &Control::Click, "Click");
        log.Listen(Inner, &Control::Click, "Click");
        log.Listen(Text, &TextBox::Change, "Change");
        log.Listen(List, &Control::Click, "Click");
        log.Listen(List, &ListBox::DblClick, "DblClick");
        log.Listen(Combo, &Control::Click, "Click");
        log.Listen(Combo, &ComboBox::Change, "Change");
    }

    test::EventLog log;
    ScrollBar Bar{*this, "Bar", Orientation::Horizontal};
    CheckBox Check{*this, "Check"};
    OptionButton One{*this, "One"}, Two{*this, "Two"};
    Frame Frame1{*this, "Frame1"};
    OptionButton Inner{Frame1, "Inner"};
    TextBox Text{*this, "Text"};
    ListBox List{*this, "List"};
    ComboBox Combo{*this, "Combo"};
};

struct FieldsTest : testing::Test {
    FieldsTest() { services.platform.ShowMain(form); }

    void FillLists() {
        for (const char* row : {"a", "b", "c"}) {
            form.List.AddItem(row);
            form.Combo.AddItem(row);
        }
    }

    test::TestServices services;
    FieldsForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(FieldsTest, ABarTellsOfAChangedValueAndOfNoOther) {
    form.Bar.SetRange(0, 100);
    form.Bar.SetValue(0);
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.SetValue(7);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
    form.Bar.SetValue(101);
    EXPECT_EQ(form.Bar.Value(), 100);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
    form.Bar.SetValue(INT_MAX);
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.SetValue(INT_MIN);
    EXPECT_EQ(form.Bar.Value(), 0);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
}

TEST_F(FieldsTest, ARangeThatTheValueLeavesClampsItAndTells) {
    form.Bar.SetMax(330);
    form.Bar.SetMin(110);
    EXPECT_EQ(form.Bar.Value(), 110);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
    form.Bar.SetMin(0);
    form.Bar.SetMax(110);
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.SetMax(50);
    EXPECT_EQ(form.Bar.Value(), 50);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
}

TEST_F(FieldsTest, ANewRangeTakesTheValueAlong) {
    form.Bar.SetRange(0, 10);
    form.Bar.SetValue(7);
    log.Take();
    form.Bar.SetRange(5, 9);
    EXPECT_EQ(form.Bar.Value(), 7);
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.SetRange(20, 30);
    EXPECT_EQ(form.Bar.Value(), 20);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
}

TEST_F(FieldsTest, AMaxBelowMinMakesAnInertBarAtMin) {
    form.Bar.SetRange(1, 9);
    form.Bar.SetValue(5);
    log.Take();
    form.Bar.SetMax(-1);
    EXPECT_TRUE(form.Bar.Inert());
    EXPECT_FALSE(form.Bar.Reversed());
    EXPECT_EQ(form.Bar.Value(), 1);
    EXPECT_EQ(log.Take(), Lines{"Bar.Change"});
    form.Bar.SetValue(4);
    form.Bar.UserDrags(4);
    form.Bar.KeyPressed(keyEnd, 0);
    EXPECT_EQ(form.Bar.Value(), 1);
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.SetMax(9);
    EXPECT_FALSE(form.Bar.Inert());
    form.Bar.SetMin(10);
    EXPECT_TRUE(form.Bar.Inert());
    EXPECT_EQ(form.Bar.Value(), 10);
}

TEST_F(FieldsTest, AReversedBarHasMinAtItsLeftEnd) {
    form.Bar.SetRange(100, -100);
    EXPECT_TRUE(form.Bar.Reversed());
    EXPECT_EQ(form.Bar.Lowest(), -100);
    EXPECT_EQ(form.Bar.Highest(), 100);
    EXPECT_EQ(form.Bar.Value(), 0);
    form.Bar.KeyPressed(keyRight, 0);
    EXPECT_EQ(form.Bar.Value(), -1);
    form.Bar.KeyPressed(keyHome, 0);
    EXPECT_EQ(form.Bar.Value(), 100);
    form.Bar.SetMax(50);
    EXPECT_TRUE(form.Bar.Reversed());
    form.Bar.SetMax(100);
    EXPECT_FALSE(form.Bar.Reversed());
    EXPECT_FALSE(form.Bar.Inert());
}

TEST_F(FieldsTest, AFieldOfOneLineTakesTheFirstLineOfATextAssigned) {
    for (const char* text : {"one\r\ntwo", "\n\r\none\ntwo", "one\u2028two", "one\r"}) {
        form.Text.SetText("");
        form.Combo.SetText("");
        form.Text.SetText(text);
        form.Combo.SetText(text);
        EXPECT_EQ(form.Text.Text(), "one") << text;
        EXPECT_EQ(form.Combo.Text(), "one") << text;
    }
    log.Take();
    // What is left of it stands there already.
    form.Text.SetText("one\nthree");
    form.Combo.SetText("one\nthree");
    EXPECT_EQ(log.Take(), Lines{});
    form.Text.MultiLine = true;
    form.Text.SetText("one\r\nthree");
    EXPECT_EQ(form.Text.Text(), "one\r\nthree");
}

TEST_F(FieldsTest, AFieldOfOneLineTakesTheFirstLineOfATextInserted) {
    struct Case {
        const char *before, *edited, *after;
    };
    constexpr Case cases[] = {
        {"", "72\n15\n8", "72"},
        {"ac", "ab\r\nxc", "abc"},  // around the caret all stays
        {"ac", "a\nb\nxc", "abc"},  // a break in front is dropped
        {"abcd", "aX\nYd", "aXd"},  // in the place of what was selected
        {"ab", "ab\n", "ab"},
        {"ab", "\nab", "ab"},
        {"aa", "aa\naa", "aaaa"},
        {"x\u00E8", "x\u00E8\u2028", "x\u00E8"},  // the last bytes of both are alike
        {"\u00E8", "\u00E9\n\u00E8", "\u00E9\u00E8"},
        {"ab", "cd", "cd"},
    };
    for (const auto& [before, edited, after] : cases) {
        form.Text.SetText(before);
        form.Combo.SetText(before);
        form.Text.UserEdits(edited);
        form.Combo.UserEdits(edited);
        EXPECT_EQ(form.Text.Text(), after) << edited;
        EXPECT_EQ(form.Combo.Text(), after) << edited;
    }
    form.Text.MultiLine = true;
    form.Text.UserEdits("c\r\nd");
    EXPECT_EQ(form.Text.Text(), "c\r\nd");
}

TEST_F(FieldsTest, ADragScrollsAndItsEndChanges) {
    form.Bar.SetRange(0, 10);
    form.Bar.UserReleases();
    EXPECT_EQ(log.Take(), Lines{});
    form.Bar.UserDrags(3);
    form.Bar.UserDrags(3);
    form.Bar.UserDrags(99);
    form.Bar.UserReleases();
    form.Bar.UserReleases();
    EXPECT_EQ(form.Bar.Value(), 10);
    EXPECT_EQ(log.Take(), (Lines{"Bar.Scroll", "Bar.Scroll", "Bar.Change"}));
}

TEST_F(FieldsTest, KeysMoveTheBarBySmallAndLargeSteps) {
    form.Bar.SetRange(0, 100);
    form.Bar.SmallChange = 2;
    const std::vector<std::pair<int, int>> steps = {{keyRight, 2},     {keyDown, 4}, {keyLeft, 2},
                                                    {keyPageDown, 12}, {keyUp, 10},  {keyPageUp, 0},
                                                    {keyEnd, 100},     {keyHome, 0}, {65, 0}};
    for (const auto& [key, value] : steps) {
        form.Bar.KeyPressed(key, 0);
        EXPECT_EQ(form.Bar.Value(), value) << "after key " << key;
    }
    form.Bar.SetRange(INT_MIN, INT_MAX);
    form.Bar.SetValue(INT_MAX);
    form.Bar.SmallChange = INT_MIN;
    form.Bar.KeyPressed(keyLeft, 0);
    EXPECT_EQ(form.Bar.Value(), INT_MAX);
}

TEST_F(FieldsTest, ACheckBoxClicksWheneverItsValueBecomesAnother) {
    form.Check.SetValue(false);
    EXPECT_EQ(log.Take(), Lines{});
    form.Check.SetValue(true);
    EXPECT_EQ(log.Take(), Lines{"Check.Click"});
    form.Check.PointerClicked();
    EXPECT_FALSE(form.Check.Value());
    EXPECT_EQ(log.Take(), Lines{"Check.Click"});
    form.Check.KeyReleased(keySpace, 0);
    EXPECT_TRUE(form.Check.Value());
    EXPECT_EQ(log.Take(), Lines{"Check.Click"});
    form.Check.SetEnabled(false);
    form.Check.KeyReleased(keySpace, 0);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, OfTheOptionsInOneContainerAtMostOneIsChosen) {
    form.One.PointerClicked();
    form.Inner.SetValue(true);
    EXPECT_EQ(log.Take(), (Lines{"One.Click", "Inner.Click"}));
    form.Two.SetValue(true);
    EXPECT_EQ(log.Take(), Lines{"Two.Click"});
    EXPECT_FALSE(form.One.Value());
    EXPECT_TRUE(form.Inner.Value());
    form.Two.PointerClicked();
    form.Two.SetValue(false);
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_FALSE(form.One.Value());
    form.One.KeyReleased(keySpace, 0);
    EXPECT_EQ(log.Take(), Lines{"One.Click"});
}

TEST_F(FieldsTest, ATextTellsOfAChangeAndOfNoOther) {
    form.Text.SetText("abc");
    form.Text.SetText("abc");
    EXPECT_EQ(log.Take(), Lines{"Text.Change"});
    form.Text.UserTypes("é");
    EXPECT_EQ(form.Text.Text(), "abcé");
    form.Text.UserEdits("x");
    EXPECT_EQ(log.Take(), (Lines{"Text.Change", "Text.Change"}));
}

TEST_F(FieldsTest, ControlCharactersTypeNothingButLineEnds) {
    form.Text.UserTypes("\r");
    form.Text.UserTypes("\b");
    form.Text.UserTypes("\x7F");
    EXPECT_EQ(form.Text.Text(), "");
    EXPECT_EQ(log.Take(), Lines{});
    form.Text.MultiLine = true;
    form.Text.UserTypes("a");
    form.Text.UserTypes("\r");
    form.Text.UserTypes("\n");
    form.Text.UserTypes("\t");
    EXPECT_EQ(form.Text.Text(), "a\r\n\r\n");
}

TEST_F(FieldsTest, TheUserCannotChangeALockedText) {
    form.Text.SetText("fixed");
    form.Text.Locked = true;
    form.Text.UserTypes("x");
    form.Text.UserEdits("y");
    EXPECT_EQ(form.Text.Text(), "fixed");
    form.Text.SetText("by the program");
    EXPECT_EQ(form.Text.Text(), "by the program");
}

TEST_F(FieldsTest, ATextHandlerMayCorrectItsText) {
    int changes = 0;
    form.Text.Change = [&] {
        ++changes;
        form.Text.SetText("7");
    };
    form.Text.UserTypes("x");
    EXPECT_EQ(form.Text.Text(), "7");
    EXPECT_EQ(changes, 2);
}

TEST_F(FieldsTest, AListTellsOfAnotherChoiceAndTheUsersClickAlways) {
    FillLists();
    EXPECT_EQ(form.List.ListIndex(), -1);
    EXPECT_EQ(form.List.Text(), "");
    form.List.SetListIndex(1);
    form.List.SetListIndex(1);
    EXPECT_EQ(log.Take(), Lines{"List.Click"});
    EXPECT_EQ(form.List.Text(), "b");
    form.List.UserPicks(1);
    EXPECT_EQ(log.Take(), Lines{"List.Click"});
    form.List.SetListIndex(3);
    form.List.SetListIndex(-2);
    form.List.UserPicks(-1);
    form.List.UserPicks(3);
    EXPECT_EQ(form.List.ListIndex(), 1);
    EXPECT_EQ(log.Take(), Lines{});
    form.List.SetListIndex(-1);
    form.List.SetListIndex(-1);
    EXPECT_EQ(log.Take(), Lines{"List.Click"});
}

TEST_F(FieldsTest, RowsComeAndGoWithoutAnEvent) {
    FillLists();
    form.List.SetListIndex(1);
    log.Take();
    form.List.RemoveItem(0);
    EXPECT_EQ(form.List.ListIndex(), 0);
    EXPECT_EQ(form.List.Text(), "b");
    form.List.RemoveItem(5);
    form.List.RemoveItem(-1);
    form.List.RemoveItem(0);
    EXPECT_EQ(form.List.ListIndex(), -1);
    EXPECT_EQ(form.List.ListCount(), 1);
    form.List.SetList(0, "z");
    form.List.SetList(1, "out");
    EXPECT_EQ(form.List.List(0), "z");
    EXPECT_EQ(form.List.List(1), "");
    EXPECT_EQ(form.List.List(-1), "");
    form.List.Clear();
    EXPECT_EQ(form.List.ListCount(), 0);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, ASortedListKeepsItsOrderAndItsChoice) {
    form.List.SetSorted(true);
    for (const char* row : {"pear", "Apple", "fig"})
        form.List.AddItem(row);
    form.List.SetListIndex(1);
    log.Take();
    form.List.AddItem("banana");
    EXPECT_EQ(form.List.List(0), "Apple");
    EXPECT_EQ(form.List.List(1), "banana");
    EXPECT_EQ(form.List.List(2), "fig");
    EXPECT_EQ(form.List.List(3), "pear");
    EXPECT_EQ(form.List.Text(), "fig");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, ASortedListPutsARowBehindItsEquals) {
    form.List.SetSorted(true);
    for (const char* row : {"a", "b", "c"})
        form.List.AddItem(row);
    form.List.SetListIndex(1);
    log.Take();
    // So a row that is there already doesn't move the chosen one.
    form.List.AddItem("b");
    EXPECT_EQ(form.List.ListCount(), 4);
    EXPECT_EQ(form.List.ListIndex(), 1);
    EXPECT_EQ(form.List.Text(), "b");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, ASortedListMovesARowToThePlaceOfItsNewText) {
    form.List.SetSorted(true);
    for (const char* row : {"b", "d", "f"})
        form.List.AddItem(row);
    form.List.SetListIndex(0);
    log.Take();
    form.List.SetList(0, "e");
    EXPECT_EQ(form.List.List(0), "d");
    EXPECT_EQ(form.List.List(1), "e");
    EXPECT_EQ(form.List.List(2), "f");
    EXPECT_EQ(form.List.ListIndex(), 1);
    // Another row than the chosen one, given the text of a third.
    form.List.SetList(2, form.List.List(0));
    EXPECT_EQ(form.List.List(0), "d");
    EXPECT_EQ(form.List.List(1), "d");
    EXPECT_EQ(form.List.Text(), "e");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, ARowListCountsItsChanges) {
    const auto before = form.List.Rows().Revision();
    form.List.Clear();
    form.List.SetList(0, "none");
    EXPECT_EQ(form.List.Rows().Revision(), before);
    form.List.AddItem("a");
    form.List.SetList(0, "b");
    form.List.RemoveItem(0);
    EXPECT_EQ(form.List.Rows().Revision(), before + 3);
}

TEST_F(FieldsTest, KeysStepThroughTheRows) {
    for (int i = 0; i < 25; ++i)
        form.List.AddItem(std::to_string(i));
    // Letters of 8 pixels in rows of 10, and the frame: of ten rows and most of another one sees ten.
    form.List.SetHeight((2 + 10 * 10 + 9) * 15);
    EXPECT_EQ(form.List.VisibleRows(), 10);
    const std::vector<std::pair<int, int>> steps = {
        {keyDown, 0},      {keyDown, 1},      {keyUp, 0},   {keyUp, 0},   {keyPageDown, 10},
        {keyPageDown, 20}, {keyPageDown, 24}, {keyHome, 0}, {keyEnd, 24}, {keyPageUp, 14}};
    for (const auto& [key, row] : steps) {
        form.List.KeyPressed(key, 0);
        EXPECT_EQ(form.List.ListIndex(), row) << "after key " << key;
    }
    // Ten keys, of which one stood at the top already.
    EXPECT_EQ(log.Take().size(), 9U);
    form.List.Clear();
    for (const int key : {keyUp, keyDown, keyHome, keyEnd, keyPageUp, keyPageDown})
        form.List.KeyPressed(key, 0);
    EXPECT_EQ(form.List.ListIndex(), -1);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, ADoubleClickAndEnterNeedAChosenRow) {
    FillLists();
    form.List.UserActivates();
    form.List.KeyPressed(keyReturn, 0);
    EXPECT_EQ(log.Take(), Lines{});
    form.List.SetListIndex(0);
    form.List.UserActivates();
    form.List.KeyPressed(keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"List.Click", "List.DblClick", "List.DblClick"}));
}

TEST_F(FieldsTest, APressIntoAListIsNoClickOfItsOwn) {
    FillLists();
    form.List.PointerClicked();
    form.Combo.PointerClicked();
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, AListHandlerMayEmptyTheListOrUnloadTheForm) {
    FillLists();
    form.List.Click = [&] { form.List.Clear(); };
    form.List.UserPicks(2);
    EXPECT_EQ(form.List.ListIndex(), -1);
    FillLists();
    form.List.Click = [&] { form.Unload(); };
    form.List.UserPicks(2);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(FieldsTest, AComboChoiceClicksAndTypingChanges) {
    FillLists();
    form.Combo.SetListIndex(1);
    EXPECT_EQ(form.Combo.Text(), "b");
    EXPECT_EQ(log.Take(), Lines{"Combo.Click"});
    form.Combo.SetListIndex(1);
    EXPECT_EQ(log.Take(), Lines{});
    form.Combo.UserPicks(1);
    EXPECT_EQ(log.Take(), Lines{"Combo.Click"});
    form.Combo.UserTypes("x");
    EXPECT_EQ(form.Combo.Text(), "bx");
    EXPECT_EQ(form.Combo.ListIndex(), -1);
    EXPECT_EQ(log.Take(), Lines{"Combo.Change"});
    form.Combo.SetText("a");
    EXPECT_EQ(form.Combo.ListIndex(), -1);
    EXPECT_EQ(log.Take(), Lines{"Combo.Change"});
    form.Combo.SetText("a");
    form.Combo.UserTypes("\r");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, MinusOneEmptiesAComboBox) {
    FillLists();
    form.Combo.UserPicks(2);
    log.Take();
    form.Combo.SetListIndex(7);
    EXPECT_EQ(form.Combo.Text(), "c");
    form.Combo.SetListIndex(-1);
    EXPECT_EQ(form.Combo.Text(), "");
    EXPECT_EQ(log.Take(), Lines{"Combo.Click"});
    form.Combo.SetText("typed");
    log.Take();
    form.Combo.SetListIndex(-1);
    EXPECT_EQ(form.Combo.Text(), "");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, AComboLosesRowsInSilence) {
    FillLists();
    form.Combo.UserPicks(1);
    log.Take();
    form.Combo.RemoveItem(0);
    EXPECT_EQ(form.Combo.ListIndex(), 0);
    form.Combo.RemoveItem(0);
    EXPECT_EQ(form.Combo.ListIndex(), -1);
    EXPECT_EQ(form.Combo.Text(), "b");
    form.Combo.RemoveItem(9);
    form.Combo.Clear();
    EXPECT_EQ(form.Combo.Text(), "");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FieldsTest, UpAndDownStepThroughACombo) {
    FillLists();
    form.Combo.KeyPressed(keyDown, 0);
    form.Combo.KeyPressed(keyDown, 0);
    form.Combo.KeyPressed(keyUp, 0);
    form.Combo.KeyPressed(keyUp, 0);
    form.Combo.KeyPressed(keyEnd, 0);
    EXPECT_EQ(form.Combo.Text(), "a");
    EXPECT_EQ(log.Take(), (Lines{"Combo.Click", "Combo.Click", "Combo.Click"}));
}

}  // namespace
}  // namespace coinlet
