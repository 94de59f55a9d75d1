// Finding the files of a library by name.
#include "libraries/library_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(LibraryFile, TakesTheExactNameFirstAndThenTheFirstInOtherLetters) {
    const test::TemporaryFolder folder;
    folder.Write("Birds.ART", "1");
    EXPECT_EQ(LibraryFile(folder.Path(), "Birds.ART"), folder / "Birds.ART");
    EXPECT_EQ(LibraryFile(folder.Path(), "bIRDS.art"), folder / "Birds.ART");
    folder.Write("birds.art", "2");
    EXPECT_EQ(LibraryFile(folder.Path(), "Birds.ART"), folder / "Birds.ART");
    EXPECT_EQ(LibraryFile(folder.Path(), "birds.art"), folder / "birds.art");
    // Upper case comes first in the order of the folder.
    EXPECT_EQ(LibraryFile(folder.Path(), "BIRDS.ART"), folder / "Birds.ART");
    folder.Write("\xC3\x89toiles.art", "3");
    EXPECT_EQ(LibraryFile(folder.Path(), "\xC3\xA9toiles.art"), folder / "\xC3\x89toiles.art");
}

TEST(LibraryFile, FindsNothingByWhatIsNoName) {
    const test::TemporaryFolder folder;
    folder.Write("a.art", "1");
    fs::create_directory(folder / "below");
    folder.Write("below/b.art", "2");
    fs::create_directory(folder / "c.art");
    for (const char* name :
         {"", ".", "..", "/", "below/b.art", "../a.art", "./a.art", "c.art", "*.art", "a.ar"})
        EXPECT_FALSE(LibraryFile(folder.Path(), name)) << name;
    EXPECT_FALSE(LibraryFile(folder.Path(), std::string("a.art\0", 6)));
    EXPECT_FALSE(LibraryFile(folder / "none", "a.art"));
}

TEST(WithoutLastFour, CutsFourCharacters) {
    EXPECT_EQ(WithoutLastFour("Animals.ttf"), "Animals");
    EXPECT_EQ(WithoutLastFour(".ttf"), "");
    EXPECT_EQ(WithoutLastFour("ttf"), "");
    EXPECT_EQ(WithoutLastFour(""), "");
}

}  // namespace
}  // namespace coinlet
