// Lists filled from text files.
#include "core/row_file.h"

#include "controls/form.h"
#include "controls/list_box.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace coinlet::test {
namespace {

class RowFileTest : public testing::Test {
protected:
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (int i = 0; i < list.ListCount(); ++i)
            rows.push_back(list.List(i));
        return rows;
    }

    TestServices services;
    Form form{services.ForForms(), "Form"};
    ListBox list{form, "List1"};
    TemporaryFolder folder;
};

TEST_F(RowFileTest, KeepsLinesAsTheyStandAndLeavesOutBlankOnes) {
    AddRows(list, "one\r\n\r\n   \r\n two \n\t\nthr\xE9\x80");
    EXPECT_EQ(Rows(), (std::vector<std::string>{"one", " two ", "\t", "thré€"}));
}

TEST_F(RowFileTest, AddsToTheRowsThereAre) {
    list.AddItem("before");
    AddRowsOfFile(list, folder.Write("rows.txt", "after\r\n"));
    EXPECT_EQ(Rows(), (std::vector<std::string>{"before", "after"}));
}

TEST_F(RowFileTest, AddsNothingFromWhatIsNoFileOrTooLarge) {
    AddRowsOfFile(list, folder / "missing.txt");
    AddRowsOfFile(list, folder.Path());
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    AddRowsOfFile(list, folder / "pipe");
    folder.Write("large.txt", "row\r\n");
    fs::resize_file(folder / "large.txt", (std::uintmax_t{16} << 20) + 1);
    AddRowsOfFile(list, folder / "large.txt");
    EXPECT_EQ(list.ListCount(), 0);
}

}  // namespace
}  // namespace coinlet::test
