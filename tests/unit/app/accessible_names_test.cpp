// The names that screen readers read out are in the language in force, and without the number of their text.
#include "core/accessible_names.h"

#include "core/language.h"
#include "core/main_form.h"
#include "filters/color_change.h"
#include "libraries/clipart_form.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

struct NamesRead : testing::Test, protected test::World {
    NamesRead() {
        fs::create_directories(folder / "app/Data");
        for (const char* file : {"English.txt", "Nederlands.txt"})
            fs::copy(fs::path(COINLET_DATA) / "Data" / file, folder / "app/Data" / file);
    }
    AccessibleNames names{context};
};

TEST_F(NamesRead, AreInTheLanguageInForce) {
    MainForm& main = context.main;
    LoadLanguage(context, "Nederlands");
    const auto before = names.Revision();
    EXPECT_EQ(names.NameOf(main.Pic), "Doek");
    EXPECT_EQ(names.NameOf(main.HScroll2), "Ronding van de hoeken");
    LoadLanguage(context, "English");
    EXPECT_NE(names.Revision(), before);
    EXPECT_EQ(names.NameOf(main.Pic), "Canvas");
    EXPECT_EQ(names.NameOf(main.HScroll1), "Line width");
}

TEST_F(NamesRead, AreReadWithoutShowingTheirNumber) {
    LoadLanguage(context, "English");
    context.main.NummerLabel.Caption = "010";
    EXPECT_EQ(names.NameOf(context.main.List1), "Pictures of the folder");
    EXPECT_EQ(context.main.NummerLabel.Caption, "010");
}

TEST_F(NamesRead, CountTheElementsOfAnArray) {
    LoadLanguage(context, "English");
    ColorChange dialog(context);
    EXPECT_EQ(names.NameOf(dialog.picTarget[0]), "Colour to replace 1");
    EXPECT_EQ(names.NameOf(dialog.picResult[4]), "New colour 5");
}

TEST_F(NamesRead, AButtonWithAPictureAloneHasOne) {
    LoadLanguage(context, "Nederlands");
    const ClipartForm dialog(context);
    EXPECT_EQ(names.NameOf(dialog.HorKnop), "Spiegelen");
}

TEST_F(NamesRead, NothingHasANameWithoutATable) {
    LoadLanguage(context, "Frysk");
    EXPECT_EQ(names.NameOf(context.main.Pic), "");
    ColorChange dialog(context);
    EXPECT_EQ(names.NameOf(dialog.picTarget[0]), "");
    EXPECT_EQ(names.NameOf(context.main.Knop[0]), "");
}

}  // namespace
}  // namespace coinlet
