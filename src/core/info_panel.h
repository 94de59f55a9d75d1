#pragma once

#include "surface/colour.h"

namespace coinlet {

class MainForm;

/// The side panel has ten rows for PMS colours; row i starts at this height, in pixels.
constexpr int infoRows = 10;
constexpr int InfoRowTop(int row) {
    return 60 + 25 * row;
}

/// The colour of "PMS" beside an empty row: at the start of the program, and after "New".
constexpr Colour infoTextAtStart = RGB(50, 50, 50);
constexpr Colour infoTextAfterNew = RGB(90, 90, 90);

/// Prints what the side panel shows on the strip above it.
void PrintInfoHeader(MainForm& main);
/// Draws the ten empty rows of the side panel.
void DrawInfoRows(MainForm& main, Colour textColour);

}  // namespace coinlet
