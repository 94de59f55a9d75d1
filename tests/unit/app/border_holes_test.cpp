// The ring of a hole is stamped onto a border by AND. Of any two shades of a metal that would make any
// colour: the ring's tones and the shades of the borders that come with the program are chosen so that it
// doesn't.
#include "base/files.h"
#include "core/materials.h"
#include "core/stock_pictures.h"
#include "media/media_codecs.h"
#include "surface/device.h"
#include "unit/app/metal_line.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace coinlet {
namespace {

constexpr int frame = 500, ring = 100;

struct Corner {
    int x, y;
};

/// The corners of the ring on the canvas: twice those on the preview, with both that "Top" has.
constexpr std::array<Corner, 9> corners = {{
    {200, 20},
    {200, 22},
    {330, 80},
    {374, 200},
    {328, 320},
    {200, 378},
    {76, 322},
    {24, 200},
    {76, 78},
}};

class BorderHoles : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Metals, BorderHoles, testing::Range(0, 4));

TEST_P(BorderHoles, StayOneMetalOverEveryBorderAtEveryPlace) {
    constexpr double nobodySees = 8;
    const test::MetalLine line(GetParam());
    const int column = materials[static_cast<std::size_t>(GetParam())].holeColumn;
    const Image rings = BorderHoleRings();
    const fs::path folder = fs::path(COINLET_DATA) / "Borders";
    const auto files = ListFiles(folder, "*.gif");
    ASSERT_GE(files.size(), 65U);
    std::map<Colour, bool> seen;  // whether it lies where a ring covers metal
    for (const std::string& file : files) {
        const auto strip = LoadPicture(folder / file, MediaCodecs());
        ASSERT_TRUE(strip) << file;
        for (const Corner corner : corners) {
            for (int y = 0; y < ring; ++y) {
                for (int x = 0; x < ring; ++x) {
                    const Colour metal = strip->At(GetParam() * frame + corner.x + x, corner.y + y);
                    const Colour tone = rings.At(column + x, y);
                    const Colour both = metal & tone;
                    if (both != white) seen[both] |= metal != white && tone != white;
                }
            }
        }
    }
    EXPECT_GT(std::ranges::count(seen, true, &std::pair<const Colour, bool>::second), 30)
        << "rings that cover metal in many shades";
    for (const auto& [colour, isCovered] : seen) {
        EXPECT_LE(line.Strays(colour), nobodySees)
            << Red(colour) << ", " << Green(colour) << ", " << Blue(colour)
            << (isCovered ? " under a ring" : " alone");
    }
}

/// What the measure tells: copper is no gold, a red speck no copper.
TEST(MetalLine, TellsAMetalFromWhatIsNone) {
    constexpr int nickel = 0, copper = 1, gold = 3;
    EXPECT_LT(test::MetalLine(copper).Strays(RGB(224, 112, 36)), 1);
    EXPECT_LT(test::MetalLine(gold).Strays(RGB(0, 0, 0)), 1);
    EXPECT_GT(test::MetalLine(copper).Strays(RGB(224, 32, 36)), 20) << "red";
    EXPECT_GT(test::MetalLine(gold).Strays(RGB(224, 112, 36)), 20) << "copper";
    EXPECT_GT(test::MetalLine(nickel).Strays(RGB(64, 128, 64)), 20) << "green";
}

}  // namespace
}  // namespace coinlet
