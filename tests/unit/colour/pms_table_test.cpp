// The PMS colour table: how a line is split, and how a colour is found and called.

#include "colour/pms_table.h"

#include "controls/form.h"
#include "controls/list_box.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace coinlet {
namespace {

class PmsTableTest : public testing::Test {
protected:
    ListBox& TableOf(std::initializer_list<const char*> lines) {
        table_.Clear();
        for (const char* line : lines)
            table_.AddItem(line);
        return table_;
    }

    test::TestServices services_;
    Form form_{services_.ForForms(), "Form"};
    ListBox table_{form_, "PMSlist"};
};

TEST_F(PmsTableTest, ALineHasNineFields) {
    const auto fields = SplitPmsLine("Cool Gray 5,1,2,,4,177,179,179,B1B3B3");
    ASSERT_TRUE(fields);
    EXPECT_EQ((*fields)[pmsCode], "Cool Gray 5");
    EXPECT_EQ((*fields)[pmsCyan], "1");
    EXPECT_EQ((*fields)[pmsMagenta], "2");
    EXPECT_EQ((*fields)[pmsYellow], "");
    EXPECT_EQ((*fields)[pmsBlack], "4");
    EXPECT_EQ((*fields)[pmsRed], "177");
    EXPECT_EQ((*fields)[pmsGreen], "179");
    EXPECT_EQ((*fields)[pmsBlue], "179");
    EXPECT_EQ((*fields)[pmsHex], "B1B3B3");
}

TEST_F(PmsTableTest, FieldsKeepTheirBlanks) {
    const auto fields = SplitPmsLine(" 100,0,0,0,0, 1,2 ,3, x ");
    ASSERT_TRUE(fields);
    EXPECT_EQ((*fields)[pmsCode], " 100");
    EXPECT_EQ((*fields)[pmsRed], " 1");
    EXPECT_EQ((*fields)[pmsGreen], "2 ");
    EXPECT_EQ((*fields)[pmsHex], " x ");
    EXPECT_EQ(PmsCodeOf(" 100,0"), " 100");
}

TEST_F(PmsTableTest, ALineOfOtherLengthIsNoEntryUnlessItIsLonger) {
    EXPECT_FALSE(SplitPmsLine("100,0,0,0,0,1,2,3"));
    EXPECT_FALSE(SplitPmsLine(""));
    const auto longer = SplitPmsLine("100,0,0,0,0,1,2,3,010203,more");
    ASSERT_TRUE(longer);
    EXPECT_EQ((*longer)[pmsHex], "010203");
    EXPECT_EQ(PmsCodeOf("100"), "100");
}

TEST_F(PmsTableTest, TheFirstLineWithAColourGivesItsName) {
    const ListBox& table = TableOf({"A,0,0,0,0,1,2,4,x", "B,0,0,0,0,1,2,3,x", "C,0,0,0,0,1,2,3,x"});
    EXPECT_EQ(FindPmsColour(table, "1", "2", 3), 1);
    EXPECT_EQ(PmsColourName(table, "1", "2", 3), "PMS B");
}

TEST_F(PmsTableTest, RedAndGreenAreComparedAsTextsAndBlueAsANumber) {
    const ListBox& table = TableOf({"A,0,0,0,0, 1,2,3,x", "B,0,0,0,0,01,2,3,x", "C,0,0,0,0,1,2 ,3,x",
                                    "D,0,0,0,0,1,2, 03,x", "E,0,0,0,0,1,2,3,x"});
    EXPECT_EQ(FindPmsColour(table, "1", "2", 3), 3);
    EXPECT_EQ(FindPmsColour(table, " 1", "2", 3), 0);
    EXPECT_EQ(FindPmsColour(table, "1", "2 ", 3), 2);
}

TEST_F(PmsTableTest, AColourThatIsNotInTheTableIsCalledByItsChannels) {
    EXPECT_EQ(PmsColourName(TableOf({"A,0,0,0,0,1,2,4,x"}), "10", "200", 30), "RGB 10,200,30");
    EXPECT_EQ(PmsColourName(TableOf({}), "-1", "0", 0), "RGB -1,0,0");
}

TEST_F(PmsTableTest, BrokenLinesArePassedOver) {
    const ListBox& table = TableOf({"A,1,2,3", "B,0,0,0,0,1,2,3,x"});
    EXPECT_EQ(PmsColourName(table, "1", "2", 3), "PMS B");
}

TEST_F(PmsTableTest, AChannelIsTheNumberItsTextStartsWith) {
    EXPECT_EQ(PmsChannel("255"), 255);
    EXPECT_EQ(PmsChannel(" 12"), 12);
    EXPECT_EQ(PmsChannel("-1"), -1);
    EXPECT_EQ(PmsChannel("abc"), 0);
    EXPECT_EQ(PmsChannel("1e9"), 32767);
    EXPECT_EQ(PmsChannel("-1e9"), -32768);
}

}  // namespace
}  // namespace coinlet
