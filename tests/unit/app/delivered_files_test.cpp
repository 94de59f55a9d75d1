// What comes with the program is of the form that its dialogs read, and fit for what users do with it.
#include "base/files.h"
#include "base/text.h"
#include "core/materials.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "support/block_fonts.h"
#include "surface/device.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <ostream>
#include <set>

namespace coinlet {
namespace {

const fs::path data = COINLET_DATA;

Image Load(const fs::path& file) {
    const auto picture = LoadPicture(file, MediaCodecs());
    EXPECT_TRUE(picture) << file;
    return picture.value_or(Image());
}

const test::BlockFonts fonts;

/// The part of a picture that starts at a place; what lies outside is white.
class Cut : public Surface {
public:
    Cut(const coinlet::Image& picture, int left, int top, int width, int height)
        : Surface(fonts, width, height) {
        const Rectangle size{0, 0, static_cast<double>(width), static_cast<double>(height)};
        PaintPicture(picture, size,
                     {static_cast<double>(left), static_cast<double>(top), size.width, size.height});
    }
};

std::ptrdiff_t Count(const Surface& picture, Colour colour) {
    return std::ranges::count(picture.Pixels().Pixels(), ToPixel(colour));
}

std::string TextOf(const fs::path& file) {
    const auto bytes = ReadFile(file);
    EXPECT_TRUE(bytes) << file;
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
}

constexpr int canvas = 500;

TEST(DeliveredBorders, HaveFourFramesOfMetalOnWhite) {
    constexpr double tagRadius = 240;
    const auto files = ListFiles(data / "Borders", "*.gif");
    EXPECT_GE(files.size(), 30U);
    for (const std::string& file : files) {
        const Image strip = Load(data / "Borders" / file);
        ASSERT_EQ(strip.Width(), std::ssize(materials) * canvas) << file;
        ASSERT_EQ(strip.Height(), canvas) << file;
        std::ptrdiff_t outside = 0, fringe = 0, unequal = 0, metal = 0;
        for (int y = 0; y < canvas; ++y) {
            for (int x = 0; x < strip.Width(); ++x) {
                const Colour colour = strip.At(x, y);
                const int column = x % canvas;
                if ((strip.At(column, y) == white) != (colour == white)) ++unequal;
                if (colour == white) continue;
                ++metal;
                if (std::hypot(column - canvas / 2, y - canvas / 2) > tagRadius + 1.5) ++outside;
                if (std::min({Red(colour), Green(colour), Blue(colour)}) >= 240) ++fringe;
            }
        }
        EXPECT_EQ(outside, 0) << file << ": something beside the tag";
        EXPECT_EQ(fringe, 0) << file << ": pixels that are nearly white";
        EXPECT_EQ(unequal, 0) << file << ": the metals let through different parts of the design";
        const double share = static_cast<double>(metal) / (static_cast<double>(strip.Width()) * canvas);
        EXPECT_GT(share, 0.01) << file;
        EXPECT_LT(share, 0.6) << file << ": no room for a design";
    }
}

TEST(DeliveredBorders, LeaveADesignAloneWhereTheyAreWhite) {
    for (const std::string& file : ListFiles(data / "Borders", "*.gif")) {
        const Image strip = Load(data / "Borders" / file);
        const Colour ink = RGB(90, 160, 30);
        Surface design(fonts, canvas, canvas);
        design.SetBackColor(ink);
        const Rectangle whole{0, 0, canvas, canvas};
        design.PaintPicture(strip, whole, whole, SRCAND);
        EXPECT_EQ(design.Point(canvas / 2, canvas / 2), ink) << file << ": nothing shows in the middle";
        std::ptrdiff_t changed = 0;
        for (int y = 0; y < canvas; ++y) {
            for (int x = 0; x < canvas; ++x)
                changed += strip.At(x, y) == white && design.Point(x, y) != ink;
        }
        EXPECT_EQ(changed, 0) << file;
    }
}

TEST(DeliveredCliparts, AreClosedOutlinesInBlack) {
    constexpr int cellWidth = 330, cellHeight = 360, cells = 5;
    const auto files = ListFiles(data / "Cliparts", "*.art");
    EXPECT_GE(files.size(), 30U);
    for (const std::string& file : files) {
        const Image sheet = Load(data / "Cliparts" / file);
        ASSERT_EQ(sheet.Width(), cells * cellWidth) << file;
        ASSERT_EQ(sheet.Height(), cellHeight) << file;
        for (int cell = 0; cell < cells; ++cell) {
            SCOPED_TRACE(file + ", cell " + std::to_string(cell + 1));
            Cut clipart(sheet, cell * cellWidth, 0, cellWidth, cellHeight);
            const std::ptrdiff_t ink = Count(clipart, black), paper = Count(clipart, white);
            EXPECT_EQ(ink + paper, cellWidth * cellHeight) << "a colour that is neither black nor white";
            EXPECT_GT(ink, 500);
            // What a fill around the drawing doesn't reach can be filled by itself.
            clipart.FillColor = RGB(255, 0, 0);
            clipart.FillStyle = solidFill;
            ExtFloodFill(clipart.hDC(), 0, 0, white, FLOODFILLSURFACE);
            EXPECT_GT(Count(clipart, white), ink) << "its outline lets the paint through";
        }
    }
}

// A gap at the edge would show the ground of a coloured design as a disc that ends short of the tag.
TEST(DeliveredBorders, CloseTheEdgeOfTheTag) {
    constexpr double insideTheEdge = 237;
    constexpr int steps = 3600;
    for (const std::string& file : ListFiles(data / "Borders", "*.gif")) {
        const Image strip = Load(data / "Borders" / file);
        int gaps = 0;
        for (int step = 0; step < steps; ++step) {
            const double angle = step * 2 * std::numbers::pi / steps;
            const auto x = static_cast<int>(std::lround(canvas / 2.0 + insideTheEdge * std::sin(angle)));
            const auto y = static_cast<int>(std::lround(canvas / 2.0 - insideTheEdge * std::cos(angle)));
            for (int frame = 0; frame < std::ssize(materials); ++frame)
                gaps += strip.At(frame * canvas + x, y) == white;
        }
        EXPECT_EQ(gaps, 0) << file;
    }
}

/// Gives each white region of a clipart a colour of its own, 1, 2, 3, ..., and tells how many pixels have
/// each.
std::vector<std::ptrdiff_t> ColourRegions(Surface& clipart) {
    std::vector<std::ptrdiff_t> sizes;
    clipart.FillStyle = solidFill;
    for (int y = 0; y < clipart.Pixels().Height(); ++y) {
        for (int x = 0; x < clipart.Pixels().Width(); ++x) {
            if (clipart.Point(x, y) != white) continue;
            const auto colour = static_cast<Colour>(sizes.size() + 1);
            clipart.FillColor = colour;
            ExtFloodFill(clipart.hDC(), x, y, white, FLOODFILLSURFACE);
            sizes.push_back(Count(clipart, colour));
        }
    }
    return sizes;
}

/// Which regions have run into each other in a smaller copy of a clipart with coloured regions: for each the
/// first one of its group.
std::vector<std::size_t> RegionsJoined(const Surface& small, std::size_t count) {
    std::vector<std::size_t> group(count);
    for (std::size_t region = 0; region < count; ++region)
        group[region] = region;
    const auto first = [&group](Colour colour) {
        auto region = static_cast<std::size_t>(colour - 1);
        while (group[region] != region)
            region = group[region];
        return region;
    };
    const auto touch = [&](Colour one, Colour other) {
        if (one == black || other == black || one == other) return;
        const std::size_t a = first(one), b = first(other);
        group[std::max(a, b)] = std::min(a, b);
    };
    const Image picture = small.Image();
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (x > 0) touch(picture.At(x - 1, y), picture.At(x, y));
            if (y > 0) touch(picture.At(x, y - 1), picture.At(x, y));
        }
    }
    for (std::size_t region = 0; region < count; ++region)
        group[region] = first(static_cast<Colour>(region + 1));
    return group;
}

// The sheets are held in shares, so that a slow machine runs them side by side.
constexpr std::size_t shares = 8;
class DeliveredClipartsShare : public testing::TestWithParam<std::size_t> {};
INSTANTIATE_TEST_SUITE_P(All, DeliveredClipartsShare, testing::Range(std::size_t{0}, shares));

// The dialog makes a clipart smaller by leaving out rows and columns. Where a line is too thin two regions
// then touch, and a fill of the one runs out into the other.
TEST_P(DeliveredClipartsShare, StaysClosedAtAllSizes) {
    constexpr int cellWidth = 330, cellHeight = 360, cells = 5, narrowest = 110, smallestRegion = 60;
    constexpr double heightToWidth = 1.09;
    const auto files = ListFiles(data / "Cliparts", "*.art");
    for (std::size_t place = GetParam(); place < files.size(); place += shares) {
        const std::string& file = files[place];
        const Image sheet = Load(data / "Cliparts" / file);
        for (int cell = 0; cell < cells; ++cell) {
            Cut clipart(sheet, cell * cellWidth, 0, cellWidth, cellHeight);
            const std::vector<std::ptrdiff_t> sizes = ColourRegions(clipart);
            for (int width = narrowest; width <= cellWidth; width += 2) {
                const auto height = static_cast<int>(std::nearbyint(width * heightToWidth));
                Surface small(fonts, width, height);
                small.PaintPicture(clipart.Image(),
                                   {0, 0, static_cast<double>(width), static_cast<double>(height)},
                                   {0, 0, cellWidth, cellHeight});
                const std::vector<std::size_t> group = RegionsJoined(small, sizes.size());
                std::set<std::size_t> groups;
                for (std::size_t region = 0; region < sizes.size(); ++region) {
                    if (sizes[region] <= smallestRegion) continue;
                    EXPECT_TRUE(groups.insert(group[region]).second)
                        << file << ", cell " << cell + 1 << ", " << width << " wide: a region of "
                        << sizes[region] << " pixels is open";
                }
            }
        }
    }
}

constexpr int backSide = 150, backColumns = 4;

std::vector<std::string> NamesOfBacks(int collection) {
    const fs::path file = data / "Data" / ("Back-" + std::to_string(collection) + ".txt");
    std::vector<std::string> names = Lines(FromCodePage(TextOf(file)));
    std::erase_if(names, [](const std::string& name) { return TrimBlanks(name).empty(); });
    return names;
}

class DeliveredBacks : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Collections, DeliveredBacks, testing::Values(1, 2));

TEST_P(DeliveredBacks, HaveAPictureForEveryName) {
    constexpr int side = backSide, columns = backColumns;
    constexpr std::array<std::ptrdiff_t, 2> least{24, 12};
    const std::string name = "Back-" + std::to_string(GetParam());
    const Image picture = Load(data / "Data" / (name + ".bak"));
    ASSERT_EQ(picture.Width(), columns * side);
    ASSERT_EQ(picture.Height() % side, 0);
    const std::vector<std::string> lines = NamesOfBacks(GetParam());
    EXPECT_GE(std::ssize(lines), least.at(static_cast<std::size_t>(GetParam() - 1)));
    EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()).size(), lines.size()) << "a name twice";
    for (int cell = 0; cell < columns * picture.Height() / side; ++cell) {
        const Cut back(picture, cell % columns * side, cell / columns * side, side, side);
        const bool empty = Count(back, white) == side * side;
        EXPECT_EQ(empty, cell >= std::ssize(lines)) << "cell " << cell + 1;
    }
}

struct PlaceOnEarth {
    const char* name;
    double longitude, latitude;
    bool land;
};

void PrintTo(const PlaceOnEarth& place, std::ostream* out) {
    *out << place.name;
}

class DeliveredWorldMap : public testing::TestWithParam<PlaceOnEarth> {};
INSTANTIATE_TEST_SUITE_P(
    Places, DeliveredWorldMap,
    testing::Values(PlaceOnEarth{"Europe", 24, 50, true}, PlaceOnEarth{"Africa", 20, 12, true},
                    PlaceOnEarth{"Asia", 85, 50, true}, PlaceOnEarth{"EasternAsia", 110, 32, true},
                    PlaceOnEarth{"NorthAmerica", -100, 45, true},
                    PlaceOnEarth{"SouthAmerica", -58, -12, true}, PlaceOnEarth{"Australia", 134, -24, true},
                    PlaceOnEarth{"Atlantic", -35, 25, false}, PlaceOnEarth{"Pacific", -140, 5, false},
                    PlaceOnEarth{"Indian", 80, -25, false}, PlaceOnEarth{"Southern", -120, -48, false},
                    PlaceOnEarth{"Arctic", -5, 74, false}),
    [](const auto& place) { return place.param.name; });

// The map is equirectangular with true shapes at 40 degrees; its date line lies 68 pixels from the middle of
// the tag, its equator 3 above it.
TEST_P(DeliveredWorldMap, HasLandAndSeaInTheirPlaces) {
    constexpr double toDateLine = 68, equator = backSide / 2.0 - 3, trueShape = 0.766;
    const PlaceOnEarth& place = GetParam();
    const std::vector<std::string> names = NamesOfBacks(1);
    const auto cell = static_cast<int>(std::ranges::find(names, "World map") - names.begin());
    ASSERT_LT(cell, std::ssize(names));
    const Image picture = Load(data / "Data/Back-1.bak");
    const double x = backSide / 2.0 + place.longitude / 180 * toDateLine;
    const double y = equator - place.latitude / 180 * toDateLine / trueShape;
    const Colour colour = picture.At(cell % backColumns * backSide + static_cast<int>(x),
                                     cell / backColumns * backSide + static_cast<int>(y));
    // The sea is blue enamel, the land has no colour.
    EXPECT_EQ(Blue(colour) - Red(colour) < 50, place.land);
}

TEST(DeliveredGlitterChart, IsLargerThanItsFrame) {
    const Image chart = Load(data / "Data/Glitter.bak");
    EXPECT_GT(chart.Width(), 600);
    EXPECT_GT(chart.Height(), 500);
}

TEST(DeliveredImages, AreOfAllKindsAndSizes) {
    constexpr int largestTurned = 175;
    const auto files = ListFiles(data / "Images", "*.bmp;*.jpg;*.gif");
    EXPECT_GE(files.size(), 25U);
    for (const char* kind : {"*.bmp", "*.jpg", "*.gif"})
        EXPECT_FALSE(ListFiles(data / "Images", kind).empty()) << kind;
    std::ptrdiff_t large = 0;
    for (const std::string& file : files) {
        const Image picture = Load(data / "Images" / file);
        EXPECT_FALSE(picture.Empty()) << file;
        EXPECT_LE(std::max(picture.Width(), picture.Height()), canvas) << file;
        large += std::max(picture.Width(), picture.Height()) > largestTurned;
    }
    EXPECT_GT(large, 0);
    EXPECT_LT(large, std::ssize(files));
}

TEST(DeliveredFonts, HaveASymbolOnEveryCode) {
    constexpr int first = 33, last = 126;
    QtFontEngine letters;
    const auto files = ListFiles(data / "Fonts", "*.ttf");
    EXPECT_GE(files.size(), 6U);
    std::set<std::string> families;
    std::map<std::string, std::string> places;
    for (const std::string& file : files) {
        const std::string family = letters.AddFontFile(data / "Fonts" / file);
        EXPECT_FALSE(family.empty()) << file;
        families.insert(family);
        std::set<std::string> symbols;
        for (int code = first; code <= last; ++code) {
            const TextMask mask = letters.Render({.name = family, .size = 40},
                                                 std::string(1, static_cast<char>(code)), Edges::Crisp);
            EXPECT_TRUE(std::ranges::count(mask.coverage, 255) > 0) << file << ", code " << code;
            const std::string symbol(mask.coverage.begin(), mask.coverage.end());
            symbols.insert(symbol);
            const auto [other, fresh] = places.try_emplace(symbol, file);
            EXPECT_TRUE(fresh || other->second == file)
                << file << ", code " << code << " is in " << other->second;
        }
        // The box for a missing symbol would come again and again.
        EXPECT_GE(symbols.size(), static_cast<std::size_t>(last - first + 1) - 2) << file;
    }
    EXPECT_EQ(families.size(), files.size()) << "two files of one family";
    EXPECT_FALSE(ListFiles(data / "Fonts", "*.txt").empty()) << "the terms of the fonts";
}

TEST(DeliveredHelp, HasADocumentForEveryEntryOfTheMenu) {
    for (const char* file : {"English.pdf", "Nederlands.pdf", "Beeldscherm.pdf"})
        EXPECT_TRUE(TextOf(data / "Help" / file).starts_with("%PDF-")) << file;
    const std::string page = TextOf(data / "Help/PMS-Colors.htm");
    std::ptrdiff_t missing = 0;
    for (const std::string& line : Lines(TextOf(data / "Data/PMS-Colors.txt")))
        missing += !line.empty() && page.find(line.substr(0, line.find(','))) == std::string::npos;
    EXPECT_EQ(missing, 0);
    EXPECT_EQ(page.find("http"), std::string::npos) << "it can be read without a network";
}

TEST(DeliveredDesigns, AreFinishedAndHaveNotes) {
    constexpr int width = 700, rows = 10, firstRow = 70, rowHeight = 25, swatch = 30;
    const auto files = ListFiles(data / "Ontwerpen", "*.pat");
    EXPECT_GE(files.size(), 8U);
    for (const std::string& file : files) {
        SCOPED_TRACE(file);
        const Image picture = Load(data / "Ontwerpen" / file);
        ASSERT_EQ(picture.Width(), width);
        ASSERT_EQ(picture.Height(), canvas);
        // The corners lie outside the tag, its edge carries a border, and the middle is coloured.
        EXPECT_EQ(picture.At(0, 0), white);
        EXPECT_EQ(picture.At(canvas - 1, canvas - 1), white);
        EXPECT_NE(picture.At(canvas / 2, 13), white);
        EXPECT_NE(picture.At(canvas / 2, canvas - 13), white);
        // At least three rows of the side panel have a colour; grey stands for none.
        const Colour none = RGB(195, 195, 195);
        int coloured = 0;
        for (int row = 0; row < rows; ++row)
            coloured += picture.At(canvas + swatch, firstRow + row * rowHeight) != none;
        EXPECT_GE(coloured, 3);
        const std::string notes = TextOf((data / "Ontwerpen" / file).replace_extension(".txt"));
        EXPECT_GE(Lines(notes).size(), 4U);
        EXPECT_TRUE(fs::exists(fs::path(COINLET_DESIGNS) / fs::path(file).replace_extension(".play")));
    }
}

TEST(DeliveredData, IsLightEnoughToCarry) {
    constexpr std::uintmax_t most = 25'000'000;
    std::uintmax_t bytes = 0;
    for (const auto& entry : fs::recursive_directory_iterator(data))
        if (entry.is_regular_file()) bytes += entry.file_size();
    EXPECT_LT(bytes, most);
}

}  // namespace
}  // namespace coinlet
