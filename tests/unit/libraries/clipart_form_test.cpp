// Files that are no sheets, and places that can't be.
#include "libraries/clipart_form.h"

#include "support/world.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <sys/stat.h>

namespace coinlet::test {
namespace {

constexpr float huge = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

/// The cliparts of a sheet, each in a colour of its own.
Colour ClipartColour(int clipart) {
    return RGB(50 * clipart, 10, 200);
}

class ClipartFormTest : public testing::Test, protected World {
protected:
    ClipartFormTest() { fs::create_directories(folder / "app/Cliparts"); }

    void AddSheet(const std::string& name, int width = 1650, int height = 360) const {
        Bitmap sheet(width, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                sheet.Row(y)[x] = ToPixel(ClipartColour(x / 330));
        }
        const auto error = SavePicture(Image(std::move(sheet)), folder / "app/Cliparts" / name);
        ASSERT_FALSE(error) << error.message();
    }
    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(ClipartForm&)>& doing) {
        ClipartForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
};

TEST_F(ClipartFormTest, TakesBitmapsOfSheetsToo) {
    AddSheet("a.art");
    Open([&](ClipartForm& dialog) {
        EXPECT_TRUE(platform.messages.empty());
        for (int clipart = 0; clipart < 5; ++clipart) {
            EXPECT_EQ(dialog.Pic.surface.Point(110 * clipart, 119), ClipartColour(clipart));
            dialog.Pic.PointerPressed(1, 0, static_cast<float>(110 * clipart + 55), 60);
            EXPECT_EQ(dialog.BigPic.surface.Point(329, 359), ClipartColour(clipart));
            // The picture behind it is higher than a clipart.
            EXPECT_EQ(dialog.ExportPic.surface.PixelHeight(), 427);
            EXPECT_EQ(dialog.ExportPic.surface.Point(0, 359), ClipartColour(clipart));
            EXPECT_EQ(dialog.ExportPic.surface.Point(0, 360), white);
        }
    });
}

// A thumbnail is a third as large: of three rows of the sheet it shows the one in the middle.
TEST_F(ClipartFormTest, ShowsTheWholeHeightOfASheet) {
    const auto rowColour = [](int y) { return RGB(y % 256, y / 256, 0); };
    Bitmap sheet(1650, 360);
    for (int y = 0; y < sheet.Height(); ++y)
        std::fill_n(sheet.Row(y), sheet.Width(), ToPixel(rowColour(y)));
    ASSERT_FALSE(SavePicture(Image(std::move(sheet)), folder / "app/Cliparts/a.art"));
    Open([&](ClipartForm& dialog) {
        for (int row = 0; row < 120; ++row)
            EXPECT_EQ(dialog.Pic.surface.Point(0, row), rowColour(3 * row + 1)) << row;
    });
}

TEST_F(ClipartFormTest, TakesTheFirstClipartForAPlaceThatCannotBe) {
    AddSheet("a.art");
    Open([&](ClipartForm& dialog) {
        for (const auto& [x, y] : {std::pair{nan, nan},
                                   {500.0F, nan},
                                   {nan, 60.0F},
                                   {huge, 60.0F},
                                   {-huge, 60.0F},
                                   {500.0F, huge},
                                   {500.0F, -1.0F},
                                   {551.0F, 60.0F}}) {
            dialog.Pic.MouseDown(1, 0, 500, 60);
            EXPECT_EQ(dialog.BigPic.surface.Point(0, 0), ClipartColour(4));
            dialog.Pic.MouseDown(1, 0, x, y);
            EXPECT_EQ(dialog.BigPic.surface.Point(0, 0), ClipartColour(0)) << x << ' ' << y;
        }
    });
}

TEST_F(ClipartFormTest, KnowsSheetsByTheirSizeAlone) {
    for (const auto& [width, height] :
         {std::pair{1649, 360}, {1651, 360}, {1650, 359}, {360, 1650}, {1, 1}, {3300, 720}}) {
        AddSheet("a.art", width, height);
        platform.messages.clear();
        Open([&](ClipartForm& dialog) {
            EXPECT_EQ(platform.messages.size(), 1U) << width << " x " << height;
            EXPECT_EQ(dialog.Pic.surface.Point(0, 0), white);
            EXPECT_EQ(platform.Screen.MousePointer, toolPointer);
        });
        EXPECT_EQ(platform.messages.front().title, "Error");
        EXPECT_EQ(platform.messages.front().icon, MessageIcon::Stop);
    }
}

TEST_F(ClipartFormTest, NeverWaitsForAPipe) {
    ASSERT_EQ(::mkfifo((folder / "app/Cliparts/a.art").c_str(), 0600), 0);
    Open([&](ClipartForm& dialog) {
        EXPECT_EQ(dialog.Combo1.ListCount(), 0);
        dialog.Combo1.SetText("a.art");
        EXPECT_EQ(platform.messages.size(), 1U);
    });
}

TEST_F(ClipartFormTest, SizesOutsideTheRangeCannotBeSet) {
    AddSheet("a.art");
    Open([&](ClipartForm& dialog) {
        dialog.VScroll2.SetValue(1000);
        EXPECT_EQ(dialog.BigPic.surface.PixelWidth(), 330);
        dialog.VScroll2.SetValue(-1000);
        EXPECT_EQ(dialog.BigPic.surface.PixelWidth(), 110);
        EXPECT_EQ(dialog.BigPic.surface.PixelHeight(), 120);
        // Ranges that another program's script might set.
        dialog.VScroll2.SetRange(0, 0);
        EXPECT_EQ(dialog.BigPic.surface.PixelWidth(), 0);
        EXPECT_EQ(dialog.Label9.Caption, "Size Clipart (0x0)");
        dialog.HorKnop.Click();
        dialog.ExportKnop.Click();
    });
    EXPECT_TRUE(main.ClipPic.surface.Image().Empty());
}

}  // namespace
}  // namespace coinlet::test
