#pragma once

#include "controls/picture_box.h"
#include "surface/surface.h"

#include <optional>
#include <string_view>
#include <vector>

namespace coinlet {

// The side panel beside the canvas, `InfoPic`: the metal of the tag, ten rows for its PMS colours, and its
// back. It is pixels and nothing else; whoever has something to show there draws it by these functions, on
// the surface of the panel. Places are its pixels.

constexpr int sidePanelWidth = 178, sidePanelHeight = 500;

/// The rows count from 0, from above.
constexpr int sidePanelRows = 10;

/// Where the back of the tag is shown.
constexpr int sidePanelBackLeft = 14, sidePanelBackTop = 340, sidePanelBackSide = 150;

/// The colour of "PMS" beside an empty row: at the start of the program, and after "New".
constexpr Colour rowTextAtStart = RGB(50, 50, 50);
constexpr Colour rowTextAfterNew = RGB(90, 90, 90);

/// Prints what the panel shows on the strip above it.
void PrintSidePanelHeader(PictureBox& strip);

/// Draws the ten rows with empty swatches, over what the panel holds.
void DrawEmptyRows(Surface& panel, Colour textColour);

/// The row whose swatch is at that place; the swatch's own edge isn't part of it.
std::optional<int> SwatchAt(float x, float y);

/// Where the swatches are, row by row.
std::vector<Rectangle> SwatchPlaces();

/// Fills the swatch of a row with a colour, from the place in it that was pressed: what is of one colour
/// there is filled, and the swatch gets a white frame.
void FillSwatch(Surface& panel, int row, float x, float y, Colour colour);

/// Prints the name of a colour beside a swatch, in place of the one that stood there.
void PrintRowName(Surface& panel, int row, std::string_view name);

/// Makes a row empty: its swatch is gray in a white frame, the field beside it blank.
void ClearRow(Surface& panel, int row);

/// Prints the name of a metal, in place of the one that stood there.
void PrintMetal(Surface& panel, std::string_view name);

/// Wipes the name of a metal. A panel that shows none stays untouched, so that a stored design doesn't count
/// as changed.
void WipeMetal(Surface& panel);

/// Paints a picture of a tag's back in its place; of a larger one the upper left corner.
void PaintBack(Surface& panel, const Image& back);

}  // namespace coinlet
