// The palette of the chooser of the fill colour, pixel by pixel.
#include "colour/pms_form.h"

#include "support/world.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

constexpr int boxes = 28, boxesARow = 14, pitch = 20;

constexpr std::array<Colour, boxes> standardColours{
    RGB(0, 0, 0),       RGB(99, 99, 99),    RGB(189, 189, 189), RGB(255, 255, 255),  //
    RGB(255, 252, 13),  RGB(255, 255, 125), RGB(255, 242, 176), RGB(255, 133, 0),    //
    RGB(171, 97, 0),    RGB(112, 81, 0),    RGB(255, 71, 227),  RGB(235, 0, 155),    //
    RGB(130, 7, 78),    RGB(255, 214, 161), RGB(41, 255, 112),  RGB(0, 181, 60),     //
    RGB(2, 99, 28),     RGB(255, 84, 128),  RGB(245, 64, 41),   RGB(184, 0, 7),      //
    RGB(117, 130, 255), RGB(28, 0, 255),    RGB(12, 0, 130),    RGB(130, 252, 255),  //
    RGB(38, 207, 255),  RGB(0, 128, 135),   RGB(89, 0, 142),    RGB(224, 146, 112),  //
};

/// What lies in a box at (x, y) from its corner: a black edge, a white gap of one pixel, and the colour.
Colour PixelOfBox(int x, int y, Colour colour) {
    const auto isOnEdge = [](int place) { return place % pitch == 0; };
    const auto isInside = [](int place) { return place >= 2 && place <= pitch - 2; };
    if (isOnEdge(x) || isOnEdge(y)) return black;
    return isInside(x) && isInside(y) ? colour : white;
}

class PmsFormTest : public testing::Test, protected World {};

TEST_F(PmsFormTest, ThePaletteHasItsTwentyEightColours) {
    PMSForm dialog(context);
    dialog.Form_Load();
    const Surface& palette = dialog.Pic.surface;
    ASSERT_EQ(palette.PixelWidth(), 281);
    ASSERT_EQ(palette.PixelHeight(), 41);
    for (int box = 0; box < boxes; ++box) {
        const int left = box % boxesARow * pitch, top = box / boxesARow * pitch;
        for (int y = 0; y <= pitch; ++y) {
            for (int x = 0; x <= pitch; ++x) {
                ASSERT_EQ(palette.Point(left + x, top + y),
                          PixelOfBox(x, y, standardColours.at(static_cast<std::size_t>(box))))
                    << "box " << box << " at " << x << ", " << y;
            }
        }
    }
}

}  // namespace
}  // namespace coinlet::test
