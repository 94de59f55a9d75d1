// Bars that were given other ends, and the layout.
#include "colour/glitter_form.h"

#include "support/world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace coinlet::test {
namespace {

class GlitterFormTest : public testing::Test, protected World {};

TEST_F(GlitterFormTest, TakesAnyValueOfItsBars) {
    GlitterForm dialog(context);
    for (const int value : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        for (ScrollBar* bar : {&dialog.HScroll, &dialog.VScroll}) {
            bar->SetRange(std::min(value, 0), std::max(value, 0));
            bar->SetValue(value);
        }
        EXPECT_EQ(dialog.SlidePic.Left(), -static_cast<double>(value));
        EXPECT_EQ(dialog.SlidePic.Top(), -static_cast<double>(value));
    }
}

}  // namespace
}  // namespace coinlet::test
