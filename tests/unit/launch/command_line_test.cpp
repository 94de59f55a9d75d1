// What the program makes of its command line.

#include "launch/command_line.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

namespace coinlet {
namespace {

using Arguments = std::initializer_list<std::string_view>;

std::variant<CommandLine, Notice> Read(Arguments arguments) {
    const std::vector<std::string_view> list(arguments);
    return ReadCommandLine(list);
}

CommandLine Accepted(Arguments arguments) {
    auto line = Read(arguments);
    EXPECT_TRUE(std::holds_alternative<CommandLine>(line));
    return std::holds_alternative<CommandLine>(line) ? std::get<CommandLine>(line) : CommandLine{};
}

Notice Noticed(Arguments arguments) {
    auto line = Read(arguments);
    EXPECT_TRUE(std::holds_alternative<Notice>(line));
    return std::holds_alternative<Notice>(line) ? std::get<Notice>(line) : Notice{"", -1};
}

TEST(CommandLineTest, EmptyOneAsksForNothing) {
    const CommandLine line = Accepted({});
    EXPECT_FALSE(line.folder);
    EXPECT_FALSE(line.document);
}

TEST(CommandLineTest, FolderAndFileInAnyOrder) {
    for (const Arguments& arguments :
         {Arguments{"--folder", "/my/tags", "owl.png"}, Arguments{"owl.png", "--folder", "/my/tags"},
          Arguments{"--folder=/my/tags", "owl.png"}}) {
        const CommandLine line = Accepted(arguments);
        EXPECT_EQ(line.folder, "/my/tags");
        EXPECT_EQ(line.document, "owl.png");
    }
}

TEST(CommandLineTest, BehindTwoDashesAllAreFiles) {
    EXPECT_EQ(Accepted({"--", "--help"}).document, "--help");
    EXPECT_EQ(Accepted({"--folder", "tags", "--", "-owl.bmp"}).document, "-owl.bmp");
    EXPECT_EQ(Accepted({"--", "--"}).document, "--");
    EXPECT_FALSE(Accepted({"--"}).document);
}

TEST(CommandLineTest, HelpAndVersionRuleWhereverTheyStand) {
    const Notice help = Noticed({"--nonsense", "--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* option : {"--folder DIR", "--help", "--version"})
        EXPECT_NE(help.text.find(option), std::string::npos) << option;
    const Notice version = Noticed({"owl.png", "--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.text, "Coinlet Designer " COINLET_VERSION "\n");
}

TEST(CommandLineTest, WhatMakesNoSenseIsSaid) {
    EXPECT_EQ(Noticed({"--nonsense"}).text,
              "coinlet-designer: unknown option '--nonsense'\nTry 'coinlet-designer --help'.\n");
    for (const Arguments& arguments :
         {Arguments{"--nonsense"}, Arguments{"-h"}, Arguments{"--folder"}, Arguments{"--folder="},
          Arguments{"--folder", ""}, Arguments{"--folder", "--", "x"}, Arguments{"a.png", "b.png"}})
        EXPECT_EQ(Noticed(arguments).status, 2) << *arguments.begin();
}

}  // namespace
}  // namespace coinlet
