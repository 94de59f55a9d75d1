// Text along a circle, with letters that are one dot each at the corner that they hang by, so that the places
// and the turns of all letters can be read off.

#include "designers/circel_text.h"

#include "base/text.h"
#include "designers/rotated_text.h"
#include "support/watching_screen.h"
#include "support/world.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace coinlet {
namespace {

/// A letter is a dot. A cell is as high as its font has points, and as wide as its letter comes in the
/// alphabet. Keeps what was asked for.
class DotFonts : public FontEngine {
public:
    struct Asked {
        FontSpec font;
        std::string text;
        Edges edges;
        double angle;
    };

    TextExtent Measure(const FontSpec& font, std::string_view text) const override {
        int width = 0;
        for (const char letter : text)
            width += letter - 'a' + 1;
        return {width, static_cast<int>(font.size)};
    }
    TextMask Render(const FontSpec& font, std::string_view text, Edges edges, double angle) const override {
        asked.push_back({font, std::string(text), edges, angle});
        return {0, 0, 1, 1, {255}};
    }
    TextMask RenderSeen(const FontSpec& font, std::string_view text, Edges edges, double angle,
                        const TextWindow& window) const override {
        windows.push_back(window);
        return Render(font, text, edges, angle);
    }
    std::vector<std::string> Families() const override { return {"Arial", "Dots"}; }
    std::string AddFontFile(const std::filesystem::path&) override { return {}; }

    mutable std::vector<Asked> asked;
    mutable std::vector<TextWindow> windows;  ///< The picture, as seen from the places of the letters.
};

struct Dot {
    int x, y;
    friend bool operator==(const Dot&, const Dot&) = default;
};

class CircelTextTest : public testing::Test, protected test::World {
protected:
    CircelTextTest() {
        form.Form_Load();
        form.Text1.SetText("abc");
    }
    void Draw() {
        dots.asked.clear();
        dots.windows.clear();
        form.DrawKnop.Click();
    }
    std::vector<Dot> Dots(Colour colour) const {
        std::vector<Dot> found;
        for (int y = 0; y < canvasSide; ++y) {
            for (int x = 0; x < canvasSide; ++x) {
                if (form.Pic.surface.Point(x, y) == colour) found.push_back({x, y});
            }
        }
        return found;
    }
    bool HasDot(int x, int y, Colour colour = black) const { return form.Pic.surface.Point(x, y) == colour; }

    /// A dot at the whole numbers nearest to the place; on a half either neighbour is near enough.
    bool HasDotNear(double x, double y) const {
        constexpr double half = 0.5 + 1e-6;
        for (const double dotX : {std::floor(x), std::ceil(x)}) {
            for (const double dotY : {std::floor(y), std::ceil(y)}) {
                const bool near = std::abs(dotX - x) <= half && std::abs(dotY - y) <= half;
                if (near && HasDot(static_cast<int>(dotX), static_cast<int>(dotY))) return true;
            }
        }
        return false;
    }

    DotFonts dots;
    Services dotServices{folder / "app", platform,  dots,    codecs,    clock,
                         desktop,        clipboard, printer, screenGrab};
    Context dotContext{dotServices, session, main, plaatjes};
    CircelText form{dotContext};
};

TEST_F(CircelTextTest, OffersTheFontsOfTheScreen) {
    ASSERT_EQ(form.Combo4.ListCount(), 2);
    EXPECT_EQ(form.Combo4.List(0), "Arial");
    EXPECT_EQ(form.Combo4.List(1), "Dots");
    EXPECT_EQ(form.Combo4.Text(), "Arial");
}

TEST_F(CircelTextTest, TextOnTopGoesFromNineOClockOverTheTop) {
    Draw();
    ASSERT_EQ(dots.asked.size(), 3U);
    // Radius 185, letters of 30: 215 from the centre. A step is 2 * 3 + 2 = 8 degrees.
    const char* letters[] = {"a", "b", "c"};
    const double angles[] = {90, 82, 74};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(dots.asked[i].text, letters[i]);
        EXPECT_EQ(dots.asked[i].angle, angles[i]);
        EXPECT_EQ(dots.asked[i].edges, Edges::Smooth);
        EXPECT_EQ(dots.asked[i].font.name, "Arial");
        EXPECT_EQ(dots.asked[i].font.size, 30);
    }
    // 215 left; half of 1 down, a hair less since a quarter turn is a hair more: below 250.5.
    EXPECT_TRUE(HasDot(35, 250));
    // cos 8 = 0.99027, sin 8 = 0.13917: 250 - 212.908 - 0.139 = 36.95; 250 - 29.922 + 0.990 = 221.07.
    EXPECT_TRUE(HasDot(37, 221));
    // cos 16 = 0.96126, sin 16 = 0.27564: 250 - 206.671 - 0.413 = 42.92; 250 - 59.262 + 1.442 = 192.18.
    EXPECT_TRUE(HasDot(43, 192));
    EXPECT_EQ(Dots(black).size(), 3U);
}

TEST_F(CircelTextTest, TextBelowGoesBackFromThreeOClock) {
    form.Check2.SetValue(false);
    Draw();
    ASSERT_EQ(dots.asked.size(), 3U);
    const char* letters[] = {"c", "b", "a"};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(dots.asked[i].text, letters[i]);
    EXPECT_EQ(dots.asked[2].angle, 74);
    // 185 right; half of 3 down, a hair less since a quarter turn is a hair more: below 251.5.
    EXPECT_TRUE(HasDot(435, 251));
    // 250 + 183.200 - 0.139 = 433.06; 250 + 25.747 + 0.990 = 276.74.
    EXPECT_TRUE(HasDot(433, 277));
    // 250 + 177.833 - 0.138 = 427.70; 250 + 50.993 + 0.481 = 301.47.
    EXPECT_TRUE(HasDot(428, 301));
    EXPECT_EQ(Dots(black).size(), 3U);
}

// All letters of long texts, with the pi of so many digits that the angles are computed with.
TEST_F(CircelTextTest, EveryLetterStandsWhereItsAngleTells) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += static_cast<char>('a' + i * 7 % 26);
    form.Text1.SetText(text);
    for (const bool onTop : {true, false}) {
        for (const int distance : {0, 1, 10}) {
            for (const int radius : {100, 200}) {
                form.Check2.SetValue(onTop);
                form.Combo1.SetText(std::to_string(distance));
                form.Combo2.SetText(std::to_string(radius));
                form.Combo3.SetText("40");
                Draw();
                ASSERT_EQ(dots.asked.size(), text.size());
                const double step = distance * 4.0 + 2;
                for (std::size_t i = 0; i < text.size(); ++i) {
                    const char letter = onTop ? text[i] : text[text.size() - 1 - i];
                    const double turn = step * static_cast<double>(i);
                    EXPECT_EQ(dots.asked[i].text, std::string(1, letter));
                    // The engine turns by less than a whole turn or by more, as it comes.
                    EXPECT_EQ(dots.asked[i].angle, 90 - turn);
                    // The corner by a walk: outward along the turned axis, then along the line by half a
                    // cell.
                    const double a = turn * 3.14159625 / 180, b = a + 3.14159625 / 2;
                    const double out = onTop ? -radius - 40 : radius, half = (letter - 'a' + 1) / 2.0;
                    const double x = 250 + std::cos(a) * out + std::cos(b) * half;
                    const double y = 250 + std::sin(a) * out + std::sin(b) * half;
                    EXPECT_TRUE(HasDotNear(x, y)) << i << ": " << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(CircelTextTest, NoDistanceIsTwoDegreesAtEverySize) {
    form.Combo1.SetText("0");
    for (const char* size : {"20", "30", "120"}) {
        form.Combo3.SetText(size);
        Draw();
        EXPECT_EQ(dots.asked[2].angle, 86);
    }
}

TEST_F(CircelTextTest, WhatIsNoNumberIsNought) {
    form.Combo1.SetText("wide");
    form.Combo2.SetText("round");
    form.Check2.SetValue(false);
    Draw();
    ASSERT_EQ(dots.asked.size(), 3U);
    EXPECT_EQ(dots.asked[1].angle, 88);  // two degrees a step
    EXPECT_TRUE(HasDot(250, 251));       // radius 0
    // A font of no size can't be made: its letters are missing.
    form.Combo3.SetText("large");
    Draw();
    EXPECT_TRUE(dots.asked.empty());
}

TEST_F(CircelTextTest, AngleIsTheNearestWholeNumberHalvesToTheEvenOne) {
    form.Combo1.SetText("0.15");  // with letters of 30: 2.45 degrees
    Draw();
    EXPECT_EQ(dots.asked[1].angle, 88);  // 87.55
    form.Combo1.SetText("0.5");          // 3.5 degrees
    Draw();
    EXPECT_EQ(dots.asked[1].angle, 86);  // 86.5
}

TEST_F(CircelTextTest, LetterAndItsMarksAreOne) {
    form.Text1.SetText("ae\u0301b");
    Draw();
    ASSERT_EQ(dots.asked.size(), 3U);
    EXPECT_EQ(dots.asked[1].text, "e\u0301");
    EXPECT_EQ(dots.asked[2].angle, 74);
}

TEST_F(CircelTextTest, OpenLettersAreWhiteWithinARing) {
    form.Check5.SetValue(true);
    form.Text1.SetText("a");
    main.Pic.surface.Line(0, 0, 499, 499, RGB(10, 20, 30), Box::Filled);
    Draw();
    EXPECT_EQ(dots.asked.size(), 9U);
    EXPECT_EQ(Dots(white), (std::vector<Dot>{{35, 250}}));
    EXPECT_EQ(Dots(black),
              (std::vector<Dot>{
                  {35, 248}, {34, 249}, {36, 249}, {33, 250}, {37, 250}, {34, 251}, {36, 251}, {35, 252}}));
    form.Check1.SetValue(true);
    Draw();
    EXPECT_EQ(Dots(white).size(), 1U);
    EXPECT_EQ(Dots(main.ColorLabel.BackColor).size(), 8U);
}

// The letter at 3 o'clock lies 250 beyond the radius, at 2,147,483,646. Its ring ends at the last number that
// there is; a sum that overflows would lie on the other side of the picture.
TEST_F(CircelTextTest, RingsOfOpenLettersEndAtTheLastNumber) {
    form.Text1.SetText("a");
    form.Check2.SetValue(false);
    form.Check5.SetValue(true);
    form.Combo2.SetText("2147483396");
    Draw();
    std::vector<int> lefts;
    for (const TextWindow& window : dots.windows)
        lefts.push_back(window.left);
    constexpr int last = 2'147'483'647;
    EXPECT_EQ(lefts, (std::vector<int>{1 - last, -last, -last, -last, 1 - last, 2 - last, 3 - last, 2 - last,
                                       1 - last}));
    EXPECT_EQ(dots.windows.front().top, 2 - 250);
    EXPECT_EQ(dots.windows.front().right, 500 + (1 - last));
}

// Farther out still, on either side.
TEST_F(CircelTextTest, OpenLettersMayLieBeyondAllNumbers) {
    form.Check5.SetValue(true);
    for (const char* radius : {"2147483400", "-2147483400", "1e300", "-1e300"}) {
        for (const bool onTop : {true, false}) {
            form.Check2.SetValue(onTop);
            form.Combo2.SetText(radius);
            Draw();
            EXPECT_EQ(dots.asked.size(), 27U) << radius;
            EXPECT_TRUE(Dots(black).empty()) << radius;
        }
    }
}

TEST_F(CircelTextTest, EachLetterIsShownOnceItIsWritten) {
    for (const bool open : {false, true}) {
        form.Check5.SetValue(open);
        const test::WatchingScreen screen(form.Pic.surface, [this](int before) {
            EXPECT_EQ(dots.asked.size(), static_cast<std::size_t>(before) + 1);
        });
        Draw();
        EXPECT_EQ(screen.Refreshes(), open ? 27 : 3);
    }
}

TEST_F(CircelTextTest, FillColourIsThatOfTheColourField) {
    main.ColorLabel.BackColor = RGB(1, 100, 200);
    form.Check1.SetValue(true);
    Draw();
    EXPECT_EQ(Dots(RGB(1, 100, 200)).size(), 3U);
}

TEST_F(CircelTextTest, StylesFollowTheTicks) {
    form.Check3.SetValue(true);
    Draw();
    EXPECT_TRUE(dots.asked[0].font.bold);
    EXPECT_FALSE(dots.asked[0].font.italic);
    form.Check3.SetValue(false);
    form.Check4.SetValue(true);
    form.Combo4.SetText("Dots");
    Draw();
    EXPECT_FALSE(dots.asked[0].font.bold);
    EXPECT_TRUE(dots.asked[0].font.italic);
    EXPECT_EQ(dots.asked[0].font.name, "Dots");
}

TEST_F(CircelTextTest, EachDrawingStartsFromTheCanvas) {
    Draw();
    form.Check2.SetValue(false);
    Draw();
    EXPECT_FALSE(HasDot(35, 250));
    EXPECT_EQ(Dots(black).size(), 3U);
    main.Pic.surface.PSet(7, 7, RGB(255, 0, 0));
    form.Text1.SetText("");
    Draw();
    EXPECT_TRUE(Dots(black).empty());
    EXPECT_TRUE(HasDot(7, 7, RGB(255, 0, 0)));
}

TEST_F(CircelTextTest, LongFontNamesLeaveTheLettersOut) {
    form.Combo4.SetText(std::string(33, 'x'));
    Draw();
    EXPECT_TRUE(dots.asked.empty());
    for (const std::size_t length : {32U, 31U}) {
        form.Combo4.SetText(std::string(length, 'x'));
        Draw();
        EXPECT_EQ(dots.asked.size(), 3U) << length;
    }
}

TEST_F(CircelTextTest, MonstrousNumbersAreNoHarm) {
    for (const char* number :
         {"1e308", "-1e308", "1e20", "-1610612736", "2147483648", "1e-300", "-30", "1e39"}) {
        for (const bool onTop : {true, false}) {
            form.Check2.SetValue(onTop);
            for (ComboBox* combo : {&form.Combo1, &form.Combo2, &form.Combo3}) {
                const std::string before = combo->Text();
                combo->SetText(number);
                Draw();
                EXPECT_LE(dots.asked.size(), 3U);
                combo->SetText(before);
            }
        }
    }
    Draw();
    EXPECT_EQ(dots.asked.size(), 3U);
}

TEST(FillLogFont, HoldsTheFontAndNothingElse) {
    const DotFonts fonts;
    Surface surface(fonts, 10, 10);
    surface.FontName = "Dots";
    surface.FontSize = 30;
    const LOGFONT plain = FillLogFont(surface, surface.hDC());
    EXPECT_EQ(plain.lfHeight, -40);  // 30 points at 96 dots an inch
    EXPECT_EQ(plain.lfWidth, 0);
    EXPECT_EQ(plain.lfEscapement, 0);
    EXPECT_EQ(plain.lfOrientation, 0);
    EXPECT_EQ(plain.lfWeight, 400);
    EXPECT_EQ(plain.lfItalic, 0);
    EXPECT_EQ(plain.lfUnderline, 0);
    EXPECT_EQ(plain.lfStrikeOut, 0);
    EXPECT_EQ(plain.lfCharSet, 0);
    EXPECT_EQ(plain.lfOutPrecision, 0);
    EXPECT_EQ(plain.lfClipPrecision, 0);
    EXPECT_EQ(plain.lfQuality, 4);
    EXPECT_EQ(plain.lfPitchAndFamily, 0);
    EXPECT_EQ(plain.lfFaceName, "Dots");
    surface.FontBold = surface.FontItalic = surface.FontUnderline = surface.FontStrikethru = true;
    surface.FontSize = 8.5F;  // 8 points: half to the even neighbour; 10.67 pixels
    const LOGFONT styled = FillLogFont(surface, surface.hDC());
    EXPECT_EQ(styled.lfHeight, -11);
    EXPECT_EQ(styled.lfWeight, 700);
    EXPECT_EQ(styled.lfItalic, 1);
    EXPECT_EQ(styled.lfUnderline, 1);
    EXPECT_EQ(styled.lfStrikeOut, 1);
}

TEST(DrawRotatedText, TurnsCounterClockwiseAndGivesTheFormerFontBack) {
    const DotFonts fonts;
    Surface surface(fonts, 10, 10);
    const HFONT former = CreateFontIndirectA({.lfHeight = -5, .lfFaceName = "Former"});
    SelectObject(surface.hDC(), former);
    surface.ForeColor = RGB(0, 200, 0);
    DrawRotatedText("ab", -37, 4, 6, surface);
    ASSERT_EQ(fonts.asked.size(), 1U);
    EXPECT_EQ(fonts.asked[0].text, "ab");
    EXPECT_EQ(fonts.asked[0].angle, -37);
    EXPECT_EQ(surface.Point(4, 6), RGB(0, 200, 0));
    EXPECT_EQ(surface.DeviceFont, former);
}

TEST(DrawRotatedText, LeavesOutATurnThatNoRecordHolds) {
    const DotFonts fonts;
    Surface surface(fonts, 10, 10);
    DrawRotatedText("a", 214748365, 4, 6, surface);
    DrawRotatedText("a", -214748365, 4, 6, surface);
    EXPECT_TRUE(fonts.asked.empty());
    DrawRotatedText("a", 214748364, 4, 6, surface);
    EXPECT_EQ(fonts.asked.size(), 1U);
}

}  // namespace
}  // namespace coinlet
