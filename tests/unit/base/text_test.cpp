// Texts: what the program's files hold byte by byte, and what lists are sorted by.

#include "base/text.h"

#include "base/order_key.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace coinlet {
namespace {

using Texts = std::vector<std::string>;

// The 27 bytes of Windows-1252 that don't stand where Latin-1 has them.
struct Special {
    unsigned char byte;
    const char* utf8;
};
constexpr std::array<Special, 27> specials = {
    {{0x80, "€"}, {0x82, "‚"}, {0x83, "ƒ"}, {0x84, "„"}, {0x85, "…"}, {0x86, "†"}, {0x87, "‡"},
     {0x88, "ˆ"}, {0x89, "‰"}, {0x8A, "Š"}, {0x8B, "‹"}, {0x8C, "Œ"}, {0x8E, "Ž"}, {0x91, "‘"},
     {0x92, "’"}, {0x93, "“"}, {0x94, "”"}, {0x95, "•"}, {0x96, "–"}, {0x97, "—"}, {0x98, "˜"},
     {0x99, "™"}, {0x9A, "š"}, {0x9B, "›"}, {0x9C, "œ"}, {0x9E, "ž"}, {0x9F, "Ÿ"}}};

std::string OneByte(unsigned byte) {
    return {static_cast<char>(byte)};
}

TEST(CodePage, EveryByteSurvivesReadingAndWriting) {
    std::set<std::string> seen;
    for (unsigned byte = 0; byte < 256; ++byte) {
        const std::string utf8 = FromCodePage(OneByte(byte));
        EXPECT_EQ(Characters(utf8).size(), 1U) << byte;
        EXPECT_EQ(ToCodePage(utf8), OneByte(byte)) << byte;
        seen.insert(utf8);
    }
    EXPECT_EQ(seen.size(), 256U);
}

TEST(CodePage, SpecialCharacters) {
    for (const Special& special : specials) {
        EXPECT_EQ(FromCodePage(OneByte(special.byte)), special.utf8);
        EXPECT_EQ(ToCodePage(special.utf8), OneByte(special.byte));
    }
}

TEST(CodePage, LatinLettersAndTheUnassignedBytes) {
    EXPECT_EQ(FromCodePage("caf\xE9"), "café");
    EXPECT_EQ(ToCodePage("Ünïß"), "\xDCn\xEF\xDF");
    EXPECT_EQ(FromCodePage("\x81"), "\xC2\x81");
    EXPECT_EQ(ToCodePage("\xC2\x9D"), "\x9D");
}

TEST(CodePage, WhatThePageLacksIsAQuestionMark) {
    EXPECT_EQ(ToCodePage("aЖb"), "a?b");
    EXPECT_EQ(ToCodePage("日本"), "??");
    EXPECT_EQ(ToCodePage("😀"), "?");
    EXPECT_EQ(ToCodePage("\xC2\x80"), "?");  // U+0080: byte 0x80 is the euro sign
}

TEST(CodePage, EachMalformedByteIsOneQuestionMark) {
    EXPECT_EQ(ToCodePage("\x80"), "?");                 // a following byte alone
    EXPECT_EQ(ToCodePage("a\xE2\x82z"), "a??z");        // cut short by a letter
    EXPECT_EQ(ToCodePage("\xE2\x82"), "??");            // cut short by the end
    EXPECT_EQ(ToCodePage("\xC0\xAF"), "??");            // overlong
    EXPECT_EQ(ToCodePage("\xE0\x80\xAF"), "???");       // overlong
    EXPECT_EQ(ToCodePage("\xED\xA0\x80"), "???");       // a surrogate
    EXPECT_EQ(ToCodePage("\xF4\x90\x80\x80"), "????");  // beyond Unicode
    EXPECT_EQ(ToCodePage("\xFF\xFE"), "??");
    EXPECT_EQ(ToCodePage("\xC3\xC3\xA9"), "?\xE9");  // the second byte starts a good character
}

TEST(Characters, AreTextsOfTheirOwn) {
    EXPECT_EQ(Characters(""), Texts{});
    EXPECT_EQ(Characters("aé€😀"), (Texts{"a", "é", "€", "😀"}));
    EXPECT_EQ(Characters("é\xE2\x82!"), (Texts{"é", "\xE2", "\x82", "!"}));
    EXPECT_EQ(Characters(std::string_view("a\0b", 3)).size(), 3U);
}

TEST(Graphemes, AreLettersWithTheirMarks) {
    EXPECT_EQ(Graphemes(""), Texts{});
    EXPECT_EQ(Graphemes("aé€😀"), (Texts{"a", "é", "€", "😀"}));
    EXPECT_EQ(Graphemes("e\u0301\u0323x"), (Texts{"e\u0301\u0323", "x"}));
    EXPECT_EQ(Graphemes("שָׁם"), (Texts{"שָׁ", "ם"}));
    EXPECT_EQ(Graphemes("\u0301a"), (Texts{"\u0301", "a"}));  // a mark on nothing
}

TEST(Graphemes, ArePictogramsAsAWhole) {
    EXPECT_EQ(Graphemes("❤️!"), (Texts{"❤️", "!"}));
    EXPECT_EQ(Graphemes("👍🏽👍"), (Texts{"👍🏽", "👍"}));
    EXPECT_EQ(Graphemes("👨‍👩‍👧‍👦x"), (Texts{"👨‍👩‍👧‍👦", "x"}));
    EXPECT_EQ(Graphemes("🇳🇱🇧🇪🇩"), (Texts{"🇳🇱", "🇧🇪", "🇩"}));
    EXPECT_EQ(Graphemes("1\uFE0F\u20E32"), (Texts{"1\uFE0F\u20E3", "2"}));
}

TEST(Graphemes, MalformedBytesStandAlone) {
    EXPECT_EQ(Graphemes("a\xE2\x82z"), (Texts{"a", "\xE2", "\x82", "z"}));
    EXPECT_EQ(Graphemes(std::string_view("a\0b", 3)).size(), 3U);
}

TEST(Utf8, OneToFourBytes) {
    EXPECT_EQ(Utf8(U'A'), "A");
    EXPECT_EQ(Utf8(0x7F), "\x7F");
    EXPECT_EQ(Utf8(0x80), "\xC2\x80");
    EXPECT_EQ(Utf8(0x7FF), "\xDF\xBF");
    EXPECT_EQ(Utf8(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(Utf8(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(Utf8(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf8(0x10FFFF), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(Utf8(0), std::string(1, '\0'));
    // Bytes that differ: an e with an accent, the euro, a clef.
    EXPECT_EQ(Utf8(0xE9), "\xC3\xA9");
    EXPECT_EQ(Utf8(0x20AC), "\xE2\x82\xAC");
    EXPECT_EQ(Utf8(0x1D11E), "\xF0\x9D\x84\x9E");
}

TEST(Utf8, OutsideUnicodeIsTheReplacementCharacter) {
    EXPECT_EQ(Utf8(0x110000), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(0xFFFFFFFF), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(0xD800), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8(0xDFFF), "\xEF\xBF\xBD");
}

TEST(TrimBlanks, OnlySpacesAtTheEnds) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("ab"), "ab");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks(" \ta\r\n "), "\ta\r\n");
}

TEST(LowerCase, AsciiAndLatin) {
    EXPECT_EQ(LowerCase("HeLLo 42 [Z]"), "hello 42 [z]");
    EXPECT_EQ(LowerCase("@[`{"), "@[`{");
    EXPECT_EQ(LowerCase("ÀÉÖØÞ×ß÷"), "àéöøþ×ß÷");
    EXPECT_EQ(LowerCase("ĀĮĲĶĹŇŊŶŸŹŽ"), "āįĳķĺňŋŷÿźž");
    EXPECT_EQ(LowerCase("İ"), "i");
    EXPECT_EQ(LowerCase("ıĸŉſ"), "ıĸŉſ");  // small already
    EXPECT_EQ(LowerCase("ЖΩ"), "ЖΩ");      // other alphabets stay
    EXPECT_EQ(LowerCase("A\xFFZ"), "a\xFFz");
}

TEST(LowerCase, OfSmallLettersIsThemselves) {
    for (char32_t c = 0; c < 0x180; ++c) {
        const std::string once = LowerCase(Utf8(c));
        EXPECT_EQ(LowerCase(once), once) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(ComesBefore, IgnoresCaseButIsAStrictOrder) {
    EXPECT_TRUE(ComesBefore("apple", "Banana"));
    EXPECT_FALSE(ComesBefore("Banana", "apple"));
    EXPECT_TRUE(ComesBefore("a", "ab"));
    EXPECT_TRUE(ComesBefore("", "a"));
    // Case alone: by bytes, capitals first; never equal, never both.
    EXPECT_TRUE(ComesBefore("A", "a"));
    EXPECT_FALSE(ComesBefore("a", "A"));
    EXPECT_FALSE(ComesBefore("same", "same"));
    EXPECT_TRUE(ComesBefore("Éa", "éb"));
}

/// Each is to stand before the next one, and not the other way round.
void ExpectOrder(const Texts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        for (std::size_t j = 0; j < texts.size(); ++j)
            EXPECT_EQ(ComesBefore(texts[i], texts[j]), i < j) << texts[i] << ", " << texts[j];
    }
}

TEST(ComesBefore, AZeroByteIsTheLowestLetter) {
    // Of two texts of which one begins with the other, the shorter one comes first, whatever letters are
    // theirs.
    using namespace std::string_literals;
    const std::vector<std::string> sorted{"x"s, "x\0"s, "x\0 "s, "x\0é"s, "x "s, "xa"s, "xé"s};
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = 0; j < sorted.size(); ++j) {
            EXPECT_EQ(ComesBefore(sorted[i], sorted[j]), i < j) << i << ' ' << j;
            EXPECT_EQ(OrderKey(sorted[i]) < OrderKey(sorted[j]), i < j) << i << ' ' << j;
        }
    }
}

TEST(ComesBefore, PutsLettersWithAccentsBesideTheirBaseLetter) {
    ExpectOrder({"Ängel", "Anton", "Zulu"});
    ExpectOrder({"Ebro", "Echo", "éclair", "edel", "Zulu"});
    // The accent counts where the letters are the same, and case after that.
    ExpectOrder({"RESUME", "resume", "résumé", "resumes", "résumés"});
    ExpectOrder({"cote", "coté", "côte", "côté", "coter"});
    ExpectOrder({"Eva", "eva", "Éva", "éva", "Evb"});
}

TEST(ComesBefore, TakesJoinedLettersApart) {
    ExpectOrder({"ad", "æ", "af"});
    ExpectOrder({"odd", "œuf", "of"});
    ExpectOrder({"Strasse", "Straße", "Strassf"});
    ExpectOrder({"ĳs", "ik"});
    ExpectOrder({"lob", "Łódź", "low"});
    ExpectOrder({"tg", "þing", "ti"});
}

TEST(ComesBefore, TakesAMarkOfItsOwnAsAnAccent) {
    ExpectOrder({"Ebro", "e\u0301clair", "edel"});
    ExpectOrder({"eclair", "e\u0301clair", "éclair", "eclairs"});
}

TEST(ComesBefore, KnowsEveryLetterOfEuropeWithAnAccent) {
    const std::map<std::string, std::string> families{{"a", "ÀÁÂÃÄÅàáâãäåĀāĂăĄą"},
                                                      {"c", "ÇçĆćĈĉĊċČč"},
                                                      {"d", "ĎďĐđÐð"},
                                                      {"e", "ÈÉÊËèéêëĒēĔĕĖėĘęĚě"},
                                                      {"g", "ĜĝĞğĠġĢģ"},
                                                      {"h", "ĤĥĦħ"},
                                                      {"i", "ÌÍÎÏìíîïĨĩĪīĬĭĮįİı"},
                                                      {"j", "Ĵĵ"},
                                                      {"k", "Ķķĸ"},
                                                      {"l", "ĹĺĻļĽľĿŀŁł"},
                                                      {"n", "ÑñŃńŅņŇňŊŋŉ"},
                                                      {"o", "ÒÓÔÕÖØòóôõöøŌōŎŏŐő"},
                                                      {"r", "ŔŕŖŗŘř"},
                                                      {"s", "ŚśŜŝŞşŠšſ"},
                                                      {"t", "ŢţŤťŦŧ"},
                                                      {"u", "ÙÚÛÜùúûüŨũŪūŬŭŮůŰűŲų"},
                                                      {"w", "Ŵŵ"},
                                                      {"y", "ÝýÿŶŷŸ"},
                                                      {"z", "ŹźŻżŽž"}};
    for (const auto& [base, letters] : families) {
        const std::string next(1, static_cast<char>(base[0] + 1));
        for (const std::string& letter : Characters(letters)) {
            EXPECT_TRUE(ComesBefore(base, letter)) << letter;
            EXPECT_TRUE(ComesBefore(letter, base + "a")) << letter;
            EXPECT_TRUE(ComesBefore(letter, next)) << letter;
        }
    }
}

TEST(ComesBefore, OrdersWhatIsNoUtf8AtTheEnd) {
    ExpectOrder({"z", "Ж", "\x80", "\xFF"});
}

TEST(FirstLine, IsWhatStandsBeforeALineBreak) {
    EXPECT_EQ(FirstLine("one"), "one");
    EXPECT_EQ(FirstLine(""), "");
    EXPECT_EQ(FirstLine("one\r\ntwo"), "one");
    EXPECT_EQ(FirstLine("one\ntwo\nthree"), "one");
    EXPECT_EQ(FirstLine("one\rtwo"), "one");
    EXPECT_EQ(FirstLine("one\n"), "one");
    EXPECT_EQ(FirstLine("one\u2028two"), "one");
    EXPECT_EQ(FirstLine("one\u2029two"), "one");
    // Those in front are passed over.
    EXPECT_EQ(FirstLine("\r\n\n\u2029one\ntwo"), "one");
    EXPECT_EQ(FirstLine("\n\n"), "");
    // Other signs from the same corner of Unicode are none.
    EXPECT_EQ(FirstLine("one\u2027two\u2030"), "one\u2027two\u2030");
    EXPECT_EQ(FirstLine("  one\ttwo "), "  one\ttwo ");
}

TEST(Lines, AnyKindOfEnd) {
    EXPECT_EQ(Lines("a\r\nb\nc\rd"), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(Lines("a\n\nb"), (Texts{"a", "", "b"}));
    EXPECT_EQ(Lines("a\r\r\nb"), (Texts{"a", "", "b"}));
}

TEST(Lines, AnEndAfterTheLastLineStartsNoFurtherOne) {
    EXPECT_EQ(Lines(""), Texts{});
    EXPECT_EQ(Lines("a"), Texts{"a"});
    EXPECT_EQ(Lines("a\r\n"), Texts{"a"});
    EXPECT_EQ(Lines("\r\n"), Texts{""});
    EXPECT_EQ(Lines("a\n\n"), (Texts{"a", ""}));
}

TEST(BeginsWith, CountsLettersWithoutAccentAndCase) {
    EXPECT_TRUE(BeginsWith("\u00C9t\u00E9", "et"));
    EXPECT_TRUE(BeginsWith("ete", "\u00E9T"));
    EXPECT_TRUE(BeginsWith("\u00C6on", "ae"));
    EXPECT_TRUE(BeginsWith("\u00C6on", "a"));
    EXPECT_TRUE(BeginsWith("tag", "tag"));
    EXPECT_FALSE(BeginsWith("tag", "tags"));
    EXPECT_FALSE(BeginsWith("tag", "ag"));
    EXPECT_TRUE(BeginsWith("", ""));
    EXPECT_TRUE(BeginsWith("x", ""));
    EXPECT_FALSE(BeginsWith("", "x"));
    // A byte that is no character is itself and nothing else.
    EXPECT_TRUE(BeginsWith("\xFFx", "\xFF"));
    EXPECT_FALSE(BeginsWith("\xFEx", "\xFF"));
}

}  // namespace
}  // namespace coinlet
