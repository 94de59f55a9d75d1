// Places that can't be, and strips of all widths.
#include "libraries/symbol_form.h"

#include "support/world.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace coinlet::test {
namespace {

constexpr float huge = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

class SymbolFormTest : public testing::Test, protected World {
protected:
    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(SymbolForm&)>& doing) {
        SymbolForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
};

// The letters of these tests are cells as high as the size in points, half as wide, inked but for the last
// column and row.

TEST_F(SymbolFormTest, PrintsAllCharactersOnOneStrip) {
    Open([&](SymbolForm& dialog) {
        dialog.InstalKnop.Click();
        EXPECT_EQ(dialog.BackPic.surface.PixelWidth(), 94 * 30);
        EXPECT_EQ(dialog.HScroll1.Max(), 94 * 30 - 552);
        EXPECT_EQ(dialog.Caption, "True Type Symbols (2820)");
        for (int i = 0; i < 94; ++i) {
            EXPECT_EQ(dialog.BackPic.surface.Point(30 * i, 0), black) << i;
            EXPECT_EQ(dialog.BackPic.surface.Point(30 * i + 28, 58), black) << i;
            EXPECT_EQ(dialog.BackPic.surface.Point(30 * i + 29, 0), white) << i;
            EXPECT_EQ(dialog.BackPic.surface.Point(30 * i, 59), white) << i;
        }
    });
}

TEST_F(SymbolFormTest, TheStripIsAsWideAsTheSizeMakesIt) {
    Open([&](SymbolForm& dialog) {
        for (const int size : {150, 12, 10, 60, 148}) {
            dialog.Combo2.SetText(std::to_string(size));
            EXPECT_EQ(dialog.BackPic.surface.PixelWidth(), 94 * (size / 2)) << size;
            EXPECT_EQ(dialog.BackPic.surface.PixelHeight(), 218) << size;
            EXPECT_EQ(dialog.HScroll1.Max(), 94 * (size / 2) - 552) << size;
            EXPECT_EQ(dialog.HScroll1.Value(), 0) << size;
            EXPECT_EQ(dialog.HScroll1.Inert(), size <= 10) << size;
            dialog.HScroll1.SetValue(dialog.HScroll1.Max());
            const int last = 94 * (size / 2) < 552 ? 94 * (size / 2) - 2 : 550;
            EXPECT_EQ(dialog.Pic.surface.Point(last, 0), black) << size;
            EXPECT_EQ(dialog.Pic.surface.Point(last + 1, 0), white) << size;
        }
    });
}

TEST_F(SymbolFormTest, ASizeIsRoundedOnlyWhereItIsKept) {
    Open([&](SymbolForm& dialog) {
        // The strip is printed at 10.6, which this font makes 11, and measured at 11.
        dialog.Combo2.SetText("10.6");
        EXPECT_EQ(dialog.BackLabel.FontSize, 11);
        EXPECT_EQ(dialog.BackPic.surface.FontSize, 10.6F);
        dialog.Combo2.SetText("11.5");
        EXPECT_EQ(dialog.BackLabel.FontSize, 12);
        dialog.Combo2.SetText("12.5 points");
        EXPECT_EQ(dialog.BackLabel.FontSize, 12);
        dialog.InstalKnop.Click();
        EXPECT_EQ(dialog.BackLabel.FontSize, 12.5F);
    });
}

TEST_F(SymbolFormTest, LettersBehindTheNumberOfASizeLeaveTheStripButGoBackToItsStart) {
    Open([&](SymbolForm& dialog) {
        Surface& strip = dialog.BackPic.surface;
        dialog.Combo2.SetText("20");
        const auto printed = strip.Revision();
        for (const char* text : {"20p", "20po", "20 points", "+20.0"}) {
            dialog.HScroll1.SetValue(105);
            EXPECT_EQ(dialog.Pic.surface.Point(4, 0), white) << text;  // Column 109 is the last of a cell.
            dialog.Caption = "other";
            dialog.Combo2.SetText(text);
            EXPECT_EQ(strip.Revision(), printed) << text;
            EXPECT_EQ(dialog.HScroll1.Value(), 0) << text;
            EXPECT_EQ(dialog.HScroll1.Max(), 94 * 10 - 552) << text;
            EXPECT_EQ(dialog.Pic.surface.Point(4, 0), black) << text;
            EXPECT_EQ(dialog.Caption, "True Type Symbols (940)") << text;
        }
        dialog.Combo2.SetText("200");
        EXPECT_EQ(strip.PixelWidth(), 94 * 100);
        dialog.Combo2.SetText("20");
        EXPECT_EQ(strip.PixelWidth(), 94 * 10);
        EXPECT_EQ(strip.Point(8, 18), black);
        EXPECT_EQ(strip.Point(9, 19), white);
    });
}

TEST_F(SymbolFormTest, ShowPrintsAnewWhateverStandsThere) {
    Open([&](SymbolForm& dialog) {
        dialog.InstalKnop.Click();
        const auto printed = dialog.BackPic.surface.Revision();
        // The file may hold other letters under the same name by now.
        dialog.InstalKnop.Click();
        EXPECT_NE(dialog.BackPic.surface.Revision(), printed);
    });
}

TEST_F(SymbolFormTest, ABoxFromOrToNowhereIsQuiet) {
    for (const float from : {nan, huge, -huge, 1e30F, -5.0F, 600.0F}) {
        for (const float to : {nan, huge, -huge, 1e30F, -1e30F, 3.0F}) {
            Open([&](SymbolForm& dialog) {
                dialog.Combo2.SetText("20");
                dialog.Pic.MouseDown(1, 0, from, from);
                dialog.Pic.MouseMove(1, 0, to, to);
                dialog.Pic.MouseUp(1, 0, to, to);
                dialog.ExportKnop.Click();
                EXPECT_FALSE(dialog.Loaded()) << from << ' ' << to;
            });
            EXPECT_EQ(session.ToolCode, imageFloats);
            EXPECT_LE(main.ClipPic.surface.PixelWidth(), maximumSide);
        }
    }
}

TEST_F(SymbolFormTest, WhatLiesBeyondTheWindowStaysWhatFloatedBefore) {
    main.ClipPic.surface.SetPicture(Image(Bitmap(40, 40, ToPixel(RGB(1, 2, 3)))));
    Open([&](SymbolForm& dialog) {
        dialog.Pic.MouseDown(1, 0, 542, 208);
        dialog.Pic.MouseMove(1, 0, 561, 227);
        dialog.ExportKnop.Click();
    });
    EXPECT_EQ(main.ClipPic.surface.PixelWidth(), 20);
    EXPECT_EQ(main.ClipPic.surface.PixelHeight(), 20);
    EXPECT_EQ(main.ClipPic.surface.Point(9, 9), white);
    EXPECT_EQ(main.ClipPic.surface.Point(10, 9), RGB(1, 2, 3));
    EXPECT_EQ(main.ClipPic.surface.Point(9, 10), RGB(1, 2, 3));
}

}  // namespace
}  // namespace coinlet::test
