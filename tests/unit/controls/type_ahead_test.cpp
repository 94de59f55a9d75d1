// What is typed into a list leads to a row.

#include "controls/type_ahead.h"

#include "controls/list_box.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct TypeAheadForm : Form {
    explicit TypeAheadForm(FormServices services) : Form(services, "Sample") {
        for (const char* row :
             {"Anchor", "Bear", "\u00C9toile", "Eel", "tag b", "tag c", "aardvark", "45\u00B0"})
            List.AddItem(row);
        log.Listen(List, &Control::Click, "Click");
        log.Listen(List, &Control::KeyPress, "KeyPress");
        List.Move(0, 0, 900, 300);
    }
    test::EventLog log;
    ListBox List{*this, "List"};
    ListBox Other{*this, "Other"};
};

struct TypeAheadTest : testing::Test {
    TypeAheadTest() {
        services.platform.ShowMain(form);
        form.List.SetFocus();
    }
    /// The row that the letters of `text` lead to.
    int After(std::u32string_view text) {
        for (const char32_t letter : text)
            form.KeyTyped(nullptr, static_cast<int>(letter));
        return form.List.ListIndex();
    }
    void Pause() { form.List.TypingTimer()->Tick(); }

    test::TestServices services;
    TypeAheadForm form{services.ForForms()};
    test::EventLog& log = form.log;
};

TEST_F(TypeAheadTest, LettersLeadToTheRowThatBeginsWithThem) {
    EXPECT_EQ(After(U"b"), 1);
    Pause();
    EXPECT_EQ(After(U"ta"), 4);
    Pause();
    EXPECT_EQ(After(U"4"), 7);
}

TEST_F(TypeAheadTest, CaseAndAccentsDontCount) {
    EXPECT_EQ(After(U"et"), 2);
    Pause();
    EXPECT_EQ(After(U"\u00E9E"), 3);
    Pause();
    EXPECT_EQ(After(U"TAG C"), 5);
}

TEST_F(TypeAheadTest, TheSameLetterAgainGoesOnToTheNextRowAndRound) {
    EXPECT_EQ(After(U"e"), 2);
    EXPECT_EQ(After(U"E"), 3);
    EXPECT_EQ(After(U"e"), 2);
    Pause();
    // Unless a row begins with both.
    EXPECT_EQ(After(U"a"), 6);
    EXPECT_EQ(After(U"a"), 6);
    Pause();
    EXPECT_EQ(After(U"a"), 0);
}

TEST_F(TypeAheadTest, ARowThatStillFitsStaysTheChosenOne) {
    EXPECT_EQ(After(U"t"), 4);
    EXPECT_EQ(After(U"ag"), 4);
    EXPECT_EQ(After(U" c"), 5);
}

TEST_F(TypeAheadTest, WhatNoRowBeginsWithChangesNothing) {
    form.List.SetListIndex(1);
    log.Take();
    EXPECT_EQ(After(U"x"), 1);
    // Part of the same word, it leads nowhere either.
    EXPECT_EQ(After(U"a"), 1);
    EXPECT_EQ(log.Take(), (Lines{"List.KeyPress 120", "List.KeyPress 97"}));
    Pause();
    EXPECT_EQ(After(U"a"), 6);
}

TEST_F(TypeAheadTest, BlanksAtTheBeginningAndControlCharactersAreNoLetters) {
    form.List.AddItem(" blank");
    EXPECT_EQ(After(U" "), -1);
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    EXPECT_EQ(After(U"\x1B\r\b\x7F"), -1);
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    form.KeyTyped(nullptr, 0);
    form.KeyTyped(nullptr, -1);
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    EXPECT_EQ(After(U"b\r"), 1);
}

TEST_F(TypeAheadTest, EachChoiceIsTheUsers) {
    After(U"ta");
    EXPECT_EQ(log.Take(), (Lines{"List.KeyPress 116", "List.Click", "List.KeyPress 97"}));
}

TEST_F(TypeAheadTest, ThePauseIsASecondFromTheLastLetter) {
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    After(U"t");
    const Timer* const first = form.List.TypingTimer();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->Interval, 1000);
    EXPECT_TRUE(first->Enabled);
    After(U"a");
    // Another one, which counts anew.
    EXPECT_NE(form.List.TypingTimer(), first);
    Pause();
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
}

TEST_F(TypeAheadTest, ArrowsEnterAndTheLossOfTheFocusEndIt) {
    After(U"ta");
    form.KeyDown(nullptr, keyDown, 0);
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    EXPECT_EQ(After(U"g"), 5);
    form.KeyDown(nullptr, keyReturn, 0);
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
    After(U"t");
    form.Other.SetFocus();
    EXPECT_EQ(form.List.TypingTimer(), nullptr);
}

TEST_F(TypeAheadTest, AHandlerMayCloseTheForm) {
    form.List.Click = [&] { form.Unload(); };
    EXPECT_EQ(After(U"be"), 1);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(TypeAheadTest, AnEmptyListHasNoRowToLeadTo) {
    form.List.Clear();
    EXPECT_EQ(After(U"be"), -1);
    TypeAhead typed;
    EXPECT_EQ(typed.RowFor(form.List.Rows(), -1, ""), -1);
}

TEST_F(TypeAheadTest, AListWantsLettersForItself) {
    for (const int code : {int{'A'}, int{'Z'}, int{'0'}, int{'9'}, keySpace})
        EXPECT_TRUE(form.List.WantsKey(code, 0)) << code;
    EXPECT_TRUE(form.List.WantsKey('A', shiftHeld));
    EXPECT_FALSE(form.List.WantsKey('A', controlHeld));
    EXPECT_FALSE(form.List.WantsKey('A', altHeld));
    EXPECT_FALSE(form.List.WantsKey(keyEscape, 0));
}

}  // namespace
}  // namespace coinlet
