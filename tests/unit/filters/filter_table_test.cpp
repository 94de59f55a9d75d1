// The table of the filters and their places in the menu.
#include "filters/filter_table.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace coinlet {
namespace {

TEST(FilterTable, GivesEveryEntryOfTheMenuAPlaceOfItsOwn) {
    std::set<std::pair<FilterMenuPart, int>> places;
    std::size_t entries = 0;
    for (const NumberedFilter& filter : AllFilters()) {
        for (const FilterEntry& entry : filter.Entries()) {
            EXPECT_TRUE(places.emplace(entry.part, entry.index).second) << entry.caption;
            ++entries;
        }
    }
    // The menu has 25 entries, less four effects and two heads; contrast has two, the swaps are five.
    EXPECT_EQ(entries, 25U - 4 - 2 + 2 + 5);
}

TEST(FilterTable, SwapsByTheNumberOfTheEntry) {
    for (const FilterEntry& entry : FindFilter(static_cast<int>(FilterNumber::SwapColours))->Entries())
        EXPECT_EQ(entry.parameter, entry.index) << entry.caption;
}

}  // namespace
}  // namespace coinlet
