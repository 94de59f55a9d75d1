// Words, escapes and bytes of the script language.

#include "player/script.h"

#include "player/failure.h"

#include <gtest/gtest.h>

namespace coinlet::player {
namespace {

std::vector<std::string> Sources(std::string_view line) {
    std::vector<std::string> sources;
    for (const Word& word : SplitWords(line))
        sources.push_back(word.source);
    return sources;
}

using Words = std::vector<std::string>;

TEST(SplitWords, PartsWordsByBlanks) {
    EXPECT_EQ(Sources("  click\t Main.Knop(5)  "), (Words{"click", "Main.Knop(5)"}));
    EXPECT_EQ(Sources(""), Words{});
    EXPECT_EQ(Sources("end\r"), Words{"end"});
}

TEST(SplitWords, TakesQuotedTextAsOneWord) {
    EXPECT_EQ(Sources(R"(set A.Text "two  words" "" "a \" b")"),
              (Words{"set", "A.Text", "two  words", "", R"(a \" b)"}));
    EXPECT_EQ(Sources(R"(a "ends in \\")"), (Words{"a", R"(ends in \\)"}));
}

TEST(SplitWords, LeavesOutComments) {
    EXPECT_EQ(Sources("# click Main"), Words{});
    EXPECT_EQ(Sources("click Main # why \" not"), (Words{"click", "Main"}));
    EXPECT_EQ(Sources("type A.B a#b \"#c\""), (Words{"type", "A.B", "a#b", "#c"}));
}

TEST(SplitWords, RefusesBrokenQuotes) {
    EXPECT_THROW(SplitWords("a \"b"), ScriptFailure);
    EXPECT_THROW(SplitWords(R"(a "b\")"), ScriptFailure);
    EXPECT_THROW(SplitWords("a \"b\"c"), ScriptFailure);
    EXPECT_EQ(Sources("5\""), Words{"5\""});
}

TEST(TextOf, ReadsEscapesInQuotesOnly) {
    EXPECT_EQ(TextOf({R"(a\"b\\c\r\nd)", true}), "a\"b\\c\r\nd");
    EXPECT_EQ(TextOf({R"(a\rb\\)", false}), R"(a\rb\\)");
    EXPECT_THROW(TextOf({R"(a\tb)", true}), ScriptFailure);
    EXPECT_THROW(TextOf({R"(\x41)", true}), ScriptFailure);
}

TEST(BytesOf, TurnsTextIntoTheCodePage) {
    EXPECT_EQ(BytesOf({"caf\xC3\xA9 \xE2\x82\xAC", true}), "caf\xE9 \x80");
    EXPECT_EQ(BytesOf({R"(a\r\n)", true}), "a\r\n");
}

TEST(BytesOf, ReadsSingleBytes) {
    EXPECT_EQ(BytesOf({R"(\x00a\xfF)", true}), std::string("\0a\xFF", 3));
    EXPECT_EQ(BytesOf({R"(\x0D\x0A)", false}), "\r\n");
    // Two bytes of one character in UTF-8 stay two bytes.
    EXPECT_EQ(BytesOf({R"(\xC3\xA9)", true}), "\xC3\xA9");
    EXPECT_EQ(BytesOf({R"(\\x41)", true}), "\\x41");
    EXPECT_THROW(BytesOf({R"(\x4)", true}), ScriptFailure);
    EXPECT_EQ(BytesOf({R"(\x4g)", false}), "\\x4g");
}

TEST(ParseScript, NumbersLinesFromOne) {
    const Script script = ParseScript("/some/where/a.play",
                                      "\xEF\xBB\xBF"
                                      "one\r\n\ntwo");
    EXPECT_EQ(script.name, "/some/where/a.play");
    EXPECT_EQ(script.folder, "/some/where");
    ASSERT_EQ(script.lines.size(), 3U);
    EXPECT_EQ(script.lines[0].text, "one");
    EXPECT_EQ(script.lines[2].number, 3);
    EXPECT_EQ(script.lines[2].text, "two");
}

TEST(ReadScript, GivesNothingForAMissingFile) {
    EXPECT_FALSE(ReadScript("/no/such/script.play"));
}

}  // namespace
}  // namespace coinlet::player
