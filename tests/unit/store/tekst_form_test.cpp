// The dialog of the info text: what it shows, and what of it becomes rows.
#include "store/tekst_form.h"

#include "core/language.h"
#include "store/info_text.h"
#include "store/text_box_rows.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::World;
using Rows = std::vector<std::string>;

/// Opens the dialog, lets the user do something in it, and presses a button.
void Edit(World& world, const std::function<void(TekstForm&)>& doing, VistaButton TekstForm::*button) {
    TekstForm dialog(world.context);
    world.platform.doings.push_back([&] {
        doing(dialog);
        (dialog.*button).PointerClicked();
    });
    world.platform.ShowModal(dialog);
    EXPECT_FALSE(dialog.Loaded());
}
void Confirm(World& world, const std::string& text) {
    Edit(
        world, [&](TekstForm& dialog) { dialog.Text1.SetText(text); }, &TekstForm::OkKnop);
}
void ConfirmUnchanged(World& world) {
    Edit(
        world, [](TekstForm&) {}, &TekstForm::OkKnop);
}

void ReadBack(World& world) {
    ReadDesignInfoText(world.context, world.folder / "app/Ontwerpen/coin.pat");
}

TEST(TekstForm, MakesTwoEmptyRowsOfAnEmptyText) {
    World world;
    Confirm(world, "");
    EXPECT_EQ(world.Rows(), (Rows{"", ""}));
    WriteDesignInfoText(world.context, "coin");
    EXPECT_EQ(world.Stored("coin.txt"),
              "Ivo Kestrell Software 2014\r\n--------------------------\r\n\r\n\r\n");
    ReadBack(world);
    EXPECT_EQ(world.Rows(), Rows{});
}

TEST(TekstForm, AddsAnEmptyRowBehindTheDisplayedLines) {
    World world;
    Confirm(world, "one\r\ntwo\r\nthree");
    EXPECT_EQ(world.Rows(), (Rows{"one", "two", "three", ""}));
}

TEST(TekstForm, AddsTwoMoreEachTimeItIsConfirmedUnchanged) {
    World world;
    world.SetRows({"one", "two"});
    ConfirmUnchanged(world);
    EXPECT_EQ(world.Rows(), (Rows{"one", "two", "", ""}));
    ConfirmUnchanged(world);
    EXPECT_EQ(world.Rows(), (Rows{"one", "two", "", "", "", ""}));
    WriteDesignInfoText(world.context, "coin");
    ReadBack(world);
    EXPECT_EQ(world.Rows(), (Rows{"one", "two"}));
}

TEST(TekstForm, MakesARowOfEachDisplayedLine) {
    World world;
    // The box is 314 pixels wide inside; a letter of 8.25 points is a block of 4 pixels: 78 a line.
    const std::string long1(70, 'a'), long2(20, 'b');
    Confirm(world, long1 + " " + long2 + "\r\nend");
    EXPECT_EQ(world.Rows(), (Rows{long1 + " ", long2, "end", ""}));
    WriteDesignInfoText(world.context, "coin");
    ReadBack(world);
    EXPECT_EQ(world.Rows(), (Rows{long1 + " ", long2, "end"}));
    Edit(
        world,
        [&](TekstForm& dialog) { EXPECT_EQ(dialog.Text1.Text(), long1 + " \r\n" + long2 + "\r\nend\r\n"); },
        &TekstForm::CancelKnop);
}

TEST(TekstForm, KeepsTheScrollBarsPlaceFreeWhereLinesEnd) {
    World world;
    Confirm(world, std::string(78, 'a') + "\r\n" + std::string(79, 'b'));
    EXPECT_EQ(world.Rows(), (Rows{std::string(78, 'a'), std::string(78, 'b'), "b", ""}));
}

TEST(TekstForm, ShowsThePromptOfTheLanguageAndTakesItForAText) {
    World world;
    world.main.InfoList.AddItem("200 what it is for");
    world.main.InfoList.AddItem("201 type here");
    Edit(
        world,
        [](TekstForm& dialog) {
            EXPECT_EQ(dialog.Label2.Caption, "what it is for");
            EXPECT_EQ(dialog.Text1.Text(), "type here");
            EXPECT_TRUE(dialog.Text1.HasFocus());
        },
        &TekstForm::OkKnop);
    EXPECT_EQ(world.Rows(), (Rows{"type here", ""}));
}

TEST(TekstForm, ChangesNothingIfItIsCancelledOrClosed) {
    World world;
    world.SetRows({"kept"});
    world.session.DesignChanged = true;
    Edit(
        world, [](TekstForm& dialog) { dialog.Text1.SetText("dropped"); }, &TekstForm::CancelKnop);
    EXPECT_EQ(world.Rows(), (Rows{"kept"}));
    TekstForm dialog(world.context);
    world.platform.doings.push_back([&] {
        dialog.Text1.SetText("dropped");
        dialog.KeyDown(&dialog.Text1, keyEscape, 0);
    });
    world.platform.ShowModal(dialog);
    EXPECT_EQ(world.Rows(), (Rows{"kept"}));
    EXPECT_TRUE(world.session.DesignChanged);
}

TEST(TekstForm, LeavesTheMarkOfUnsavedWork) {
    for (const bool changed : {false, true}) {
        World world;
        world.session.DesignChanged = changed;
        Confirm(world, "text");
        EXPECT_EQ(world.session.DesignChanged, changed);
    }
}

TEST(TekstForm, TellsTheHighestIndexOfTheRows) {
    World world;
    const TekstForm dialog(world.context);
    Rows rows{"left over"};
    EXPECT_EQ(GetTextBoxLines(dialog.Text1, rows), 1);
    EXPECT_EQ(rows, (Rows{"", ""}));
}

}  // namespace
}  // namespace coinlet
