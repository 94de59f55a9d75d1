// Cells in a row: where they are, and which of them a place hits.
#include "libraries/cell_row.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

constexpr CellRow row{3, 20, 10, 2};

TEST(CellRow, LiesFromTheLeftToTheRight) {
    const auto places = Places(row);
    ASSERT_EQ(places.size(), 3U);
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i].x, 20.0 * static_cast<double>(i));
        EXPECT_EQ(places[i].y, 0);
        EXPECT_EQ(places[i].width, 20);
        EXPECT_EQ(places[i].height, 10);
    }
}

TEST(CellRow, ACellEndsBeforeItsEdges) {
    for (int i = 0; i < row.count; ++i) {
        const float left = 20.0F * static_cast<float>(i);
        EXPECT_EQ(CellAt(row, left + 2, 5), std::nullopt) << i;
        EXPECT_EQ(CellAt(row, left + 3, 5), i);
        EXPECT_EQ(CellAt(row, left + 17, 5), i);
        EXPECT_EQ(CellAt(row, left + 18, 5), std::nullopt) << i;
        EXPECT_EQ(CellAt(row, left + 10, 2), std::nullopt) << i;
        EXPECT_EQ(CellAt(row, left + 10, 3), i);
        EXPECT_EQ(CellAt(row, left + 10, 7), i);
        EXPECT_EQ(CellAt(row, left + 10, 8), std::nullopt) << i;
    }
}

TEST(CellRow, NothingLiesBeyondTheCells) {
    constexpr float huge = std::numeric_limits<float>::infinity(),
                    nan = std::numeric_limits<float>::quiet_NaN();
    for (const float nowhere : {-10.0F, 70.0F, 1e30F, huge, -huge, nan}) {
        EXPECT_EQ(CellAt(row, nowhere, 5), std::nullopt) << nowhere;
        EXPECT_EQ(CellAt(row, 10, nowhere), std::nullopt) << nowhere;
    }
}

}  // namespace
}  // namespace coinlet
