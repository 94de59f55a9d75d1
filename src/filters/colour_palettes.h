#pragma once

#include "core/materials.h"
#include "filters/colour_replacement.h"

#include <array>
#include <string_view>

namespace coinlet {

/// An entry of the list of palettes. The first one, with its index, is the user's own: it holds what the
/// boxes show when the dialog opens, and choosing it again leaves them alone.
struct ColourPalette {
    std::string_view name;
    PaletteColours targets, results;
};

constexpr int ownPalette = 0;
/// From this entry on the palettes stand for metals: silver and gold follow copper.
constexpr int firstMetalPalette = 8;

namespace palette_colours {

constexpr Colour red = RGB(255, 0, 0), green = RGB(0, 255, 0), darkGreen = RGB(0, 192, 0),
                 blue = RGB(0, 0, 255), gray = RGB(192, 192, 192);
constexpr PaletteColours plain{red, green, blue, black, white};
constexpr PaletteColours plainDarkGreen{red, darkGreen, blue, black, white};
constexpr PaletteColours pale{RGB(255, 128, 128), RGB(128, 255, 128), RGB(128, 128, 255), gray, white};
constexpr PaletteColours mixed{RGB(255, 255, 0), RGB(0, 255, 255), RGB(255, 0, 255), black, white};

}  // namespace palette_colours

/// What is black becomes the metal.
constexpr ColourPalette MetalPalette(const Material& metal) {
    return {metal.name,
            palette_colours::plain,
            {palette_colours::red, palette_colours::green, palette_colours::blue, metal.Shade(), white}};
}

constexpr std::array<ColourPalette, 11> colourPalettes{{
    {"Current Colors", palette_colours::plainDarkGreen, palette_colours::plainDarkGreen},
    {"Example1", palette_colours::plainDarkGreen, palette_colours::plainDarkGreen},
    {"Example2",
     palette_colours::plain,
     {RGB(255, 255, 0), RGB(255, 128, 0), RGB(192, 0, 192), RGB(255, 0, 255), RGB(0, 255, 0)}},
    {"Example3", palette_colours::pale, palette_colours::pale},
    {"Example4",
     palette_colours::plainDarkGreen,
     {RGB(255, 192, 192), RGB(192, 255, 192), RGB(192, 192, 255), palette_colours::gray, RGB(240, 230, 140)}},
    {"Example5",
     palette_colours::plain,
     {palette_colours::green, palette_colours::blue, palette_colours::red, white, black}},
    {"Example6", palette_colours::mixed, palette_colours::mixed},
    {"Example7", palette_colours::plain, {white, white, white, black, white}},
    MetalPalette(shinyCopper),
    MetalPalette(shinySilver),
    MetalPalette(shinyGold),
}};

}  // namespace coinlet
