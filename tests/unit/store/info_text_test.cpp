// The info text of a design on its way to the store and back.
#include "store/info_text.h"

#include "support/failing_step.h"
#include "support/world.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::World;
using Rows = std::vector<std::string>;

const std::string header = "Ivo Kestrell Software 2014\r\n--------------------------\r\n";

TEST(WriteDesignInfoText, WritesAHeaderAndEveryRow) {
    World world;
    world.SetRows({"first", "", "  third, with a comma", "   "});
    WriteDesignInfoText(world.context, "coin");
    EXPECT_EQ(world.Stored("coin.txt"), header + "first\r\n\r\n  third, with a comma\r\n   \r\n");
    EXPECT_EQ(world.StoredFiles(), 1);
}

TEST(WriteDesignInfoText, WritesTheHeaderAloneForNoRows) {
    World world;
    WriteDesignInfoText(world.context, "coin");
    EXPECT_EQ(world.Stored("coin.txt"), header);
}

TEST(WriteDesignInfoText, WritesOneByteACharacter) {
    World world;
    world.SetRows({"café €5 \U0001F600"});
    WriteDesignInfoText(world.context, "coin");
    EXPECT_EQ(world.Stored("coin.txt"), header +
                                            "caf\xE9 \x80"
                                            "5 ?\r\n");
}

TEST(WriteDesignInfoText, ReplacesALongerOne) {
    World world;
    world.Store("coin.txt", std::string(1000, 'x'));
    world.SetRows({"new"});
    WriteDesignInfoText(world.context, "coin");
    EXPECT_EQ(world.Stored("coin.txt"), header + "new\r\n");
}

TEST(WriteDesignInfoText, TakesNamesAsTheyAreTyped) {
    World world;
    world.SetRows({"row"});
    const Rows names{" leading and trailing ", "-rf", "\"quoted\" 'name'", "café", "\U0001F600", "..",
                     std::string(251, 'n')};
    for (const std::string& name : names) {
        WriteDesignInfoText(world.context, name);
        EXPECT_EQ(world.Stored(name + ".txt"), header + "row\r\n") << name;
    }
    EXPECT_EQ(world.StoredFiles(), std::ssize(names));
}

TEST(WriteDesignInfoText, WritesNothingUnderANameThatNoFileCanHave) {
    World world;
    world.SetRows({"row"});
    fs::create_directory(world.folder / "app/Ontwerpen/sub");
    for (const std::string& name : {std::string("../coin"), std::string("sub/coin"), std::string("/coin"),
                                    std::string("sub\\coin"), std::string("a\0b", 3), std::string(252, 'n')})
        WriteDesignInfoText(world.context, name);
    EXPECT_EQ(world.StoredFiles(), 1);
    EXPECT_TRUE(fs::is_empty(world.folder / "app/Ontwerpen/sub"));
    EXPECT_EQ(world.folder.Read("app/coin.txt"), "(no file)");
    EXPECT_TRUE(world.platform.messages.empty());
}

TEST(WriteDesignInfoText, MakesNoFolder) {
    World world;
    fs::remove(world.folder / "app/Ontwerpen");
    world.SetRows({"row"});
    WriteDesignInfoText(world.context, "coin");
    EXPECT_FALSE(fs::exists(world.folder / "app/Ontwerpen"));
}

class WriteDesignInfoTextFails : public testing::TestWithParam<test::Step> {};
INSTANTIATE_TEST_SUITE_P(AtEachStep, WriteDesignInfoTextFails,
                         testing::Values(test::Step::Open, test::Step::Write, test::Step::Flush,
                                         test::Step::Close, test::Step::Rename));

TEST_P(WriteDesignInfoTextFails, AndLeavesTheOldOneOrNone) {
    World world;
    world.Store("old.txt", "old\r\n");
    world.SetRows({"new"});
    for (const char* name : {"old", "new"}) {
        test::FailingStep calls(GetParam());
        WriteDesignInfoText(world.context, name, calls);
    }
    EXPECT_EQ(world.Stored("old.txt"), "old\r\n");
    EXPECT_EQ(world.StoredFiles(), 1);
    EXPECT_TRUE(world.platform.messages.empty());
}

void ReadInfoText(World& world, const std::string& name, const ReadCall& read = ReadBySystem) {
    ReadDesignInfoText(world.context, world.folder / "app/Ontwerpen" / (name + ".pat"), read);
}

Rows Read(std::string_view content) {
    World world;
    world.SetRows({"of an earlier design"});
    world.Store("coin.txt", content);
    ReadInfoText(world, "coin");
    return world.Rows();
}

TEST(ReadDesignInfoText, DropsTheHeaderAndBlankRows) {
    EXPECT_EQ(Read(header + "a, b\r\n\r\n   \r\n  c \r\n"), (Rows{"a, b", "  c "}));
    EXPECT_EQ(Read(header + "\t\r\n"), (Rows{"\t"}));
}

TEST(ReadDesignInfoText, ComparesTheHeaderWithNothing) {
    EXPECT_EQ(Read("x\r\ny\r\nrow\r\n"), (Rows{"row"}));
    EXPECT_EQ(Read("\r\n\r\nrow"), (Rows{"row"}));
}

TEST(ReadDesignInfoText, EndsAnItemOfTheHeaderAtAComma) {
    EXPECT_EQ(Read("x,y\r\nrow 1\r\nrow 2\r\n"), (Rows{"row 1", "row 2"}));
    EXPECT_EQ(Read("x,y,rest\r\nrow\r\n"), (Rows{"rest", "row"}));
    EXPECT_EQ(Read("x\r\ny,rest\r\n"), (Rows{"rest"}));
}

TEST(ReadDesignInfoText, ReadsOtherLineEndsToo) {
    EXPECT_EQ(Read("x\ny\na\n\nb"), (Rows{"a", "b"}));
    EXPECT_EQ(Read("x\ry\ra\rb\r"), (Rows{"a", "b"}));
}

TEST(ReadDesignInfoText, ReadsTheCodePage) {
    EXPECT_EQ(Read(header + "caf\xE9 \x80"), (Rows{"café €"}));
}

TEST(ReadDesignInfoText, FindsNoRowsWhereThereIsNoText) {
    EXPECT_EQ(Read(""), Rows{});
    EXPECT_EQ(Read("x"), Rows{});
    EXPECT_EQ(Read("x\r\n"), Rows{});
    EXPECT_EQ(Read(header), Rows{});
    for (const std::string& name : {std::string("missing"), std::string(300, 'n')}) {
        World world;
        world.SetRows({"of an earlier design"});
        ReadInfoText(world, name);
        EXPECT_EQ(world.Rows(), Rows{}) << name;
    }
}

TEST(ReadDesignInfoText, KeepsTheRowsThatWereReadBeforeAnError) {
    const auto rowsAfter = [](std::size_t bytes) {
        World world;
        world.SetRows({"of an earlier design"});
        world.Store("coin.txt", header + "one\r\ntwo\r\nthree\r\n");
        // A disk that gives so many bytes, in pieces, and then fails.
        ReadInfoText(world, "coin", [&](int file, void* data, std::size_t size) -> long {
            if (bytes == 0) {
                errno = EIO;
                return -1;
            }
            const long got = ReadBySystem(file, data, std::min(size, (bytes + 1) / 2));
            bytes -= static_cast<std::size_t>(got);
            return got;
        });
        EXPECT_TRUE(world.platform.messages.empty());
        return world.Rows();
    };
    const std::size_t two = header.size() + std::string_view("one\r\ntwo").size();
    EXPECT_EQ(rowsAfter(0), Rows{});
    EXPECT_EQ(rowsAfter(header.size() - 5), Rows{});
    EXPECT_EQ(rowsAfter(header.size() + 2), Rows{});
    EXPECT_EQ(rowsAfter(two), Rows{"one"});  // its line isn't read as long as there is no end of it
    EXPECT_EQ(rowsAfter(two + 1), (Rows{"one", "two"}));
    EXPECT_EQ(rowsAfter(two + 2), (Rows{"one", "two"}));
}

TEST(ReadDesignInfoText, KeepsTheBeginningOfAnEndlessText) {
    World world;
    world.Store("coin.txt", header + "first\r\n");
    fs::resize_file(world.folder / "app/Ontwerpen/coin.txt", std::uintmax_t{1} << 30);
    ReadInfoText(world, "coin");
    EXPECT_EQ(world.Rows(), Rows{"first"});
}

TEST(ReadDesignInfoText, PassesOverAFolderOfThatName) {
    World world;
    fs::create_directory(world.folder / "app/Ontwerpen/coin.txt");
    ReadInfoText(world, "coin");
    EXPECT_EQ(world.Rows(), Rows{});
}

TEST(DesignInfoText, ComesBackWithoutItsBlankRows) {
    World world;
    world.SetRows({"one", "", "  two", "    ", "three, and", ""});
    WriteDesignInfoText(world.context, "coin");
    ReadInfoText(world, "coin");
    EXPECT_EQ(world.Rows(), (Rows{"one", "  two", "three, and"}));
}

}  // namespace
}  // namespace coinlet
