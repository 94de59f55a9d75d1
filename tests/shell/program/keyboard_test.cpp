// The menus of the program by keys: each opens by its letter, the popups stand at their buttons, and what
// they hold is chosen.

#include "controls/menu_letters.h"
#include "started_program.h"
#include "text_places.h"

#include <algorithm>
#include <cstdlib>

namespace coinlet::test {
namespace {

class ProgramKeyboard : public StartedProgram {
protected:
    void SetUp() override { Start(); }

    std::size_t ShownEntries(const MenuItem& menu) const {
        return static_cast<std::size_t>(std::ranges::count_if(
            menu.Entries(), [](const MenuItem* entry) { return !entry->IsSeparator(); }));
    }
    std::string LetterOf(const MenuItem& item) const {
        const auto& menu = item.Parent() ? item.Parent()->Entries() : form.Menus();
        return MenuLetters(menu)[static_cast<std::size_t>(std::ranges::find(menu, &item) - menu.begin())]
            .letter;
    }
    /// Goes on by the tab key until the button of a tool has the focus, from the one before it in tab order.
    void TabTo(int tool) {
        Click(form.Knop[0], 20, 14);
        MoveTo({1390, 1040});
        for (int i = 0; i < tool; ++i)
            Key("Tab");
    }
};

TEST_F(ProgramKeyboard, EachMenuOpensByItsLetterAndHasAllItsEntries) {
    int opened = 0;
    for (const MenuItem* menu : form.Menus()) {
        if (!menu->Visible) continue;
        SCOPED_TRACE(menu->Caption);
        Key("alt+" + LetterOf(*menu));
        const OpenWindow open = Front();
        EXPECT_EQ(TextRows(Look(open)).size(), ShownEntries(*menu));
        Key("Escape");
        Key("Escape");
        ASSERT_TRUE(MainIsInFront());
        ++opened;
    }
    EXPECT_EQ(opened, 6);
}

TEST_F(ProgramKeyboard, EntriesAreChosenByLetters) {
    ASSERT_EQ(Title(), "Coinlet Designer (Nederlands)");
    Key("Alt_L");
    for (const MenuItem* item : {&form.Help, &form.HelpLanguage, &form.HelpTaal[2]})
        Key(LetterOf(*item));
    EXPECT_TRUE(Comes([&] { return Title() == "Coinlet Designer (English)"; })) << Title();
    // A dialog opens, and Escape leaves it.
    Key("alt+" + LetterOf(form.View));
    Front();
    Key(LetterOf(form.ViewMyCollection));
    EXPECT_EQ(screen.TitleOf(Front()), "My Collection");
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
    Key("F10");
    EXPECT_EQ(TextRows(Look(Front())).size(), ShownEntries(form.File));
    Key(LetterOf(form.FileExit));
    EXPECT_TRUE(EndsWell());
}

TEST_F(ProgramKeyboard, PopupsStandAtTheirButtons) {
    for (const auto& [tool, menu] : {std::pair{2, &form.Shapes}, std::pair{13, &form.FlipImage}}) {
        SCOPED_TRACE(menu->Caption);
        TabTo(tool);
        Key("space");
        const OpenWindow popup = Front();
        EXPECT_EQ(TextRows(Look(popup)).size(), ShownEntries(*menu));
        const QRect button = PlaceOf(form.Knop[tool]);
        EXPECT_EQ(popup.place.left(), button.left());
        EXPECT_EQ(popup.place.top(), button.bottom() + 1);
        Key("Escape");
        ASSERT_TRUE(MainIsInFront());
    }
    // Of the shapes the rounded rectangle, whose corners have a slider.
    TabTo(2);
    Key("space");
    Front();
    Key(LetterOf(form.Vormen[2]));
    ASSERT_TRUE(MainIsInFront());
    const Colour ground = form.Label9.BackColor;
    EXPECT_TRUE(Comes([&] {
        return ColourAt(PlaceOf(form.Label9, 2, 2)) == qRgb(Red(ground), Green(ground), Blue(ground));
    }));
}

TEST_F(ProgramKeyboard, TheFillColourIsChosenByKeys) {
    Click(form.Knop[15], 20, 14);
    MoveTo({1390, 1040});
    Key("Tab");
    Key("Return");
    const OpenWindow chooser = Front();
    EXPECT_EQ(screen.TitleOf(chooser), "Pantone Matching System (PMS) Colors");
    // From its field to the palette, there to the second box, a gray, and on to the button.
    for (const char* key : {"Tab", "Right", "space", "Tab", "space"})
        Key(key);
    EXPECT_TRUE(MainIsInFront());
    EXPECT_TRUE(Comes([&] { return ColourAt(PlaceOf(form.ColorLabel, 75, 12)) == qRgb(99, 99, 99); }));
}

}  // namespace
}  // namespace coinlet::test
