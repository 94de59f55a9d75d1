// Texts as masks: what is ink, where it falls, and how much room it takes.
#include "media/qt_font_engine.h"

#include "support/symbol_font.h"
#include "support/temporary_folder.h"

#include <QFontDatabase>
#include <QStringList>

#include <malloc.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace coinlet {
namespace {

constexpr double huge = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

FontSpec Arial(double points) {
    return {.name = "Arial", .size = points};
}

std::set<int> Levels(const TextMask& mask) {
    return {mask.coverage.begin(), mask.coverage.end()};
}

double Ink(const TextMask& mask) {
    double ink = 0;
    for (const auto coverage : mask.coverage)
        ink += coverage / 255.0;
    return ink;
}

bool Same(const TextMask& a, const TextMask& b) {
    return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height &&
           a.coverage == b.coverage;
}

/// The coverage of a pixel, counted from the point that the text is drawn at; 0 beside the mask.
int CoverageAt(const TextMask& mask, int x, int y) {
    const int column = x - mask.left, row = y - mask.top;
    const bool inside = column >= 0 && column < mask.width && row >= 0 && row < mask.height;
    return inside ? mask.coverage[static_cast<std::size_t>(row) * static_cast<std::size_t>(mask.width) +
                                  static_cast<std::size_t>(column)]
                  : 0;
}

/// The mask is as large as it says, and its outer rows and columns have ink.
void ExpectTight(const TextMask& mask) {
    ASSERT_GT(mask.width, 0);
    ASSERT_GT(mask.height, 0);
    const auto width = static_cast<std::size_t>(mask.width), height = static_cast<std::size_t>(mask.height);
    ASSERT_EQ(mask.coverage.size(), width * height);
    bool top = false, bottom = false, left = false, right = false;
    for (std::size_t x = 0; x < width; ++x) {
        top = top || mask.coverage[x] != 0;
        bottom = bottom || mask.coverage[(height - 1) * width + x] != 0;
    }
    for (std::size_t y = 0; y < height; ++y) {
        left = left || mask.coverage[y * width] != 0;
        right = right || mask.coverage[y * width + width - 1] != 0;
    }
    EXPECT_TRUE(top && bottom && left && right);
}

TEST(QtFontEngine, MeasuresTheEmptyTextAsALineWithoutWidth) {
    const QtFontEngine fonts;
    for (const double points : {8.25, 12.0, 60.0}) {
        const auto extent = fonts.Measure(Arial(points), "");
        EXPECT_EQ(extent.width, 0);
        EXPECT_GT(extent.height, 0);
        EXPECT_EQ(extent.height, fonts.Measure(Arial(points), "any text").height);
    }
}

TEST(QtFontEngine, WidthGrowsWithTextAndSize) {
    const QtFontEngine fonts;
    std::string text;
    int before = 0;
    for (const char letter : std::string("Make your choice...")) {
        text += letter;
        const int width = fonts.Measure(Arial(8.25), text).width;
        EXPECT_GT(width, before) << text;
        before = width;
    }
    EXPECT_GT(fonts.Measure(Arial(12), text).width, before);
    EXPECT_GT(fonts.Measure(Arial(12), text).height, fonts.Measure(Arial(8.25), text).height);
}

TEST(QtFontEngine, WidthIsTheSumOfTheLetters) {
    const QtFontEngine fonts;
    for (const double points : {8.25, 10.0, 14.0, 60.0}) {
        const std::string text = "AVATAR To. 1 2 3";
        int sum = 0;
        for (const char letter : text)
            sum += fonts.Measure(Arial(points), std::string(1, letter)).width;
        EXPECT_EQ(fonts.Measure(Arial(points), text).width, sum) << points;
    }
}

TEST(QtFontEngine, APointIsFourThirdsOfAPixel) {
    // The square of this font is half an em wide; an em of 60 points is 80 pixels.
    const test::TemporaryFolder folder;
    const Bytes file = test::SymbolFont("Coinlet Squares");
    QtFontEngine fonts;
    const std::string name =
        fonts.AddFontFile(folder.Write("squares.ttf", std::string(file.begin(), file.end())));
    ASSERT_EQ(name, "Coinlet Squares");
    const TextMask mask = fonts.Render({.name = name, .size = 60}, "A", Edges::Crisp);
    EXPECT_EQ(mask.left, 20);
    EXPECT_EQ(mask.width, 40);
    EXPECT_EQ(mask.height, 40);
    EXPECT_EQ(mask.top, 24);  // The ascent is 64 pixels, the square stands on the base line.
    EXPECT_EQ(Ink(mask), 1600);
    const auto extent = fonts.Measure({.name = name, .size = 60}, "AAA");
    EXPECT_EQ(extent.width, 240);
    EXPECT_EQ(extent.height, 80);
}

TEST(QtFontEngine, SymbolFontsPrintAllTheirCharacters) {
    const test::TemporaryFolder folder;
    const Bytes file = test::SymbolFont("Coinlet Pictograms");
    QtFontEngine fonts;
    const std::string name =
        fonts.AddFontFile(folder.Write("pictograms.ttf", std::string(file.begin(), file.end())));
    ASSERT_EQ(name, "Coinlet Pictograms");
    std::vector<std::string> letters{"\xC3\xA9", "\xE2\x82\xAC", "\xC5\xB8"};  // bytes 0xE9, 0x80 and 0x9F
    for (char letter = '!'; letter <= '~'; ++letter)
        letters.emplace_back(1, letter);
    for (const auto& letter : letters) {
        const TextMask mask = fonts.Render({.name = name, .size = 15}, letter, Edges::Crisp);
        EXPECT_EQ(mask.width, 10) << letter;
        EXPECT_EQ(Ink(mask), 100) << letter;
    }
    const auto families = fonts.Families();
    EXPECT_EQ(std::count(families.begin(), families.end(), name), 1);
}

TEST(QtFontEngine, CrispMasksHaveNoHalfTones) {
    const QtFontEngine fonts;
    for (const double points : {4.0, 8.25, 20.0, 150.0, 400.0}) {
        for (const double angle : {0.0, 33.0, 90.0}) {
            EXPECT_EQ(Levels(fonts.Render(Arial(points), "S&8", Edges::Crisp, angle)),
                      (std::set<int>{0, 255}))
                << points << " points, " << angle << " degrees";
        }
    }
}

TEST(QtFontEngine, SmoothMasksHaveHalfTones) {
    const QtFontEngine fonts;
    const TextMask smooth = fonts.Render(Arial(20), "S&8", Edges::Smooth);
    EXPECT_GT(Levels(smooth).size(), 8U);
    EXPECT_EQ(*Levels(smooth).rbegin(), 255);
    const double crispInk = Ink(fonts.Render(Arial(20), "S&8", Edges::Crisp));
    EXPECT_NEAR(Ink(smooth), crispInk, crispInk / 4);
}

TEST(QtFontEngine, MasksAreTightAndLieInTheCell) {
    const QtFontEngine fonts;
    for (const auto edges : {Edges::Crisp, Edges::Smooth}) {
        const TextMask mask = fonts.Render(Arial(24), "Hxn", edges);
        ExpectTight(mask);
        const auto extent = fonts.Measure(Arial(24), "Hxn");
        EXPECT_GE(mask.left, 0);
        EXPECT_GE(mask.top, 0);
        EXPECT_LE(mask.left + mask.width, extent.width);
        EXPECT_LE(mask.top + mask.height, extent.height);
    }
}

TEST(QtFontEngine, TurnsCounterClockwiseAboutTheTopLeftCorner) {
    const QtFontEngine fonts;
    const TextMask flat = fonts.Render(Arial(30), "Hxn", Edges::Smooth);
    const auto near = [](int value, int expected) { return std::abs(value - expected) <= 2; };
    const int right = flat.left + flat.width, bottom = flat.top + flat.height;

    const TextMask upward = fonts.Render(Arial(30), "Hxn", Edges::Smooth, 90);
    ExpectTight(upward);
    EXPECT_TRUE(near(upward.width, flat.height) && near(upward.height, flat.width));
    EXPECT_TRUE(near(upward.left, flat.top) && near(upward.top, -right));

    const TextMask over = fonts.Render(Arial(30), "Hxn", Edges::Smooth, 180);
    EXPECT_TRUE(near(over.left, -right) && near(over.top, -bottom));

    const TextMask downward = fonts.Render(Arial(30), "Hxn", Edges::Smooth, 270);
    EXPECT_TRUE(near(downward.left, -bottom) && near(downward.top, flat.left));

    EXPECT_TRUE(Same(fonts.Render(Arial(30), "Hxn", Edges::Smooth, -90), downward));
    EXPECT_TRUE(Same(fonts.Render(Arial(30), "Hxn", Edges::Smooth, 720), flat));
    EXPECT_TRUE(Same(fonts.Render(Arial(30), "Hxn", Edges::Smooth, nan), flat));
    EXPECT_TRUE(Same(fonts.Render(Arial(30), "Hxn", Edges::Smooth, huge), flat));
}

TEST(QtFontEngine, TextWithoutInkHasAMaskOfNoSize) {
    const QtFontEngine fonts;
    for (const char* text : {"", " ", "   ", "\r\n", "\t", "\x01\x7F"}) {
        const TextMask mask = fonts.Render(Arial(12), text, Edges::Crisp);
        EXPECT_EQ(mask.width, 0) << text;
        EXPECT_EQ(mask.height, 0) << text;
        EXPECT_TRUE(mask.coverage.empty()) << text;
    }
    EXPECT_GT(fonts.Measure(Arial(12), " ").width, 0);
}

TEST(QtFontEngine, ControlCharactersDrawNothing) {
    const QtFontEngine fonts;
    const std::string_view text(
        "a\0b\r\nc\t\x1B\xC2\x85"
        "d\xE2\x80\xA8",
        14);
    EXPECT_TRUE(
        Same(fonts.Render(Arial(12), text, Edges::Crisp), fonts.Render(Arial(12), "abcd", Edges::Crisp)));
    EXPECT_EQ(fonts.Measure(Arial(12), text).width, fonts.Measure(Arial(12), "abcd").width);
}

TEST(QtFontEngine, PrintsAccentsAndForeignSignsAndBrokenBytes) {
    const QtFontEngine fonts;
    for (const char* text :
         {"\xC3\xA9\xC3\x89", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xFF\xFE", "\xE6\xBC\xA2"}) {
        const TextMask mask = fonts.Render(Arial(20), text, Edges::Crisp);
        ExpectTight(mask);
        EXPECT_GT(fonts.Measure(Arial(20), text).width, 0) << text;
    }
    const TextMask accented = fonts.Render(Arial(40), "\xC3\xA9", Edges::Crisp);
    EXPECT_GT(accented.height, fonts.Render(Arial(40), "e", Edges::Crisp).height);
}

TEST(QtFontEngine, UnknownFamiliesGetASubstitute) {
    const QtFontEngine fonts;
    for (const char* name : {"No Such Font", "", "a, b", "[]"}) {
        const FontSpec font{.name = name, .size = 12};
        EXPECT_GT(fonts.Measure(font, "text").width, 0) << name;
        ExpectTight(fonts.Render(font, "text", Edges::Crisp));
    }
}

TEST(QtFontEngine, SizesThatCannotBeCountAsTheUsualOne) {
    const QtFontEngine fonts;
    const TextMask usual = fonts.Render(Arial(8.25), "text", Edges::Crisp);
    for (const double size : {0.0, -0.0, -5.0, -huge, nan}) {
        EXPECT_EQ(fonts.Measure(Arial(size), "text").width, fonts.Measure(Arial(8.25), "text").width) << size;
        EXPECT_TRUE(Same(fonts.Render(Arial(size), "text", Edges::Crisp), usual)) << size;
    }
}

TEST(QtFontEngine, AbsurdSizesAndLengthsStayWithinTheLargestPicture) {
    const QtFontEngine fonts;
    for (const double size : {1e-300, 0.01, 3000.0, 1e9, huge}) {
        const TextMask mask = fonts.Render(Arial(size), "Wide", Edges::Crisp, 45);
        EXPECT_LE(mask.width, 16384) << size;
        EXPECT_LE(mask.height, 16384) << size;
        EXPECT_GT(fonts.Measure(Arial(size), "Wide").width, 0) << size;
    }
    const std::string longText(5000, 'W');
    EXPECT_LE(fonts.Render(Arial(20), longText, Edges::Crisp).width, 16384);
}

TEST(QtFontEngine, StylesChangeTheLetters) {
    const QtFontEngine fonts;
    FontSpec font = Arial(30);
    const TextMask plain = fonts.Render(font, "Tag", Edges::Crisp);
    font.bold = true;
    EXPECT_GT(Ink(fonts.Render(font, "Tag", Edges::Crisp)), Ink(plain) * 1.1);
    font = Arial(30);
    font.italic = true;
    EXPECT_FALSE(Same(fonts.Render(font, "Tag", Edges::Crisp), plain));
    for (const auto style : {&FontSpec::underline, &FontSpec::strikethrough}) {
        font = Arial(30);
        font.*style = true;
        const TextMask lined = fonts.Render(font, "Tag", Edges::Crisp);
        EXPECT_GT(Ink(lined), Ink(plain));
        // The line is as long as the text is wide.
        EXPECT_GE(lined.width, fonts.Measure(font, "Tag").width - 1);
    }
}

TEST(QtFontEngine, RepeatsWhatItDrew) {
    const QtFontEngine fonts;
    const TextMask first = fonts.Render(Arial(12), "Export", Edges::Smooth, 10);
    for (int i = 0; i < 600; ++i)
        fonts.Render(Arial(12), std::to_string(i), Edges::Smooth, 10);
    EXPECT_TRUE(Same(fonts.Render(Arial(12), "Export", Edges::Smooth, 10), first));
    EXPECT_TRUE(Same(fonts.Render(Arial(12), "Export", Edges::Smooth, 10), first));
    EXPECT_FALSE(Same(fonts.Render(Arial(12), "Export", Edges::Crisp, 10), first));
    EXPECT_FALSE(Same(fonts.Render(Arial(12), "Export", Edges::Smooth, 11), first));
}

TEST(QtFontEngine, AnAddedFontTakesTheNameFromItsSubstitute) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const FontSpec font{.name = "Coinlet Late Font", .size = 15};
    const TextMask before = fonts.Render(font, "A", Edges::Crisp);
    const Bytes file = test::SymbolFont(font.name);
    const auto path = folder.Write("late.ttf", std::string(file.begin(), file.end()));
    EXPECT_EQ(fonts.AddFontFile(path), font.name);
    const TextMask after = fonts.Render(font, "A", Edges::Crisp);
    EXPECT_FALSE(Same(after, before));
    EXPECT_EQ(Ink(after), 100);
    EXPECT_EQ(fonts.AddFontFile(path), font.name);
    const auto families = fonts.Families();
    EXPECT_EQ(std::count(families.begin(), families.end(), font.name), 1);
}

fs::path Write(const test::TemporaryFolder& folder, const std::string& name, const Bytes& file) {
    return folder.Write(name, std::string(file.begin(), file.end()));
}

TEST(QtFontEngine, AFileOfTheSameFamilyTakesTheNameFromAnInstalledFont) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const auto installed = fonts.Families();
    ASSERT_FALSE(installed.empty());
    for (const std::string& family : {installed.front(), installed.back(), std::string("Liberation Sans")}) {
        const FontSpec font{.name = family, .size = 15};
        EXPECT_EQ(fonts.AddFontFile(Write(folder, "same.ttf", test::SymbolFont(family))), family);
        for (const char* letter : {"A", "z", "!"}) {
            EXPECT_EQ(Ink(fonts.Render(font, letter, Edges::Crisp)), 100) << family;
            EXPECT_EQ(fonts.Measure(font, letter).width, 20) << family;
        }
        const auto families = fonts.Families();
        EXPECT_EQ(std::count(families.begin(), families.end(), family), 1);
    }
}

TEST(QtFontEngine, CaptionsKeepTheirLettersWhateverAFileCallsItself) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const FontEngine& captions = fonts.Installed();
    const FontSpec font{.name = "Arial", .size = 15};
    const TextMask before = fonts.Render(font, "Fill", Edges::Crisp);
    const int width = fonts.Measure(font, "Fill").width;
    EXPECT_EQ(fonts.KnownAs("Arial"), "Arial");
    ASSERT_EQ(fonts.AddFontFile(Write(folder, "same.ttf", test::SymbolFont("Arial"))), "Arial");
    EXPECT_FALSE(Same(fonts.Render(font, "Fill", Edges::Crisp), before));
    EXPECT_NE(fonts.KnownAs("arial"), "arial");
    EXPECT_TRUE(Same(captions.Render(font, "Fill", Edges::Crisp), before));
    EXPECT_EQ(captions.Measure(font, "Fill").width, width);
    EXPECT_EQ(&fonts.Installed(), &captions);
}

TEST(QtFontEngine, OfTwoFilesOfOneFamilyTheOneAddedLastIsUsed) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const Bytes squares = test::SymbolFont("Coinlet Twins");
    // The right edge of the square: 500 units from the left one, from now on 250.
    Bytes halves = squares;
    const Bytes run{1, 0xF4, 0, 0};  // 500, 0
    const auto place = std::search(halves.begin(), halves.end(), run.begin(), run.end());
    ASSERT_NE(place, halves.end());
    place[0] = 0, place[1] = 250;
    const auto first = Write(folder, "1.ttf", squares), second = Write(folder, "2.ttf", halves);
    const FontSpec font{.name = "Coinlet Twins", .size = 15};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(fonts.AddFontFile(first), font.name);
        EXPECT_EQ(fonts.Render(font, "A", Edges::Crisp).width, 10);
        EXPECT_EQ(fonts.AddFontFile(second), font.name);
        EXPECT_EQ(fonts.Render(font, "A", Edges::Crisp).width, 5);
    }
    // Names of families have no case.
    EXPECT_EQ(fonts.Render({.name = "COINLET twins", .size = 15}, "A", Edges::Crisp).width, 5);
    // What stands in the file now counts.
    Write(folder, "1.ttf", halves);
    EXPECT_EQ(fonts.AddFontFile(first), font.name);
    EXPECT_EQ(fonts.Render(font, "A", Edges::Crisp).width, 5);
}

TEST(QtFontEngine, AFontOfAFileHasNoLettersButItsOwn) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const std::string name = fonts.AddFontFile(Write(folder, "f.ttf", test::SymbolFont("Coinlet Few")));
    ASSERT_EQ(name, "Coinlet Few");
    const FontSpec font{.name = name, .size = 15};
    // The blank isn't in it; the sign for what is missing is empty, and one em wide.
    EXPECT_EQ(Ink(fonts.Render(font, "   ", Edges::Crisp)), 0);
    EXPECT_EQ(fonts.Measure(font, "   ").width, 60);
}

TEST(QtFontEngine, LettersThatAFontOfAFileLacksAreNotTakenFromAnother) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    Bytes file = test::SymbolFont("Coinlet Latin");
    // Its map of characters becomes one of Unicode, and its squares Latin letters.
    const auto change = [&file](std::array<std::uint8_t, 8> from, std::array<std::uint8_t, 8> to) {
        const auto place = std::search(file.begin(), file.end(), from.begin(), from.end());
        ASSERT_NE(place, file.end());
        std::copy(to.begin(), to.end(), place);
    };
    change({0, 0, 0, 1, 0, 3, 0, 0}, {0, 0, 0, 1, 0, 3, 0, 1});
    change({0xF0, 0xFF, 0xFF, 0xFF, 0, 0, 0xF0, 0x21}, {0x00, 0xFF, 0xFF, 0xFF, 0, 0, 0x00, 0x21});
    const std::string name = fonts.AddFontFile(Write(folder, "f.ttf", file));
    ASSERT_EQ(name, "Coinlet Latin");
    const FontSpec font{.name = name, .size = 15};
    EXPECT_EQ(Ink(fonts.Render(font, "A", Edges::Crisp)), 100);
    ASSERT_GT(Ink(fonts.Render({.name = "Liberation Sans", .size = 15}, "Ж", Edges::Crisp)), 0);
    EXPECT_EQ(Ink(fonts.Render(font, "Ж", Edges::Crisp)), 0);
    EXPECT_EQ(fonts.Measure(font, "Ж").width, 20);
}

TEST(QtFontEngine, OfLargeCrispLettersWhatIsCoveredByHalfIsInk) {
    QtFontEngine fonts;
    const FontSpec font = Arial(1500);
    const TextMask smooth = fonts.Render(font, "o", Edges::Smooth, 30);
    const TextMask crisp = fonts.Render(font, "o", Edges::Crisp, 30);
    constexpr std::uint8_t half = 128;  // of 255, rounded
    int halves = 0;
    for (int y = 0; y < smooth.height; ++y) {
        for (int x = 0; x < smooth.width; ++x) {
            const int coverage = CoverageAt(smooth, smooth.left + x, smooth.top + y);
            ASSERT_EQ(CoverageAt(crisp, smooth.left + x, smooth.top + y), coverage >= half ? 255 : 0)
                << x << ", " << y;
            halves += coverage == half ? 1 : 0;
        }
    }
    EXPECT_GT(halves, 0);
}

TEST(QtFontEngine, AddingTheSameFontTakesNoMemory) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    Bytes file = test::SymbolFont("Coinlet Again");
    file.resize(std::size_t{100} << 10);  // As large as fonts are; nobody reads the end.
    const auto path = Write(folder, "again.ttf", file);
    const auto show = [&] {
        EXPECT_EQ(fonts.AddFontFile(path), "Coinlet Again");
        EXPECT_EQ(Ink(fonts.Render({.name = "Coinlet Again", .size = 15}, "A", Edges::Crisp)), 100);
    };
    for (int i = 0; i < 20; ++i)
        show();
    const auto before = ::mallinfo2().uordblks;
    constexpr std::size_t times = 1000;
    for (std::size_t i = 0; i < times; ++i)
        show();
    EXPECT_LT(::mallinfo2().uordblks, before + times * 50) << "bytes";
}

TEST(QtFontEngine, ALineIsNeverLessThanNothingHigh) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    Bytes file = test::SymbolFont("Coinlet Upside");
    // The table with the measures of a line is said to begin a byte behind its beginning, so that others are
    // read for them: the line ends far above its beginning.
    const Bytes tag{'O', 'S', '/', '2'};
    const auto entry = std::search(file.begin(), file.end(), tag.begin(), tag.end());
    ASSERT_NE(entry, file.end());
    ++entry[11];
    ASSERT_EQ(fonts.AddFontFile(Write(folder, "f.ttf", file)), "Coinlet Upside");
    const auto extent = fonts.Measure({.name = "Coinlet Upside", .size = 15}, "A");
    EXPECT_EQ(extent.height, 0);
    EXPECT_EQ(extent.width, 20);
}

TEST(QtFontEngine, AddsNoFontOfMoreThan128Mebibytes) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    const FontSpec font{.name = "Coinlet Long Font", .size = 15};
    const auto path = Write(folder, "long.ttf", test::SymbolFont(font.name));
    fs::resize_file(path, (std::uintmax_t{128} << 20) + 1);
    EXPECT_EQ(fonts.AddFontFile(path), "");
    fs::resize_file(path, std::uintmax_t{1} << 20);
    EXPECT_EQ(fonts.AddFontFile(path), font.name);
}

TEST(QtFontEngine, AddsNothingThatIsNoFont) {
    const test::TemporaryFolder folder;
    QtFontEngine fonts;
    fs::create_directory(folder / "folder.ttf");
    ASSERT_EQ(::mkfifo((folder / "pipe.ttf").c_str(), 0600), 0);
    folder.Write("text.ttf", "This is a text.");
    folder.Write("empty.ttf", "");
    const Bytes file = test::SymbolFont("Coinlet Cut Font");
    folder.Write("cut.ttf", std::string(file.begin(), file.begin() + 100));
    for (const char* name : {"folder.ttf", "pipe.ttf", "text.ttf", "empty.ttf", "cut.ttf", "missing.ttf"})
        EXPECT_EQ(fonts.AddFontFile(folder / name), "") << name;
}

TEST(QtFontEngine, ArialIsOffered) {
    const QtFontEngine fonts;
    const auto families = fonts.Families();
    EXPECT_EQ(std::count(families.begin(), families.end(), "Arial"), 1);
}

TEST(QtFontEngine, AFamilyOfSeveralFoundriesIsOfferedOnce) {
    const QtFontEngine fonts;
    std::set<std::string> expected{"Arial"};
    for (const QString& name : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(name)) expected.insert(name.section(" [", 0, 0).toStdString());
    const auto families = fonts.Families();
    EXPECT_EQ(std::set<std::string>(families.begin(), families.end()), expected);
    EXPECT_EQ(families.size(), expected.size());
}

TEST(QtFontEngine, FamiliesAreSorted) {
    const QtFontEngine fonts;
    const auto families = fonts.Families();
    ASSERT_FALSE(families.empty());
    EXPECT_TRUE(
        std::is_sorted(families.begin(), families.end(), [](const std::string& a, const std::string& b) {
            return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
                return std::tolower(static_cast<unsigned char>(x)) <
                       std::tolower(static_cast<unsigned char>(y));
            });
        }));
}

TEST(LettersSeenInPart, AreTheSameWhereTheyAreSeen) {
    for (const double angle : {0.0, 37.0, -90.0}) {
        for (const Edges edges : {Edges::Crisp, Edges::Smooth}) {
            const QtFontEngine whole, inPart;
            const TextMask all = whole.Render(Arial(1500), "g&", edges, angle);
            ASSERT_GT(Ink(all), 0);
            // About the middle of the ink, then a little beside it, then at its edge.
            const int x = all.left + all.width / 2, y = all.top + all.height / 2;
            for (const auto& [left, top] :
                 {std::pair{x, y}, std::pair{x + 2, y - 1}, std::pair{x - 60, y + 70},
                  std::pair{all.left - 50, y}, std::pair{x, all.top - 50}}) {
                const TextWindow window{left, top, left + 100, top + 90};
                const TextMask seen = inPart.RenderSeen(Arial(1500), "g&", edges, angle, window);
                EXPECT_LT(seen.coverage.size(), all.coverage.size() / 4);
                int differing = 0;
                for (int row = window.top; row < window.bottom; ++row) {
                    for (int column = window.left; column < window.right; ++column)
                        differing += CoverageAt(seen, column, row) != CoverageAt(all, column, row) ? 1 : 0;
                }
                EXPECT_EQ(differing, 0) << angle << " at " << left << " " << top;
            }
        }
    }
}

TEST(LettersSeenInPart, AreWholeWhereTheyAreOfUsualSize) {
    const QtFontEngine fonts;
    const TextMask whole = fonts.Render(Arial(40), "Hxn", Edges::Crisp);
    const QtFontEngine others;
    EXPECT_TRUE(Same(others.RenderSeen(Arial(40), "Hxn", Edges::Crisp, 0, {0, 0, 1, 1}), whole));
}

TEST(LettersSeenInPart, HaveNoInkFarFromTheWindow) {
    const QtFontEngine fonts;
    constexpr int most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();
    EXPECT_EQ(Ink(fonts.RenderSeen(Arial(9999), "W", Edges::Crisp, 0, {most - 5, 0, most, 500})), 0);
    EXPECT_EQ(Ink(fonts.RenderSeen(Arial(9999), "W", Edges::Crisp, 0, {0, least, 500, least + 500})), 0);
    EXPECT_EQ(Ink(fonts.RenderSeen(Arial(9999), "W", Edges::Crisp, 0, {9, 9, 9, 9})), 0);
}

TEST(LettersSeenInPart, ServeAgainForWhatIsSeenCloseBy) {
    const QtFontEngine fonts;
    const TextMask first = fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 0, {600, 700, 1100, 1200});
    ASSERT_GT(Ink(first), 0);
    EXPECT_TRUE(Same(fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 0, {602, 699, 1102, 1199}), first));
    EXPECT_FALSE(Same(fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 0, {800, 700, 1300, 1200}), first));
}

TEST(LettersSeenInPart, TellOneTextFromAnother) {
    const QtFontEngine fonts;
    const TextWindow window{600, 700, 1100, 1200};
    const TextMask first = fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 0, window);
    const TextMask second = fonts.RenderSeen(Arial(1500), "M", Edges::Crisp, 0, window);
    EXPECT_FALSE(Same(first, second));
    EXPECT_TRUE(Same(fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 0, window), first));
    EXPECT_FALSE(Same(fonts.RenderSeen(Arial(1600), "W", Edges::Crisp, 0, window), first));
    EXPECT_FALSE(Same(fonts.RenderSeen(Arial(1500), "W", Edges::Crisp, 5, window), first));
}

// The fonts of pictures that come with the program have drawings of thousands of points.
TEST(QtFontEngine, DeliveredPicturesAreCrispHoweverSmallTheyAre) {
    QtFontEngine fonts;
    int pictures = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(COINLET_DATA) + "/Fonts")) {
        if (entry.path().extension() != ".ttf") continue;
        const std::string name = fonts.AddFontFile(entry.path());
        ASSERT_NE(name, "") << entry.path();
        for (const double points : {0.75, 1.5, 3.0, 4.5, 6.0, 8.0, 10.0}) {
            for (char letter = '!'; letter <= '~'; ++letter) {
                const FontSpec font{.name = name, .size = points, .underline = letter % 2 == 0};
                const TextMask mask =
                    fonts.Render(font, std::string(1, letter), Edges::Crisp, letter % 3 * 45);
                const std::set<int> levels = Levels(mask);
                EXPECT_TRUE(std::ranges::includes(std::set<int>{0, 255}, levels)) << name << ' ' << letter;
                ++pictures;
            }
        }
    }
    EXPECT_GT(pictures, 10 * 7 * 90);
}

TEST(QtFontEngine, IntricatePictureIsASmallOneOfTheLargeOne) {
    QtFontEngine fonts;
    const std::string name = fonts.AddFontFile(std::string(COINLET_DATA) + "/Fonts/Animals.ttf");
    // Its most intricate one, of 275 outlines, here in eight rows of pixels.
    constexpr int times = 16;
    const TextMask small = fonts.Render({.name = name, .size = 6}, "'", Edges::Crisp);
    const TextMask large = fonts.Render({.name = name, .size = 6 * times}, "'", Edges::Smooth);
    ExpectTight(small);
    EXPECT_NEAR(small.width * times, large.width, 3 * times);
    EXPECT_NEAR(small.height * times, large.height, 3 * times);
    // Its lines are thinner than a pixel, and are seen all the same.
    EXPECT_GT(Ink(small) * times * times, Ink(large) / 2);
    EXPECT_LT(Ink(small) * times * times, Ink(large) * 3);
}

}  // namespace
}  // namespace coinlet
