// Where the program works, and what a user finds in a folder that was made for him.

#include "launch/application_folder.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace coinlet {
namespace {

namespace fs = std::filesystem;

constexpr const char* readFolders[] = {"Borders", "Cliparts", "Data", "Fonts", "Help", "Images"};

/// An installed program with a file in each folder, and a home without any.
class ApplicationFolderTest : public ::testing::Test {
protected:
    ApplicationFolderTest() {
        for (const char* name : readFolders)
            Deliver(std::string(name) + "/first");
        Deliver("Ontwerpen/Hiker.pat");
        Deliver("Ontwerpen/Hiker.txt");
        Deliver("Collection/Collection.col");
        fs::create_directories(root / "usr/bin");
    }

    void Deliver(const std::string& name) const { Put("usr/share/coinlet-designer/" + name, "delivered"); }
    void Put(const std::string& name, const std::string& content) const {
        fs::create_directories((root / name).parent_path());
        root.Write(name, content);
    }
    fs::path Delivered() const { return root / "usr/share/coinlet-designer"; }
    fs::path Own() const { return root / "home/coinlet-designer"; }
    std::string InOwn(const std::string& name) const { return root.Read("home/coinlet-designer/" + name); }
    fs::path Start() const {
        return ApplicationFolder({.programFolder = root / "usr/bin", .userDataFolder = root / "home"})
            .value_or("none");
    }
    static bool IsThere(const fs::path& path) { return fs::exists(fs::symlink_status(path)); }

    test::TemporaryFolder root;
};

TEST_F(ApplicationFolderTest, DeliveredDataLieBesideTheProgramOrWherePackagesPutThem) {
    EXPECT_EQ(DeliveredFolder(root / "usr/bin"), Delivered());
    EXPECT_EQ(DeliveredFolder(Delivered()), Delivered());
    EXPECT_EQ(DeliveredFolder(root.Path()), "");
}

TEST_F(ApplicationFolderTest, CarriedFolderThatCanBeWrittenIsUsedAsItIs) {
    EXPECT_EQ(ApplicationFolder({.programFolder = Delivered(), .userDataFolder = root / "home"}),
              Delivered());
    EXPECT_FALSE(IsThere(Own()));
}

TEST_F(ApplicationFolderTest, CarriedFolderThatCantBeWrittenGivesWayToAnOwnOne) {
    const Surroundings surroundings{.programFolder = Delivered(),
                                    .userDataFolder = root / "home",
                                    .mayWrite = [](const fs::path&) { return false; }};
    EXPECT_EQ(ApplicationFolder(surroundings), Own());
}

TEST_F(ApplicationFolderTest, InstalledProgramWorksInAFolderOfTheUser) {
    EXPECT_EQ(Start(), Own());
    for (const char* name : readFolders) {
        const fs::path link = Own() / name / "first";
        ASSERT_TRUE(fs::is_symlink(link)) << link;
        EXPECT_EQ(fs::read_symlink(link), Delivered() / name / "first");
    }
    for (const char* name : {"Ontwerpen/Hiker.pat", "Ontwerpen/Hiker.txt", "Collection/Collection.col"}) {
        EXPECT_FALSE(fs::is_symlink(Own() / name)) << name;
        EXPECT_EQ(InOwn(name), "delivered") << name;
    }
}

TEST_F(ApplicationFolderTest, FolderThatIsNamedRules) {
    const fs::path named = root / "tags";
    const Surroundings surroundings{
        .programFolder = root / "usr/bin", .userDataFolder = root / "home", .named = named};
    EXPECT_EQ(ApplicationFolder(surroundings), named);
    EXPECT_TRUE(fs::is_symlink(named / "Borders/first"));
    EXPECT_FALSE(IsThere(Own()));
}

TEST_F(ApplicationFolderTest, UpgradeBringsNewFilesAndTakesGoneOnes) {
    Start();
    Deliver("Borders/second");
    fs::remove(Delivered() / "Borders/first");
    Start();
    EXPECT_TRUE(fs::is_symlink(Own() / "Borders/second"));
    EXPECT_FALSE(IsThere(Own() / "Borders/first"));
}

TEST_F(ApplicationFolderTest, ProgramThatMovedIsFoundAgain) {
    Start();
    fs::rename(root / "usr", root / "opt");
    ApplicationFolder({.programFolder = root / "opt/bin", .userDataFolder = root / "home"});
    EXPECT_EQ(fs::read_symlink(Own() / "Fonts/first"), root / "opt/share/coinlet-designer/Fonts/first");
}

TEST_F(ApplicationFolderTest, WhatTheUserPutThereStays) {
    Put("home/coinlet-designer/Borders/first", "the user's own border");
    Put("home/coinlet-designer/Borders/mine", "another");
    Put("home/coinlet-designer/Data/Deutsch.txt", "a language of his own");
    Put("home/coinlet-designer/Ontwerpen/HIKER.PAT", "his hiker");
    fs::create_symlink("/nowhere/at/all", Own() / "Borders/link");
    Start();
    EXPECT_EQ(InOwn("Borders/first"), "the user's own border");
    EXPECT_EQ(InOwn("Borders/mine"), "another");
    EXPECT_TRUE(IsThere(Own() / "Borders/link"));
    EXPECT_EQ(InOwn("Ontwerpen/HIKER.PAT"), "his hiker");
    // A second design of that name in other letters would stand in the list twice.
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Hiker.pat"));
    EXPECT_TRUE(fs::is_symlink(Own() / "Data/first"));
}

TEST_F(ApplicationFolderTest, DeletedDesignStaysDeleted) {
    Start();
    fs::remove(Own() / "Ontwerpen/Hiker.pat");
    Deliver("Ontwerpen/Owl.pat");
    Start();
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Hiker.pat"));
    EXPECT_EQ(InOwn("Ontwerpen/Owl.pat"), "delivered");
    Start();
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Hiker.pat"));
}

TEST_F(ApplicationFolderTest, DeletedDesignStaysDeletedAlsoIfTheListCannotBeRead) {
    Start();
    fs::remove(Own() / "Ontwerpen/Hiker.pat");
    const fs::path list = Own() / ".handed-out";
    const auto size = fs::file_size(list);
    // Nobody can read it, the superuser neither: more than the program takes of any file.
    fs::resize_file(list, std::uintmax_t{1} << 40);
    Deliver("Ontwerpen/Owl.pat");
    Start();
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Hiker.pat"));
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Owl.pat"));
    EXPECT_EQ(fs::file_size(list), std::uintmax_t{1} << 40);
    EXPECT_TRUE(IsThere(Own() / "Data/first"));
    // What was left out comes as soon as it can be read again.
    fs::resize_file(list, size);
    Start();
    EXPECT_FALSE(IsThere(Own() / "Ontwerpen/Hiker.pat"));
    EXPECT_EQ(InOwn("Ontwerpen/Owl.pat"), "delivered");
}

TEST_F(ApplicationFolderTest, ChangedDesignStaysChanged) {
    Start();
    Put("home/coinlet-designer/Ontwerpen/Hiker.pat", "with a hat");
    Start();
    EXPECT_EQ(InOwn("Ontwerpen/Hiker.pat"), "with a hat");
}

TEST_F(ApplicationFolderTest, FolderThatWasCarriedThereWholeIsLeftAlone) {
    const fs::path carried = root / "carried";
    fs::copy(Delivered(), carried, fs::copy_options::recursive);
    Deliver("Borders/second");
    EXPECT_TRUE(FillApplicationFolder(carried, Delivered()));
    EXPECT_FALSE(IsThere(carried / "Borders/second"));
    EXPECT_FALSE(IsThere(carried / ".handed-out"));
}

TEST_F(ApplicationFolderTest, WithoutAWritableHomeTheProgramStartsAllTheSame) {
    Put("file", "no folder");
    const fs::path bin = root / "usr/bin";
    EXPECT_EQ(ApplicationFolder({.programFolder = bin, .userDataFolder = root / "file"}), Delivered());
    EXPECT_EQ(ApplicationFolder({.programFolder = bin, .userDataFolder = {}}), Delivered());
}

// What somebody saves in another folder than the one he named is lost to him.
TEST_F(ApplicationFolderTest, FolderThatIsNamedAndCannotBeMadeIsNone) {
    root.Write("file", "no folder");
    for (const fs::path& named : {root / "file", root / "file/designs"}) {
        const Surroundings surroundings{
            .programFolder = root / "usr/bin", .userDataFolder = root / "home", .named = named};
        EXPECT_EQ(ApplicationFolder(surroundings), std::nullopt) << named;
    }
    EXPECT_FALSE(IsThere(Own()));
}

}  // namespace
}  // namespace coinlet
