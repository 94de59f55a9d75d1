// What goes to the canvas and the side panel, pixel by pixel, and what may stand in the folder of borders.
#include "libraries/border_form.h"

#include "core/design_revision.h"
#include "support/world.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace coinlet::test {
namespace {

constexpr Colour design = RGB(255, 255, 0), border = RGB(10, 200, 30);

class BorderFormTest : public testing::Test, protected World {
protected:
    BorderFormTest() {
        fs::create_directories(folder / "app/Borders");
        main.Pic.surface.SetBackColor(design);
    }

    fs::path InLibrary(const std::string& name) const { return folder / "app/Borders" / name; }
    void Add(const std::string& name, Colour colour = border) const {
        const auto error = SavePicture(Image(Bitmap(2000, 500, ToPixel(colour))), InLibrary(name));
        ASSERT_FALSE(error) << error.message();
    }
    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(BorderForm&)>& doing) {
        BorderForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
};

TEST_F(BorderFormTest, CutsOutADiscWithoutLeavingASpeck) {
    Add("white.gif", white);
    Open([](const BorderForm& dialog) { dialog.ExportKnop.Click(); });
    // The innermost circle is three pixels wide.
    constexpr double radius = 240, halfPen = 1.5, rasterising = 1;
    for (int y = 0; y < canvasSide; ++y) {
        for (int x = 0; x < canvasSide; ++x) {
            const double distance = std::hypot(x - 250, y - 250);
            const Colour found = main.Pic.surface.Point(x, y);
            if (distance < radius - halfPen - rasterising) {
                ASSERT_EQ(found, design) << x << ", " << y;
            } else if (distance > radius - halfPen + rasterising) {
                ASSERT_EQ(found, white) << x << ", " << y;
            }
        }
    }
}

TEST_F(BorderFormTest, PrintsTheMetalOnTheSidePanel) {
    Surface expected(fonts, main.InfoPic.surface.PixelWidth(), main.InfoPic.surface.PixelHeight());
    expected.SetBackColor(RGB(10, 10, 10));
    main.InfoPic.surface.SetBackColor(RGB(10, 10, 10));
    main.InfoPic.surface.ForeColor = RGB(90, 90, 90);
    expected.Line(0, 15, 178, 45, white, Box::Filled);
    expected.FontSize = 12;
    expected.CurrentX = 19;
    expected.CurrentY = 20;
    expected.Print("Shiny Copper");
    Open([](BorderForm& dialog) {
        dialog.Option1[1].SetValue(true);
        dialog.ExportKnop.Click();
    });
    for (int y = 0; y < expected.PixelHeight(); ++y) {
        for (int x = 0; x < expected.PixelWidth(); ++x)
            ASSERT_EQ(main.InfoPic.surface.Point(x, y), expected.Point(x, y)) << x << ", " << y;
    }
}

TEST_F(BorderFormTest, CancelTakesTheMetalOffTheSidePanel) {
    const Image blank = main.InfoPic.surface.Image();
    Open([](BorderForm& dialog) {
        dialog.Option1[3].SetValue(true);
        dialog.ExportKnop.Click();
    });
    ASSERT_NE(main.InfoPic.surface.Image(), blank);
    Open([](BorderForm& dialog) {
        dialog.Option1[1].SetValue(true);
        dialog.CancelKnop.Click();
    });
    EXPECT_EQ(main.InfoPic.surface.Image(), blank);
    EXPECT_EQ(session.MaterialName, "");
    EXPECT_EQ(session.MaterialRed, 228);
    EXPECT_EQ(session.MaterialGreen, 112);
    EXPECT_EQ(session.MaterialBlue, 30);
}

// Or a look at the borders would leave a stored design as unsaved work.
TEST_F(BorderFormTest, CancelDoesNotCountAsAChangeWhereNoMetalIsShown) {
    const DesignRevision before = RevisionOf(main);
    Open([](BorderForm& dialog) { dialog.CancelKnop.Click(); });
    EXPECT_EQ(RevisionOf(main), before);
}

TEST_F(BorderFormTest, TheHoleFollowsItsSliderWhileThatIsDragged) {
    Add("a.gif", white);
    Open([](BorderForm& dialog) {
        dialog.Check1.SetValue(true);
        dialog.HScroll1.UserDrags(4);  // and doesn't let it go
        EXPECT_EQ(dialog.Label3.Caption, "Hole position (Bottom)");
        const Image dragged = dialog.Pic.surface.Image();
        dialog.HScroll1.SetValue(0);
        EXPECT_NE(dialog.Pic.surface.Image(), dragged);
        dialog.HScroll1.SetValue(4);
        EXPECT_EQ(dialog.Pic.surface.Image(), dragged);
    });
}

TEST_F(BorderFormTest, ListsRegularFilesAndNeverWaitsForAPipe) {
    Add("a.gif");
    Add("caf\xE9 \x80.gif");
    fs::create_symlink(InLibrary("a.gif"), InLibrary("link.GIF"));
    fs::create_symlink(InLibrary("missing.gif"), InLibrary("dangling.gif"));
    fs::create_directory(InLibrary("folder.gif"));
    ASSERT_EQ(::mkfifo(InLibrary("pipe.gif").c_str(), 0600), 0);
    Open([&](BorderForm& dialog) {
        ASSERT_EQ(dialog.List1.ListCount(), 3);
        EXPECT_EQ(dialog.List1.List(2), "link.GIF");
        dialog.List1.UserPicks(1);
        EXPECT_EQ(dialog.Orgineel.surface.Point(499, 499), border);
        // One that was a file when the list was made.
        fs::remove(InLibrary("link.GIF"));
        ASSERT_EQ(::mkfifo(InLibrary("link.GIF").c_str(), 0600), 0);
        dialog.List1.UserPicks(2);
        EXPECT_EQ(dialog.Orgineel.surface.Point(499, 499), border);
    });
}

TEST_F(BorderFormTest, PassesOverPlacesThatNoHoleHas) {
    Add("a.gif", white);
    Open([](BorderForm& dialog) {
        dialog.Check1.SetValue(true);
        for (const int place : {8, std::numeric_limits<int>::max(), -1, std::numeric_limits<int>::min()}) {
            dialog.HScroll1.SetRange(0, 7);
            dialog.HScroll1.SetValue(3);
            dialog.HScroll1.SetRange(std::min(place, 0), std::max(place, 7));
            dialog.HScroll1.SetValue(place);
            EXPECT_EQ(dialog.Label3.Caption, "Hole position (Right-Bottom)");
        }
    });
}

}  // namespace
}  // namespace coinlet::test
