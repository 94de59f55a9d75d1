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

struct SampleForm : Form {
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
    SampleForm form{services.ForForms(), "Sample"};
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
    form.Dir1.UserPicks(0);
    form.Dir1.UserActivates();
    EXPECT_EQ(log.Take(), (Lines{"Dir1.Click", "Dir1.DblClick"}));
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

TEST_F(FileBoxesTest, ThePlacesStartWithTheRootAndAnotherOneIsAChange) {
    EXPECT_EQ(form.Drive1.List(0), "/");
    form.Drive1.AddItem("/elsewhere");
    form.Drive1.SetDrive("/elsewhere");
    EXPECT_EQ(form.Drive1.Drive(), "/elsewhere");
    EXPECT_EQ(log.Take(), (Lines{"Drive1.Click", "Drive1.Change"}));
    form.Drive1.SetDrive("/not listed");
    EXPECT_EQ(log.Take(), Lines{});
    form.Drive1.UserPicks(form.Drive1.ListIndex());
    EXPECT_EQ(log.Take(), Lines{"Drive1.Click"});
    form.Drive1.UserPicks(0);
    EXPECT_EQ(form.Drive1.Drive(), "/");
    EXPECT_EQ(log.Take(), (Lines{"Drive1.Click", "Drive1.Change"}));
}

TEST(RemovablePlaces, AreTheMountsBelowMediaAndMnt) {
    EXPECT_EQ(RemovablePlaces("/dev/sda1 / ext4 rw 0 0\n"
                              "/dev/sdb1 /mnt/old\\040disk vfat rw 0 0\n"
                              "/dev/sdc1 /media/user/STICK vfat rw 0 0\n"
                              "tmpfs /mnt tmpfs rw 0 0\n"
                              "/dev/sdd1 /mnting ext4 rw 0 0\n"
                              "/dev/sdc1 /media/user/STICK vfat rw 0 0\n"
                              "broken\n"
                              "\n"
                              "x /mnt/cut\\04 vfat\n"),
              (Lines{"/media/user/STICK", "/mnt/cut\\04", "/mnt/old disk"}));
    EXPECT_EQ(RemovablePlaces(""), Lines{});
}

}  // namespace
}  // namespace coinlet
