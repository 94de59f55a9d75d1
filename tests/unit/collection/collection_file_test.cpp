#include "collection/collection_file.h"

#include "support/failing_step.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>

namespace coinlet {
namespace {

using Numbers = std::vector<std::string>;

TEST(ParseCollection, ReadsQuotedNumbers) {
    EXPECT_EQ(ParseCollection("\"1234-A\"\r\n\"5678-B\"\r\n"), (Numbers{"1234-A", "5678-B"}));
    EXPECT_EQ(ParseCollection("\"a, b\"\r\n\"  c \"\r\n"), (Numbers{"a, b", "  c "}));
    EXPECT_EQ(ParseCollection("\"a\",\"b\" , \"c\"\n  \"d\""), (Numbers{"a", "b", "c", "d"}));
}

TEST(ParseCollection, ReadsNumbersWithoutQuotes) {
    EXPECT_EQ(ParseCollection("a,b\r\n c d\ne\rf"), (Numbers{"a", "b", "c d", "e", "f"}));
    EXPECT_EQ(ParseCollection("a\"b\",c"), (Numbers{"a\"b\"", "c"}));
}

TEST(ParseCollection, LeavesBlankNumbersOut) {
    EXPECT_EQ(ParseCollection(""), Numbers{});
    EXPECT_EQ(ParseCollection("\r\n\r\n  \r\n,,\"\"\r\n\"   \"\r\n"), Numbers{});
    EXPECT_EQ(ParseCollection("\"\t\"\r\n"), Numbers{"\t"});
}

TEST(ParseCollection, CutsANumberAtAQuoteAndReadsTheRestAsFurtherOnes) {
    EXPECT_EQ(ParseCollection("\"a\"b\"\r\n\"next\"\r\n"), (Numbers{"a", "b\"", "next"}));
    EXPECT_EQ(ParseCollection("\"a\"b\", c\"\r\n"), (Numbers{"a", "b\"", "c\""}));
}

TEST(ParseCollection, LetsAQuoteThatNobodyClosesTakeItsOwnLineAlone) {
    EXPECT_EQ(ParseCollection("\"a\"\"\r\n\"next\"\r\n"), (Numbers{"a", "next"}));
    EXPECT_EQ(ParseCollection("\"a\r\n\"next\"\r\n"), (Numbers{"a", "next"}));
    EXPECT_EQ(ParseCollection("\""), Numbers{});
    EXPECT_EQ(ParseCollection("\"a"), Numbers{"a"});
}

TEST(FormatCollection, QuotesNumbersWithoutBlanksAtTheirEnds) {
    EXPECT_EQ(FormatCollection({"1234-A", "  b c "}), "\"1234-A\"\r\n\"b c\"\r\n");
    EXPECT_EQ(FormatCollection({}), "");
}

TEST(FormatCollection, ComesBack) {
    std::mt19937 random(81);
    const std::string letters = "ab1 ,;-/\\'\t\xE9";
    for (int round = 0; round < 200; ++round) {
        Numbers numbers;
        for (auto i = random() % 8; i > 0; --i) {
            std::string number = "x";
            for (auto j = random() % 12; j > 0; --j)
                number += letters[random() % letters.size()];
            numbers.push_back(number + "x");
        }
        EXPECT_EQ(ParseCollection(FormatCollection(numbers)), numbers);
    }
}

class CollectionFile : public testing::Test {
protected:
    const test::TemporaryFolder folder;
    const fs::path file = folder / "Collection.col";

    Collection ReadWith(std::string_view content) const {
        folder.Write("Collection.col", content);
        return ReadCollection(file);
    }
};

TEST_F(CollectionFile, IsReadInTheCodePage) {
    const Collection collection = ReadWith("\"caf\xE9 \x80\"\r\n");
    EXPECT_TRUE(collection.readable);
    EXPECT_EQ(collection.numbers, Numbers{"café €"});
}

TEST_F(CollectionFile, ThatIsMissingIsAnEmptyOne) {
    EXPECT_TRUE(ReadCollection(file).readable);
    EXPECT_TRUE(ReadCollection(file).numbers.empty());
    EXPECT_TRUE(ReadCollection(folder / "no folder" / "Collection.col").readable);
}

TEST_F(CollectionFile, ThatIsNoFileIsNotReadable) {
    fs::create_directory(file);
    EXPECT_FALSE(ReadCollection(file).readable);
    fs::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(ReadCollection(file).readable);
}

TEST_F(CollectionFile, ThatIsHugeIsNotReadable) {
    EXPECT_EQ(ReadWith(std::string(64'000'000, '7')).numbers.size(), 1U);
    const Collection huge = ReadWith(std::string(64'000'001, '7'));
    EXPECT_FALSE(huge.readable);
    EXPECT_TRUE(huge.numbers.empty());
}

TEST_F(CollectionFile, ThatWasWrittenIsRead) {
    Numbers numbers;
    for (int i = 0; i < 200'000; ++i)
        numbers.push_back("number " + std::to_string(1'000'000 + i));
    WriteCollection(file, numbers);
    const Collection collection = ReadCollection(file);
    EXPECT_TRUE(collection.readable);
    EXPECT_EQ(collection.numbers, numbers);
}

TEST_F(CollectionFile, OfAnyBytesIsReadInPeace) {
    std::mt19937 random(18);
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        for (auto i = random() % 200; i > 0; --i)
            bytes += random() % 3 == 0 ? "\",\r\n \0"[random() % 6] : static_cast<char>(random() % 256);
        for (const std::string& number : ReadWith(bytes).numbers) {
            EXPECT_EQ(number.find_first_of("\r\n"), std::string::npos);
            EXPECT_NE(number.find_first_not_of(' '), std::string::npos);
        }
    }
}

TEST_F(CollectionFile, IsWrittenInTheCodePage) {
    WriteCollection(file, {" café € ", "Ł"});
    EXPECT_EQ(folder.Read("Collection.col"), "\"caf\xE9 \x80\"\r\n\"?\"\r\n");
}

class CollectionSaveFails : public testing::TestWithParam<test::Step> {};
INSTANTIATE_TEST_SUITE_P(AtEachStep, CollectionSaveFails,
                         testing::Values(test::Step::Open, test::Step::Write, test::Step::Flush,
                                         test::Step::Close, test::Step::Rename));

TEST_P(CollectionSaveFails, AndLeavesTheOldOneOrNone) {
    const test::TemporaryFolder folder;
    folder.Write("old.col", "\"old\"\r\n");
    for (const char* name : {"old.col", "new.col"}) {
        test::FailingStep calls(GetParam());
        WriteCollection(folder / name, {"new"}, calls);
    }
    EXPECT_EQ(folder.Read("old.col"), "\"old\"\r\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1);
}

}  // namespace
}  // namespace coinlet
