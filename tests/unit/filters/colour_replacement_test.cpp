// Replacing by a palette and by a metal, against the rule worked out slowly.
#include "filters/colour_replacement.h"

#include "filters/colour_palettes.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <vector>

namespace coinlet {
namespace {

using Pixels = std::vector<Pixel>;

class Dice {
public:
    int operator()(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    Colour AnyColour() { return RGB((*this)(256), (*this)(256), (*this)(256)); }

private:
    std::mt19937 random_{20260102};
};

Colour SlowReplacement(Colour colour, const PaletteColours& targets, const PaletteColours& results) {
    int best = 1000000000;
    Colour result = colour;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        const int red = Red(colour) - Red(targets[i]);
        const int green = Green(colour) - Green(targets[i]);
        const int blue = Blue(colour) - Blue(targets[i]);
        const int distance = red * red + green * green + blue * blue;
        if (distance < best) {
            best = distance;
            result = results[i];
        }
    }
    return result;
}

void ExpectRule(const Pixels& before, const PaletteColours& targets, const PaletteColours& results) {
    Pixels after = before;
    PaletteTargets(targets).Replace(after, results);
    for (std::size_t i = 0; i < before.size(); ++i) {
        ASSERT_EQ(after[i], ToPixel(SlowReplacement(ToColour(before[i]), targets, results)))
            << "pixel " << i << " of " << before.size() << ", " << std::hex << before[i];
    }
}

TEST(ColourReplacement, TakesTheNearestTargetsResult) {
    Dice dice;
    for (const std::size_t count : {0U, 1U, 3U, 4U, 7U, 16U, 500U, 5000U}) {
        for (int round = 0; round < 20; ++round) {
            PaletteColours targets{}, results{};
            for (Colour& target : targets)
                target = dice.AnyColour();
            for (Colour& result : results)
                result = dice.AnyColour();
            Pixels pixels(count);
            for (Pixel& pixel : pixels)
                pixel = ToPixel(dice.AnyColour());
            ExpectRule(pixels, targets, results);
        }
    }
}

TEST(ColourReplacement, GivesTiesToTheLowerIndex) {
    constexpr PaletteColours results{RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0), RGB(5, 0, 0)};
    constexpr Colour far = RGB(255, 255, 255);
    Pixels pixels{ToPixel(RGB(50, 0, 0))};
    PaletteTargets({far, RGB(100, 0, 0), far, RGB(0, 0, 0), far}).Replace(pixels, results);
    EXPECT_EQ(pixels[0], ToPixel(results[1]));
    pixels[0] = ToPixel(RGB(50, 0, 0));
    PaletteTargets({far, far, RGB(0, 0, 0), far, RGB(100, 0, 0)}).Replace(pixels, results);
    EXPECT_EQ(pixels[0], ToPixel(results[2]));
    // Few colours in few places give ties without end.
    Dice dice;
    for (int round = 0; round < 200; ++round) {
        PaletteColours targets{};
        for (Colour& target : targets)
            target = RGB(dice(3), dice(3), dice(3));
        Pixels grid;
        for (int i = 0; i < 27; ++i)
            grid.push_back(ToPixel(RGB(i % 3, i / 3 % 3, i / 9)));
        ExpectRule(grid, targets, results);
    }
}

TEST(ColourReplacement, GivesAllToTheFirstOfEqualTargets) {
    Dice dice;
    Pixels pixels(100);
    for (Pixel& pixel : pixels)
        pixel = ToPixel(dice.AnyColour());
    constexpr PaletteColours results{RGB(9, 8, 7), black, black, black, black};
    PaletteTargets({white, white, white, white, white}).Replace(pixels, results);
    EXPECT_EQ(pixels, Pixels(100, ToPixel(results[0])));
}

// The corners of the colour cube lie farthest apart: 3 * 255 * 255.
TEST(ColourReplacement, MeasuresTheLongestWay) {
    constexpr PaletteColours results{RGB(1, 1, 1), black, black, black, black};
    for (const Colour corner : {black, white, RGB(255, 0, 255), RGB(0, 255, 0)}) {
        const Colour opposite = white - corner;
        Pixels pixels(9, ToPixel(opposite));
        PaletteTargets({corner, corner, corner, corner, corner}).Replace(pixels, results);
        EXPECT_EQ(pixels, Pixels(9, ToPixel(results[0])));
    }
}

TEST(ColourReplacement, ReducesAnyPictureToFiveColoursByTheFirstExample) {
    Dice dice;
    Pixels pixels(10000);
    for (Pixel& pixel : pixels)
        pixel = ToPixel(dice.AnyColour());
    const ColourPalette& example = colourPalettes[1];
    PaletteTargets(example.targets).Replace(pixels, example.results);
    const std::set<Pixel> left(pixels.begin(), pixels.end());
    std::set<Pixel> allowed;
    for (const Colour colour : {RGB(255, 0, 0), RGB(0, 192, 0), RGB(0, 0, 255), black, white})
        allowed.insert(ToPixel(colour));
    EXPECT_EQ(left, allowed);
    // What has become a result is nearest to itself.
    Pixels again = pixels;
    PaletteTargets(example.targets).Replace(again, example.results);
    EXPECT_EQ(again, pixels);
}

TEST(ColourReplacement, GivesAMetalToTheDarkPixelsAlone) {
    const std::vector<std::pair<Metal, Colour>> metals{{Metal::Copper, RGB(228, 11, 30)},
                                                       {Metal::Silver, RGB(128, 128, 132)},
                                                       {Metal::Gold, RGB(240, 173, 0)}};
    Dice dice;
    Pixels before;
    for (int red = 48; red <= 51; ++red) {
        for (int green = 48; green <= 51; ++green) {
            for (int blue = 48; blue <= 51; ++blue)
                before.push_back(ToPixel(RGB(red, green, blue)));
        }
    }
    for (int i = 0; i < 3001; ++i)
        before.push_back(ToPixel(i % 2 == 0 ? dice.AnyColour() : RGB(dice(60), dice(60), dice(60))));
    for (const auto& [metal, ink] : metals) {
        Pixels after = before;
        ReplaceDarkPixels(after, metal);
        for (std::size_t i = 0; i < before.size(); ++i) {
            const Colour colour = ToColour(before[i]);
            const bool dark = Red(colour) < 50 && Green(colour) < 50 && Blue(colour) < 50;
            ASSERT_EQ(after[i], dark ? ToPixel(ink) : before[i]) << std::hex << before[i];
        }
        // No metal is dark itself.
        Pixels again = after;
        ReplaceDarkPixels(again, metal);
        EXPECT_EQ(again, after);
    }
}

}  // namespace
}  // namespace coinlet
