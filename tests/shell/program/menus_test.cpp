// The menus as the screen shows them, and a shape that is chosen.

#include "started_program.h"
#include "text_places.h"

#include <algorithm>
#include <cstdlib>

namespace coinlet::test {
namespace {

class ProgramMenus : public StartedProgram {
protected:
    void SetUp() override { Start(); }

    OpenWindow PopUpShapes() {
        Click(form.Knop[2], 20, 14);
        const OpenWindow popup = Front();
        // Off the entries, so that none is highlighted.
        MoveTo({1390, 1040});
        return popup;
    }
    bool Shows(const Control& control, int x, int y, Colour colour) {
        const QRgb expected = qRgb(Red(colour), Green(colour), Blue(colour));
        return Comes([&] { return ColourAt(PlaceOf(control, x, y)) == expected; });
    }
};

TEST_F(ProgramMenus, EachOpensWithAllItsEntries) {
    int opened = 0;
    for (const MenuItem* menu : form.Menus()) {
        if (!menu->Visible) continue;
        SCOPED_TRACE(menu->Caption);
        const OpenWindow open = OpenMenu(*menu);
        const auto entries = std::ranges::count_if(
            menu->Entries(), [](const MenuItem* entry) { return !entry->IsSeparator(); });
        EXPECT_EQ(TextRows(Look(open)).size(), static_cast<std::size_t>(entries));
        // It hangs from the bar.
        EXPECT_LE(std::abs(open.place.top() - MenuBar().bottom()), 2);
        Key("Escape");
        ASSERT_TRUE(MainIsInFront());
        ++opened;
    }
    EXPECT_EQ(opened, 6);
}

TEST_F(ProgramMenus, ShapesPopUpAndKeepACheckMarkAtTheChosenOne) {
    const OpenWindow popup = PopUpShapes();
    const QImage before = Look(popup);
    const std::vector<int> rows = TextRows(before);
    ASSERT_EQ(rows.size(), 16U);
    constexpr int roundedRectangle = 2;
    Choose(popup, form.Vormen[roundedRectangle]);
    ASSERT_TRUE(MainIsInFront());
    // The slider of its corners comes, on a ground of its own.
    EXPECT_TRUE(Shows(form.Label9, 2, 2, form.Label9.BackColor));

    const QImage after = Look(PopUpShapes());
    ASSERT_EQ(after.size(), before.size());
    int changed = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (after.pixel(x, y) == before.pixel(x, y)) continue;
            ++changed;
            ASSERT_LE(std::abs(y - rows[roundedRectangle - 1]), (rows[1] - rows[0]) / 2) << x << ", " << y;
        }
    }
    EXPECT_GT(changed, 0);
    Key("Escape");
    EXPECT_TRUE(MainIsInFront());
}

TEST_F(ProgramMenus, CrossLinesAreSwitchedByTheirEntry) {
    // They lie where the pointer was last; at first at the canvas' edges.
    MoveTo(PlaceOf(form.Pic, 200, 300));
    const auto shows = [&](int x, int y, Colour colour) { return Shows(form.Pic, x, y, colour); };
    Choose(OpenMenu(form.View), form.ViewKruis);
    MoveTo(PlaceOf(form.Pic, 250, 120));
    EXPECT_TRUE(shows(40, 120, form.Line3.BorderColor));
    EXPECT_TRUE(shows(250, 400, form.Line4.BorderColor));
    Choose(OpenMenu(form.View), form.ViewKruis);
    MoveTo(PlaceOf(form.Pic, 250, 120));
    EXPECT_TRUE(shows(40, 120, white));
    EXPECT_TRUE(shows(250, 400, white));
}

TEST_F(ProgramMenus, LanguageChangesTheTitle) {
    ASSERT_EQ(Title(), "Coinlet Designer (Nederlands)");
    for (const auto& [index, title] :
         {std::pair{2, "Coinlet Designer (English)"}, std::pair{1, "Coinlet Designer (Nederlands)"}}) {
        Choose(OpenMenu(form.Help), form.HelpLanguage);
        Choose(Front(1), form.HelpTaal[index]);
        ASSERT_TRUE(MainIsInFront());
        EXPECT_TRUE(Comes([&, expected = title] { return Title() == expected; })) << Title();
    }
}

}  // namespace
}  // namespace coinlet::test
