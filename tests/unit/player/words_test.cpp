// Addresses, values and paths as scripts write them.

#include "player/address.h"
#include "player/command_line.h"
#include "player/failure.h"
#include "player/keys.h"
#include "player/places.h"
#include "player/values.h"
#include "support/temporary_folder.h"
#include "surface/colour.h"

#include <gtest/gtest.h>

namespace coinlet::player {
namespace {

TEST(ParseAddress, ReadsNamesAndIndexes) {
    const Address address = ParseAddress("Main.Knop(5).Caption");
    ASSERT_EQ(address.parts.size(), 3U);
    EXPECT_EQ(address.parts[1].name, "Knop");
    EXPECT_EQ(address.parts[1].index, 5);
    EXPECT_FALSE(address.parts[2].index);
    EXPECT_EQ(WithoutLast(address).text, "Main.Knop(5)");
    EXPECT_EQ(Show(ParseAddress("A(-1)").parts[0]), "A(-1)");
}

TEST(ParseAddress, RefusesWhatIsNone) {
    for (const char* text :
         {"", ".", "A.", ".B", "A(", "A()", "A(x)", "A(1", "A(1)b", "A B", "A(1.5)", "(1)"})
        EXPECT_THROW(ParseAddress(text), ScriptFailure) << text;
}

TEST(Values, ShowNumbersInFull) {
    EXPECT_EQ(ShowNumber(16777215), "16777215");
    EXPECT_EQ(ShowNumber(-3), "-3");
    EXPECT_EQ(ShowNumber(0.1F), "0.1");
    EXPECT_EQ(ShowNumber(8.25), "8.25");
}

TEST(Values, ShowColoursByChannels) {
    EXPECT_EQ(ShowColour(RGB(1, 20, 255)), "1,20,255");
    EXPECT_EQ(ShowColour(-1), "-1");
    EXPECT_EQ(ShowColour(16777216), "16777216");
}

TEST(Values, ReadColours) {
    EXPECT_EQ(ReadColour("255,252,13"), 255 + 256 * 252 + 65536 * 13);
    EXPECT_EQ(ReadColour("-1"), -1);
    for (const char* text : {"1,2", "1,2,3,4", "1,2,256", "1,-2,3", "1,,3", "a,2,3", "1,2.5,3", ""})
        EXPECT_THROW(ReadColour(text), ScriptFailure) << text;
}

TEST(Values, ReadWholeNumbersAndFlags) {
    EXPECT_EQ(ReadWhole("-12"), -12);
    EXPECT_THROW(ReadWhole("1.5"), ScriptFailure);
    EXPECT_THROW(ReadWhole("3000000000"), ScriptFailure);
    EXPECT_THROW(ReadWhole("12px"), ScriptFailure);
    EXPECT_TRUE(ReadFlag("true"));
    EXPECT_THROW(ReadFlag("1"), ScriptFailure);
}

TEST(Values, CompareNumbersAsTheUserSeesThem) {
    EXPECT_TRUE(SameValue(PropertyValue(0.1), PropertyValue(static_cast<double>(0.1F))));
    EXPECT_FALSE(SameValue(PropertyValue(16777215.0), PropertyValue(16777214.0)));
    EXPECT_FALSE(SameValue(PropertyValue(true), PropertyValue(1.0)));
    EXPECT_FALSE(SameValue(PropertyValue(std::string("a")), PropertyValue(std::string("A"))));
}

TEST(Values, QuoteAsScriptsDo) {
    EXPECT_EQ(Quoted("a\"b\\c\r\n"), R"("a\"b\\c\r\n")");
}

TEST(Places, ResolvesPathsOfScripts) {
    const test::TemporaryFolder folder;
    for (const char* name : {"app", "out", "scripts"})
        std::filesystem::create_directory(folder / name);
    const Places places(folder / "app" / "", folder / "out", folder / "scripts");
    EXPECT_EQ(places.Resolve("Data/English.txt"), places.Application() / "Data/English.txt");
    EXPECT_EQ(places.Resolve("@out/a.bmp"), places.Out() / "a.bmp");
    EXPECT_EQ(places.Resolve("@outer"), places.Application() / "@outer");
    EXPECT_EQ(places.Resolve("/etc/hosts"), "/etc/hosts");
    EXPECT_EQ(places.Resolve(""), places.Application());
    EXPECT_EQ(places.BesideScript("a.bmp").parent_path().filename(), "scripts");
    EXPECT_EQ(places.InOut("a.bmp"), places.Out() / "a.bmp");
    EXPECT_EQ(places.Pictures(), places.Out() / "Pictures");
}

TEST(Places, ShowsTextsWithoutTheFolder) {
    const test::TemporaryFolder folder;
    for (const char* name : {"app", "app2", "out"})
        std::filesystem::create_directory(folder / name);
    const Places places(folder / "app", folder / "out", folder.Path());
    const std::string app = places.Application().string();
    EXPECT_EQ(places.Shown(app + "\\Help\\English.pdf"), "Help/English.pdf");
    EXPECT_EQ(places.Shown(app + "/Help//English.pdf"), "Help//English.pdf");
    EXPECT_EQ(places.Shown(app), "");
    EXPECT_EQ(places.Shown(app + "2/a"), app + "2/a");
    EXPECT_EQ(places.Shown("in " + app), "in " + app);
    EXPECT_EQ(places.Shown("a\\b"), "a\\b");
    EXPECT_EQ(places.Shown(places.Pictures().string()), "@out/Pictures");
    EXPECT_EQ(places.ShownExpected("@out/Pictures"), "@out/Pictures");
    EXPECT_EQ(places.ShownExpected(app + "/x"), "x");
}

TEST(Places, AnOutputFolderInTheApplicationFolderIsShownAsAPartOfIt) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder / "out");
    const Places places(folder.Path(), folder / "out", folder.Path());
    EXPECT_EQ(places.Shown(places.Pictures().string()), "out/Pictures");
    EXPECT_EQ(places.ShownExpected("@out/Pictures"), "out/Pictures");
}

TEST(Keys, GiveTheCharacterThatTheyType) {
    EXPECT_EQ(CharacterOfKey('A'), 'a');
    EXPECT_EQ(CharacterOfKey('7'), '7');
    EXPECT_EQ(CharacterOfKey(13), 13);
    EXPECT_EQ(CharacterOfKey(32), 32);
    for (const int silent : {16, 33, 37, 40, 46, 112})
        EXPECT_FALSE(CharacterOfKey(silent)) << silent;
}

TEST(Keys, KnowTheCodesOfCharacters) {
    EXPECT_EQ(CodeOfCharacter("A"), 65);
    EXPECT_EQ(CodeOfCharacter("\xC3\xA9"), 0xE9);
    EXPECT_EQ(CodeOfCharacter("\xE2\x82\xAC"), 0x20AC);
    EXPECT_EQ(CodeOfCharacter("\xF0\x9F\x98\x80"), 0x1F600);
    EXPECT_EQ(CodeOfCharacter(""), 0);
}

TEST(ReadCommandLine, TakesFoldersAndScripts) {
    const auto options =
        ReadCommandLine({"--folder", "app", "a.play", "--out", "o", "--state", "s", "b.play"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->state, "s");
    EXPECT_EQ(options->folder, "app");
    EXPECT_EQ(options->out, "o");
    ASSERT_EQ(options->scripts.size(), 2U);
    EXPECT_EQ(options->scripts[1], "b.play");
}

TEST(ReadCommandLine, RefusesWhatMakesNoSense) {
    EXPECT_FALSE(ReadCommandLine({}));
    EXPECT_FALSE(ReadCommandLine({"--folder", "app"}));
    EXPECT_FALSE(ReadCommandLine({"a.play"}));
    EXPECT_FALSE(ReadCommandLine({"a.play", "--folder"}));
    EXPECT_FALSE(ReadCommandLine({"--folder", "app", "--fast", "a.play"}));
}

}  // namespace
}  // namespace coinlet::player
