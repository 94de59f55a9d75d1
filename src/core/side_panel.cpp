#include "core/side_panel.h"

#include "base/numbers.h"
#include "surface/device.h"
#include "surface/print_at.h"

namespace coinlet {

namespace {

constexpr int firstRowTop = 60, rowPitch = 25, rowHeight = 20;
constexpr int RowTop(int row) {
    return firstRowTop + row * rowPitch;
}

// A swatch is a black box that ends up with a white frame within, and within that its colour.
constexpr int swatchLeft = 20, swatchRight = swatchLeft + rowHeight;
constexpr int frameInset = 1, colourInset = 2;
constexpr Colour emptyColour = RGB(195, 195, 195);

// The text beside it, and the fields that are wiped for it: for a name, and when the row is cleared.
constexpr int textLeft = 45, textDrop = 4;
constexpr int nameLeft = 44, nameRight = 180;
constexpr int clearedLeft = 70, clearedRight = 200;
constexpr float rowFontSize = 8;
constexpr Colour nameColour = RGB(50, 50, 50);

constexpr int metalTop = 15, metalBottom = 45, metalTextLeft = 19, metalTextTop = 20;
constexpr float metalFontSize = 12;

void DrawSwatchBox(Surface& panel, int top, int inset, Colour colour, Box box) {
    panel.Line(swatchLeft + inset, top + inset, swatchRight - inset, top + rowHeight - inset, colour, box);
}

void FrameSwatch(Surface& panel, int top) {
    DrawSwatchBox(panel, top, frameInset, white, Box::Outline);
}

void WipeMetalField(Surface& panel) {
    panel.Line(0, metalTop, sidePanelWidth, metalBottom, white, Box::Filled);
}

/// Or anything else in its place.
bool ShowsMetal(const Surface& panel) {
    for (int y = metalTop; y <= metalBottom; ++y) {
        for (int x = 0; x < sidePanelWidth; ++x)
            if (panel.Point(x, y) != white) return true;
    }
    return false;
}

}  // namespace

void PrintSidePanelHeader(PictureBox& strip) {
    strip.surface.FontSize = rowFontSize;
    strip.surface.CurrentX = 4;
    strip.surface.CurrentY = 3;
    strip.PrintToRead("Material, PMS Colors and Back");
}

void DrawEmptyRows(Surface& panel, Colour textColour) {
    panel.FontSize = rowFontSize;
    panel.FontBold = false;
    panel.ForeColor = textColour;
    for (int row = 0; row < sidePanelRows; ++row) {
        const int top = RowTop(row);
        DrawSwatchBox(panel, top, 0, black, Box::Outline);
        DrawSwatchBox(panel, top, colourInset, emptyColour, Box::Filled);
        PrintAt(panel, textLeft, top + textDrop, "PMS");
    }
}

std::optional<int> SwatchAt(float x, float y) {
    const auto inside = [](float place, int start) {
        return place > static_cast<float>(start + frameInset) &&
               place < static_cast<float>(start + rowHeight - frameInset);
    };
    for (int row = 0; row < sidePanelRows; ++row)
        if (inside(x, swatchLeft) && inside(y, RowTop(row))) return row;
    return {};
}

std::vector<Rectangle> SwatchPlaces() {
    std::vector<Rectangle> places;
    places.reserve(sidePanelRows);
    for (int row = 0; row < sidePanelRows; ++row)
        places.push_back({swatchLeft, static_cast<double>(RowTop(row)), rowHeight + 1, rowHeight + 1});
    return places;
}

void FillSwatch(Surface& panel, int row, float x, float y, Colour colour) {
    panel.DrawMode = copyPen;
    panel.FillColor = colour;
    panel.FillStyle = solidFill;
    ExtFloodFill(panel.hDC(), RoundHalfEven(x), RoundHalfEven(y), panel.Point(x, y), FLOODFILLSURFACE);
    FrameSwatch(panel, RowTop(row));
    panel.Refresh();
    panel.FillStyle = transparentFill;
}

void PrintRowName(Surface& panel, int row, std::string_view name) {
    const int top = RowTop(row);
    panel.Line(nameLeft, top, nameRight, top + rowHeight, white, Box::Filled);
    panel.FontSize = rowFontSize;
    panel.ForeColor = nameColour;
    PrintAt(panel, textLeft, top + textDrop, name);
}

void ClearRow(Surface& panel, int row) {
    const int top = RowTop(row);
    panel.DrawMode = copyPen;
    DrawSwatchBox(panel, top, colourInset, emptyColour, Box::Filled);
    FrameSwatch(panel, top);
    panel.Line(clearedLeft, top, clearedRight, top + rowHeight, white, Box::Filled);
}

void PrintMetal(Surface& panel, std::string_view name) {
    WipeMetalField(panel);
    panel.FontSize = metalFontSize;
    panel.ForeColor = black;
    PrintAt(panel, metalTextLeft, metalTextTop, name);
}

void WipeMetal(Surface& panel) {
    if (ShowsMetal(panel)) WipeMetalField(panel);
}

void PaintBack(Surface& panel, const Image& back) {
    constexpr double side = sidePanelBackSide;
    panel.PaintPicture(back, {sidePanelBackLeft, sidePanelBackTop, side, side}, {0, 0, side, side});
}

}  // namespace coinlet
