// The letters by which entries of menus are chosen.

#include "controls/menu_letters.h"

#include "controls/menu.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

struct MenuLettersForm : Form {
    explicit MenuLettersForm(FormServices services) : Form(services, "Sample") {}

    MenuItem Menu{*this, "Menu", "Menu"};
};

struct MenuLettersTest : testing::Test {
    void Fill(std::initializer_list<const char*> captions) {
        int number = 0;
        for (const char* caption : captions)
            entries.push_back(std::make_unique<MenuItem>(form.Menu, "Entry", caption, number++));
    }
    std::string Letters() const {
        std::string all;
        for (const MenuLetter& each : MenuLetters(form.Menu.Entries()))
            all += (each.letter.empty() ? "." : each.letter) + std::to_string(each.place) + " ";
        return all;
    }

    test::TestServices services;
    MenuLettersForm form{services.ForForms()};
    std::vector<std::unique_ptr<MenuItem>> entries;
};

TEST_F(MenuLettersTest, EachEntryHasTheFirstLetterThatIsFree) {
    Fill({"Open", "Save", "-", "Save As", "Paste", "apes"});
    EXPECT_EQ(Letters(), "o0 s0 .0 a1 p0 e2 ");
}

TEST_F(MenuLettersTest, WhatHasNoFreeLetterHasNone) {
    Fill({"ab", "ba", "ab", "", " -->", "aab1"});
    EXPECT_EQ(Letters(), "a0 b0 .0 .0 .0 13 ");
}

TEST_F(MenuLettersTest, SignsAreNoLettersAndAccentsMakeNoOther) {
    // The place is that of the letter's first byte.
    Fill({"45\u00B0 e", "\u00C9t\u00E9", "et", "(\u00E9)", "\u00B0\u20AC"});
    EXPECT_EQ(Letters(), "40 \u00E90 t1 .0 .0 ");
}

TEST_F(MenuLettersTest, LettersStayWhileEntriesAreHiddenOrDisabled) {
    Fill({"New", "Next"});
    const std::string before = Letters();
    entries[0]->Visible = false;
    entries[1]->Enabled = false;
    EXPECT_EQ(Letters(), before);
}

TEST_F(MenuLettersTest, ALetterFindsItsEntryInWhateverCase) {
    Fill({"Open", "\u00C9t\u00E9", "Other"});
    const auto found = [&](std::string_view letter) { return EntryOfLetter(form.Menu.Entries(), letter); };
    EXPECT_EQ(found("o"), entries[0].get());
    EXPECT_EQ(found("O"), entries[0].get());
    EXPECT_EQ(found("e"), entries[1].get());
    EXPECT_EQ(found("t"), entries[2].get());
    EXPECT_EQ(found("z"), nullptr);
    EXPECT_EQ(found(""), nullptr);
    entries[0]->Visible = false;
    EXPECT_EQ(found("o"), nullptr);
}

}  // namespace
}  // namespace coinlet
