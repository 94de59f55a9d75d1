#pragma once

#include "surface/colour.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace coinlet {

/// One of the four metals that tags are made in.
struct Material {
    std::string_view name;
    std::int16_t red, green, blue;
    int holeColumn;  ///< Where its cell starts in the picture of holes, in pixels.

    constexpr Colour Shade() const { return RGB(red, green, blue); }
};

constexpr Material blackNickel{"Black Nickel", 0, 0, 0, 0};
constexpr Material shinyCopper{"Shiny Copper", 228, 112, 30, 100};
constexpr Material shinySilver{"Shiny Silver", 128, 128, 132, 200};
constexpr Material shinyGold{"Shiny Gold", 240, 173, 0, 300};

/// In the order of the dialogs.
constexpr std::array<Material, 4> materials{blackNickel, shinyCopper, shinySilver, shinyGold};

}  // namespace coinlet
