// The lists of files, folders and places.

#include "controls/file_boxes.h"

#include "base/files.h"
#include "event_log.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

#include <fstream>
#include <gtest/gtest.h>

namespace coinlet {
namespace {

using test::Lines;

struct FileBoxesForm : Form {
    using Form::Form;

    FileListBox File1{*this, "File1"};
    DirListBox Dir1{*this, "Dir1"};
    DriveListBox Drive1{*this, "Drive1"};
};

struct FileBoxesTest : testing::Test {
    FileBoxesTest() {
        fs::create_directories(folder.Path() / "sub" / "deep");
        fs::create_directories(folder.Path() / "Other");
        for (const char* name : {"b.BMP", "A.jpg", "c.txt", "sub/x.bmp"})
            std::ofstream(folder.Path() / name) << "x";
        services.platform.ShowMain(form);
        log.Listen(form.File1, &Control::Click, "Click");
        log.Listen(form.Dir1, &Control::Click, "Click");
        log.Listen(form.Dir1, &ListBox::DblClick, "DblClick");
        log.Listen(form.Dir1, &DirListBox::Change, "Change");
        log.Listen(form.Drive1, &Control::Click, "Click");
        log.Listen(form.Drive1, &DriveListBox::Change, "Change");
    }

    static Lines RowsOf(const ListBox& list) {
        Lines rows;
        for (int i = 0; i < list.ListCount(); ++i)
            rows.push_back(list.List(i));
        return rows;
    }
    /// The rows from the one in use on.
    static Lines RowsFromChosen(const ListBox& list) {
        Lines rows = RowsOf(list);
        rows.erase(rows.begin(), rows.begin() + list.ListIndex());
        return rows;
    }

    test::TemporaryFolder folder;
    test::TestServices services;
    FileBoxesForm form{services.ForForms(), "Sample"};
    test::EventLog log;
};

TEST_F(FileBoxesTest, FilesAreThoseOfTheFolderThatMatch) {
    form.File1.SetPath(folder.Path().string());
    EXPECT_EQ(RowsOf(form.File1), (Lines{"A.jpg", "b.BMP", "c.txt"}));
    form.File1.SetListIndex(2);
    log.Take();
    form.File1.SetPattern("*.bmp;*.jpg");
    EXPECT_EQ(RowsOf(form.File1), (Lines{"A.jpg", "b.BMP"}));
    EXPECT_EQ(form.File1.ListIndex(), -1);
    std::ofstream(folder.Path() / "0.bmp") << "x";
    form.File1.SetPath(form.File1.Path());
    EXPECT_EQ(form.File1.List(0), "0.bmp");
    fs::remove(folder.Path() / "0.bmp");
    form.File1.Refresh();
    EXPECT_EQ(form.File1.List(0), "A.jpg");
    form.File1.SetPath((folder.Path() / "missing").string());
    EXPECT_EQ(form.File1.ListCount(), 0);
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FileBoxesTest, TheFolderListHoldsTheWayDownAndWhatIsInIt) {
    form.Dir1.SetPath(folder.Path().string());
    EXPECT_EQ(log.Take(), Lines{"Dir1.Change"});
    EXPECT_EQ(form.Dir1.List(0), "/");
    EXPECT_EQ(RowsFromChosen(form.Dir1), (Lines{folder.Path().filename().string(), "Other", "sub"}));
    // As many rows above the chosen one as the path has parts before its last.
    EXPECT_EQ(form.Dir1.ListIndex(), std::distance(folder.Path().begin(), folder.Path().end()) - 1);
}

TEST_F(FileBoxesTest, ADoubleClickGoesThere) {
    form.Dir1.SetPath(folder.Path().string());
    const int here = form.Dir1.ListIndex();
    log.Take();
    form.Dir1.UserPicks(here + 2);
    EXPECT_EQ(form.Dir1.Path(), folder.Path().string());
    form.Dir1.UserActivates();
    EXPECT_EQ(form.Dir1.Path(), (folder.Path() / "sub").string());
    EXPECT_EQ(log.Take(), (Lines{"Dir1.Click", "Dir1.DblClick", "Dir1.Change"}));
    EXPECT_EQ(RowsFromChosen(form.Dir1), (Lines{"sub", "deep"}));
    form.Dir1.UserPicks(0);
    form.Dir1.UserActivates();
    EXPECT_EQ(form.Dir1.Path(), "/");
    log.Take();
}

TEST_F(FileBoxesTest, TheFolderInUseMayBeChosenAnew) {
    form.Dir1.SetPath(folder.Path().string());
    log.Take();
    fs::create_directories(folder.Path() / "new");
    form.Dir1.UserActivates();
    EXPECT_EQ(log.Take(), (Lines{"Dir1.DblClick", "Dir1.Change"}));
    EXPECT_EQ(RowsFromChosen(form.Dir1), (Lines{folder.Path().filename().string(), "new", "Other", "sub"}));
    fs::remove_all(folder.Path());
    form.Dir1.KeyPressed(keyReturn, 0);
    EXPECT_EQ(log.Take(), (Lines{"Dir1.DblClick", "Dir1.Change"}));
}

TEST_F(FileBoxesTest, EnterGoesDownAndBackspaceUp) {
    form.Dir1.SetPath(folder.Path().string());
    log.Take();
    form.Dir1.UserPicks(form.Dir1.ListIndex() + 2);
    form.Dir1.KeyPressed(keyReturn, 0);
    EXPECT_EQ(form.Dir1.Path(), (folder.Path() / "sub").string());
    log.Take();
    form.Dir1.KeyPressed(keyBackspace, 0);
    EXPECT_EQ(form.Dir1.Path(), folder.Path().string());
    EXPECT_EQ(log.Take(), Lines{"Dir1.Change"});
    form.Dir1.SetPath("/");
    log.Take();
    form.Dir1.KeyPressed(keyBackspace, 0);
    EXPECT_EQ(form.Dir1.Path(), "/");
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FileBoxesTest, TheStartRaisesNothing) {
    EXPECT_EQ(form.Dir1.ListCount(), 0);
    form.Dir1.KeyPressed(keyBackspace, 0);
    EXPECT_FALSE(form.Dir1.StartWith((folder.Path() / "missing").string()));
    EXPECT_EQ(form.Dir1.ListCount(), 0);
    EXPECT_TRUE(form.Dir1.StartWith((folder.Path() / "sub").string()));
    EXPECT_EQ(RowsFromChosen(form.Dir1), (Lines{"sub", "deep"}));
    form.Drive1.StartWith({"/", folder.Path().string(), folder.Path().string() + "/su"}, form.Dir1.Path());
    EXPECT_EQ(form.Drive1.Drive(), folder.Path().string());
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FileBoxesTest, RowsKnowHowDeepTheyLie) {
    form.Dir1.StartWith((folder.Path() / "sub").string());
    const int chosen = form.Dir1.ListIndex();
    EXPECT_EQ(form.Dir1.DepthOf(0), 0);
    EXPECT_EQ(form.Dir1.DepthOf(1), 1);
    EXPECT_EQ(form.Dir1.DepthOf(chosen), chosen);
    EXPECT_EQ(form.Dir1.DepthOf(chosen + 1), chosen + 1);
    EXPECT_EQ(form.Dir1.DepthOf(chosen + 2), 0);
}

TEST_F(FileBoxesTest, LinksInALoopAndFoldersWithoutPermissionAreQuiet) {
    fs::create_symlink("ring", folder.Path() / "ring");
    fs::create_directory_symlink(folder.Path(), folder.Path() / "sub" / "back");
    form.Dir1.StartWith(folder.Path().string());
    EXPECT_EQ(RowsFromChosen(form.Dir1), (Lines{folder.Path().filename().string(), "Other", "sub"}));
    std::string path = folder.Path().string();
    for (int i = 0; i < 12; ++i) {
        path += "/sub/back";
        form.Dir1.SetPath(path);
        EXPECT_EQ(form.Dir1.Path(), path);
    }
    fs::create_directory(folder.Path() / "shut");
    fs::permissions(folder.Path() / "shut", fs::perms::none);
    form.Dir1.SetPath((folder.Path() / "shut").string());
    EXPECT_EQ(RowsFromChosen(form.Dir1), Lines{"shut"});
    form.File1.SetPath((folder.Path() / "shut").string());
    EXPECT_EQ(form.File1.ListCount(), 0);
    fs::permissions(folder.Path() / "shut", fs::perms::owner_all);
}

TEST_F(FileBoxesTest, ADoubleClickHandlerMayUnloadTheForm) {
    form.Dir1.SetPath(folder.Path().string());
    form.Dir1.SetListIndex(0);
    log.Take();
    form.Dir1.DblClick = [&] { form.Unload(); };
    form.Dir1.UserActivates();
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_EQ(form.Dir1.Path(), folder.Path().string());
}

TEST_F(FileBoxesTest, PathsThatAreNoFolderArePassedOver) {
    form.Dir1.SetPath(folder.Path().string());
    log.Take();
    form.Dir1.SetPath((folder.Path() / "missing").string());
    form.Dir1.SetPath((folder.Path() / "c.txt").string());
    form.Dir1.SetPath("");
    form.Dir1.SetPath((folder.Path() / "sub" / ".." / "").string());
    EXPECT_EQ(form.Dir1.Path(), folder.Path().string());
    EXPECT_EQ(log.Take(), Lines{});
}

TEST_F(FileBoxesTest, APlaceThatIsChosenIsAChangeAlsoWhenItWasBefore) {
    form.Drive1.StartWith({"/", "/home/user", "/media/user/STICK"}, "/srv/pictures");
    EXPECT_EQ(form.Drive1.Drive(), "/");
    form.Drive1.SetDrive("/home/user");
    EXPECT_EQ(form.Drive1.Drive(), "/home/user");
    EXPECT_EQ(log.Take(), (Lines{"Drive1.Click", "Drive1.Change"}));
    form.Drive1.SetDrive("/home/user");
    form.Drive1.SetDrive("/not listed");
    EXPECT_EQ(log.Take(), Lines{});
    form.Drive1.UserPicks(form.Drive1.ListIndex());
    EXPECT_EQ(log.Take(), (Lines{"Drive1.Click", "Drive1.Change"}));
    form.Drive1.UserPicks(0);
    EXPECT_EQ(form.Drive1.Drive(), "/");
    EXPECT_EQ(log.Take(), (Lines{"Drive1.Click", "Drive1.Change"}));
}

TEST(FolderNames, AFolderLiesInItselfAndInThoseAboveIt) {
    EXPECT_TRUE(LiesIn("/home/user", "/home/user"));
    EXPECT_TRUE(LiesIn("/home/user/a", "/home/user"));
    EXPECT_TRUE(LiesIn("/home", "/"));
    EXPECT_TRUE(LiesIn("/", "/"));
    EXPECT_FALSE(LiesIn("/home/username", "/home/user"));
    EXPECT_FALSE(LiesIn("/home", "/home/user"));
}

}  // namespace
}  // namespace coinlet
