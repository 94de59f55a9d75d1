// Lists of whole numbers.
#include "controls/number_list.h"

#include "controls/combo_box.h"
#include "support/test_platform.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace coinlet {
namespace {

struct Filled : Form {
    Filled(FormServices services, const NumberList& numbers) : Form(services, "Sample") {
        Combo.Click = [this] { ++clicks; };
        FillWithNumbers(Combo, numbers);
    }
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        rows.reserve(static_cast<std::size_t>(Combo.ListCount()));
        for (int i = 0; i < Combo.ListCount(); ++i)
            rows.push_back(Combo.List(i));
        return rows;
    }

    ComboBox Combo{*this, "Combo"};
    int clicks = 0;
};

TEST(NumberList, GoesInStepsFromTheFirstToTheLastAndChoosesOne) {
    test::TestServices services;
    const Filled filled(services.ForForms(), {4, 10, 2, 8});
    EXPECT_EQ(filled.Rows(), (std::vector<std::string>{"4", "6", "8", "10"}));
    EXPECT_EQ(filled.Combo.ListIndex(), 2);
    EXPECT_EQ(filled.Combo.Text(), "8");
    EXPECT_EQ(filled.clicks, 1);
}

TEST(NumberList, EndsAtTheLastNumberThatAStepReaches) {
    test::TestServices services;
    const Filled filled(services.ForForms(), {0, 9, 4, 0});
    EXPECT_EQ(filled.Rows(), (std::vector<std::string>{"0", "4", "8"}));
    EXPECT_EQ(filled.Combo.Text(), "0");
}

}  // namespace
}  // namespace coinlet
