// The lists of files and folders that the browsers show, and the patterns that pick them.
#include "base/files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace coinlet {
namespace {

using test::TemporaryFolder;
using Names = std::vector<std::string>;

TEST(MatchesPattern, KnowsStars) {
    EXPECT_TRUE(MatchesPattern("tag.bmp", "*.bmp"));
    EXPECT_TRUE(MatchesPattern(".bmp", "*.bmp"));
    EXPECT_TRUE(MatchesPattern("a.bmp.bmp", "*.bmp"));
    EXPECT_TRUE(MatchesPattern("", "*"));
    EXPECT_TRUE(MatchesPattern("abcbcd", "a*bcd"));
    EXPECT_TRUE(MatchesPattern("anything", "***"));
    EXPECT_FALSE(MatchesPattern("tag.bmpx", "*.bmp"));
    EXPECT_FALSE(MatchesPattern("bmp", "*.bmp"));
    EXPECT_FALSE(MatchesPattern("ac", "a*b*c"));
}

TEST(MatchesPattern, TakesAQuestionMarkForOneCharacter) {
    EXPECT_TRUE(MatchesPattern("a1.bmp", "a?.bmp"));
    EXPECT_TRUE(MatchesPattern("a\xC3\xA9.bmp", "a?.bmp"));  // é takes two bytes
    EXPECT_TRUE(MatchesPattern("a\xE9.bmp", "a?.bmp"));      // a byte that is no UTF-8
    EXPECT_FALSE(MatchesPattern("a.bmp", "a?.bmp"));
    EXPECT_FALSE(MatchesPattern("a12.bmp", "a?.bmp"));
    EXPECT_FALSE(MatchesPattern("", "?"));
}

TEST(MatchesPattern, DoesNotHeedCase) {
    EXPECT_TRUE(MatchesPattern("TAG.BMP", "*.bmp"));
    EXPECT_TRUE(MatchesPattern("tag.bmp", "*.BMP"));
    EXPECT_TRUE(MatchesPattern("\xC3\x89.bmp", "\xC3\xA9.bmp"));  // É, é
}

TEST(MatchesPattern, TakesOtherSignsAsTheyAre) {
    EXPECT_FALSE(MatchesPattern("axbmp", "a.bmp"));
    EXPECT_TRUE(MatchesPattern("a[1].bmp", "a[1].*"));
    EXPECT_TRUE(MatchesPattern("", ""));
    EXPECT_FALSE(MatchesPattern("a", ""));
}

TEST(MatchesPattern, IsQuickWithManyStars) {
    EXPECT_FALSE(MatchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

TEST(ListFiles, PicksByPatternAndSortsWithoutCase) {
    const TemporaryFolder folder;
    for (const char* name : {"b.BMP", "A.bmp", "c.jpg", "C.gif", "d.txt", "bmp"})
        folder.Write(name, "");
    EXPECT_EQ(ListFiles(folder.Path(), "*.bmp;*.jpg;*.gif"), (Names{"A.bmp", "b.BMP", "C.gif", "c.jpg"}));
    EXPECT_EQ(ListFiles(folder.Path(), " *.jpg ; *.txt "), (Names{"c.jpg", "d.txt"}));
    EXPECT_EQ(ListFiles(folder.Path(), ""), Names{});
    EXPECT_EQ(ListFiles(folder.Path(), ";;"), Names{});
}

TEST(ListFiles, NamesAFileOnceThoughTwoPatternsMatch) {
    const TemporaryFolder folder;
    folder.Write("a.bmp", "");
    EXPECT_EQ(ListFiles(folder.Path(), "*.bmp;*;a*"), Names{"a.bmp"});
}

TEST(ListFiles, HoldsRegularFilesAlone) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder.bmp");
    fs::create_symlink(folder / "gone", folder / "broken.bmp");
    fs::create_symlink(folder.Write("file.bmp", ""), folder / "link.bmp");
    fs::create_symlink(folder / "folder.bmp", folder / "to folder.bmp");
    ASSERT_EQ(::mkfifo((folder / "pipe.bmp").c_str(), 0600), 0);
    EXPECT_EQ(ListFiles(folder.Path(), "*.bmp"), (Names{"file.bmp", "link.bmp"}));
}

TEST(ListFiles, KeepsNamesThatAreNoText) {
    const TemporaryFolder folder;
    folder.Write("\xFF\xFE.bmp", "content");
    const auto names = ListFiles(folder.Path(), "*.bmp");
    ASSERT_EQ(names, Names{"\xFF\xFE.bmp"});
    EXPECT_TRUE(FileExists(folder / names[0]));
}

TEST(ListFiles, GivesNothingForAFolderThatCannotBeRead) {
    const TemporaryFolder folder;
    const auto file = folder.Write("file", "");
    EXPECT_EQ(ListFiles(folder / "missing", "*"), Names{});
    EXPECT_EQ(ListFiles(file, "*"), Names{});
    EXPECT_EQ(ListFiles({}, "*"), Names{});
}

TEST(FindFile, TakesTheVeryNameFirst) {
    const TemporaryFolder folder;
    for (const char* name : {"a.PAT", "A.pat", "a.pat", "b.Pat", "B.PAT"})
        folder.Write(name, "");
    EXPECT_EQ(FindFile(folder.Path(), "a.pat"), folder / "a.pat");
    EXPECT_EQ(FindFile(folder.Path(), "a.PAT"), folder / "a.PAT");
    EXPECT_EQ(FindFile(folder.Path(), "A.PAT"), folder / "A.pat");
    EXPECT_EQ(FindFile(folder.Path(), "b.pat"), folder / "B.PAT");
    EXPECT_EQ(FindFile(folder.Path(), "c.pat"), std::nullopt);
}

TEST(FindFile, TakesNoPatterns) {
    const TemporaryFolder folder;
    folder.Write("ab.pat", "");
    EXPECT_EQ(FindFile(folder.Path(), "a?.pat"), std::nullopt);
    EXPECT_EQ(FindFile(folder.Path(), "*"), std::nullopt);
}

TEST(FindFile, KnowsLettersWithAccents) {
    const TemporaryFolder folder;
    folder.Write("\u00C9\u00C9n.PAT", "");
    EXPECT_EQ(FindFile(folder.Path(), "\u00E9\u00E9n.pat"), folder / "\u00C9\u00C9n.PAT");
    EXPECT_EQ(FindFile(folder.Path(), "een.pat"), std::nullopt);
}

TEST(FindFile, FindsRegularFilesByPlainNames) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "a.pat");
    fs::create_directory(folder / "folder");
    folder.Write("folder/b", "");
    EXPECT_EQ(FindFile(folder.Path(), "a.pat"), std::nullopt);
    folder.Write("A.PAT", "");
    EXPECT_EQ(FindFile(folder.Path(), "a.pat"), folder / "A.PAT");
    for (const char* name : {"", ".", "folder/b", "folder\\b"})
        EXPECT_EQ(FindFile(folder.Path(), name), std::nullopt) << name;
    EXPECT_EQ(FindFile(folder / "gone", "a.pat"), std::nullopt);
}

TEST(ListFolders, LeavesFilesAndHiddenFoldersOut) {
    const TemporaryFolder folder;
    for (const char* name : {"b", "A", ".hidden", "c"})
        fs::create_directory(folder / name);
    folder.Write("file", "");
    fs::create_symlink(folder / "A", folder / "link");
    fs::create_symlink(folder / "gone", folder / "broken");
    EXPECT_EQ(ListFolders(folder.Path()), (Names{"A", "b", "c", "link"}));
    EXPECT_EQ(ListFolders(folder / "missing"), Names{});
}

}  // namespace
}  // namespace coinlet
