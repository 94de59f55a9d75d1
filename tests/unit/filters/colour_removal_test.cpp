// What each way of removing colours does to a pixel, against the rule worked out channel by channel.
#include "filters/colour_removal.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace coinlet {
namespace {

using Pixels = std::vector<Pixel>;

/// A mixture of any colours and of a few close ones, so that equal pixels and equal channels do come.
Pixels SomePixels(std::size_t count) {
    std::mt19937 random(20260102);
    const auto dice = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    Pixels pixels(count);
    for (Pixel& pixel : pixels) {
        const int range = dice(2) == 0 ? 256 : 3;
        const int dark = dice(256 - range + 1);
        pixel = ToPixel(RGB(dark + dice(range), dark + dice(range), dark + dice(range)));
    }
    return pixels;
}

/// Compares a change of pixels with the rule for one colour, for rows of many lengths: wide instructions take
/// several pixels at a time, and what is left at the end on its own.
void ExpectRule(const std::function<void(std::span<Pixel>)>& change,
                const std::function<Colour(Colour)>& rule) {
    for (const std::size_t count : {0U, 1U, 2U, 3U, 5U, 8U, 15U, 33U, 500U, 20000U}) {
        const Pixels before = SomePixels(count);
        Pixels after = before;
        change(after);
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_EQ(after[i], ToPixel(rule(ToColour(before[i]))))
                << "pixel " << i << " of " << count << ", " << std::hex << before[i];
        }
    }
}

TEST(ColourRemoval, WipesExactlyOneColour) {
    for (const Colour colour : {ToColour(SomePixels(1)[0]), black, white, RGB(255, 0, 0)}) {
        ExpectRule([=](std::span<Pixel> pixels) { WipeColour(pixels, colour); },
                   [=](Colour each) { return each == colour ? white : each; });
        ExpectRule([=](std::span<Pixel> pixels) { WipeOtherColours(pixels, colour); },
                   [=](Colour each) { return each == colour ? each : white; });
    }
}

TEST(ColourRemoval, KeepsWhatDiffersInTheLastBitOfAChannel) {
    for (const Colour other : {RGB(101, 150, 200), RGB(100, 151, 200), RGB(100, 150, 201)}) {
        Pixels pixels{ToPixel(RGB(100, 150, 200)), ToPixel(other)};
        WipeColour(pixels, RGB(100, 150, 200));
        EXPECT_EQ(pixels, (Pixels{ToPixel(white), ToPixel(other)}));
    }
}

// Outside a picture there is no colour: none equals it.
TEST(ColourRemoval, FindsNoColourOutsideThePicture) {
    constexpr Colour outside = -1;
    ExpectRule([](std::span<Pixel> pixels) { WipeColour(pixels, outside); },
               [](Colour each) { return each; });
    ExpectRule([](std::span<Pixel> pixels) { WipeOtherColours(pixels, outside); },
               [](Colour) { return white; });
}

TEST(ColourRemoval, WipesWhatHasAHue) {
    ExpectRule(WipeHues, [](Colour each) {
        return Red(each) == Green(each) && Green(each) == Blue(each) ? each : white;
    });
}

TEST(ColourRemoval, ClearsOneChannel) {
    const auto clear = [](Channel channel) {
        return [channel](std::span<Pixel> pixels) { ClearChannel(pixels, channel); };
    };
    ExpectRule(clear(Channel::Red), [](Colour each) { return RGB(0, Green(each), Blue(each)); });
    ExpectRule(clear(Channel::Green), [](Colour each) { return RGB(Red(each), 0, Blue(each)); });
    ExpectRule(clear(Channel::Blue), [](Colour each) { return RGB(Red(each), Green(each), 0); });
}

TEST(ColourRemoval, DividesByTheRoundedGray) {
    for (const double threshold : {-1e300, -1.0, 0.0, 0.5, 1.0, 39.0, 39.5, 40.0, 127.999, 128.0, 254.0,
                                   254.5, 255.0, 255.5, 256.0, 257.0, 1e9, 1e300}) {
        SCOPED_TRACE(threshold);
        ExpectRule([=](std::span<Pixel> pixels) { MakeBlackAndWhite(pixels, threshold); },
                   [=](Colour each) {
                       const double gray = std::nearbyint((Red(each) + Green(each) + Blue(each)) / 3.0);
                       return gray >= threshold ? white : black;
                   });
    }
}

// All sums of channels there are, at every whole threshold.
TEST(ColourRemoval, DividesEverySumAtEveryThreshold) {
    Pixels sums;
    for (int sum = 0; sum <= 3 * 255; ++sum)
        sums.push_back(ToPixel(RGB(sum / 3, (sum + 1) / 3, (sum + 2) / 3)));
    for (int threshold = 0; threshold <= 256; ++threshold) {
        Pixels divided = sums;
        MakeBlackAndWhite(divided, threshold);
        for (std::size_t sum = 0; sum < sums.size(); ++sum) {
            const bool isWhite = std::nearbyint(static_cast<double>(sum) / 3) >= threshold;
            ASSERT_EQ(divided[sum], ToPixel(isWhite ? white : black)) << sum << " at " << threshold;
        }
    }
}

}  // namespace
}  // namespace coinlet
