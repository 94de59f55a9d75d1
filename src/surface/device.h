#pragma once

// Device operations: they reach a surface by its handle. Names and arguments are those that generations of
// desktop programmers know them by, as far as this program uses them. Coordinates are whole pixels from the
// top left corner; what falls outside the surface is clipped. `DrawMode` is not heeded.

#include "surface/surface.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace coinlet {

/// The pixel's colour, or -1 outside the surface. Handlers read whole pictures with it, pixel by pixel.
inline Colour GetPixel(DeviceContext hDC, int x, int y) {
    const Bitmap& pixels = hDC.Target().Pixels();
    return pixels.Contains(x, y) ? ToColour(pixels.Row(y)[x]) : -1;
}
/// Sets a pixel; outside the surface it does nothing.
inline void SetPixel(DeviceContext hDC, int x, int y, Colour colour) {
    Surface& target = hDC.Target();
    if (target.Pixels().Contains(x, y)) target.Write({x, y, x + 1, y + 1}).Row(y)[x] = ToPixel(colour);
}
inline void SetPixelV(DeviceContext hDC, int x, int y, Colour colour) {
    SetPixel(hDC, x, y, colour);
}

/// The fill mode of ExtFloodFill that this program uses: the region of exactly one colour.
constexpr int FLOODFILLSURFACE = 1;

/// Fills with `FillColor` the 4-connected region of pixels that have exactly `colour`, from (x, y) on. Does
/// nothing if the pixel there has another colour or lies outside, or if `FillStyle` isn't solidFill. `mode`
/// must be FLOODFILLSURFACE; another one does nothing. Returns true if pixels were visited.
bool ExtFloodFill(DeviceContext hDC, int x, int y, Colour colour, int mode);
/// Fills with `FillColor` from (x, y) outward until pixels of the border `colour`, 4-connected. Does nothing
/// and gives false if the pixel there has the border's colour or lies outside. With transparentFill it leaves
/// no mark.
bool FloodFill(DeviceContext hDC, int x, int y, Colour colour);

/// A rectangle with elliptical corners of width `w` and height `h`: its outline with the pen of `ForeColor`
/// and `DrawWidth`, filled with `FillColor` if `FillStyle` is solidFill. The right and bottom edges lie at x2
/// - 1 and y2 - 1. Corners the wrong way round are exchanged; corners larger than the box are cut to it.
void RoundRect(DeviceContext hDC, int x1, int y1, int x2, int y2, int w, int h);

/// Copies in the same size. Source and target may be one surface: the source counts as it was before.
void BitBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
            RasterOp op);
/// Copies stretched, by the rule of `PaintPicture`. A negative width or height runs from the given column or
/// row leftward or upward, that one included: (W - 1, 0) with -W, H is the whole picture from right to left.
void StretchBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
                int sw, int sh, RasterOp op);
/// As StretchBlt with SRCCOPY, but source pixels of `colour` are left out.
void TransparentBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
                    int sw, int sh, Colour colour);

/// A corner of a gradient; each channel has 16 bits of which the upper 8 show. They are signed where they
/// come from and count modulo 65536.
struct TRIVERTEX {
    int x = 0, y = 0;
    std::uint16_t Red = 0, Green = 0, Blue = 0, Alpha = 0;
};
/// The two vertices of a gradient rectangle, by their index.
struct GRADIENT_RECT {
    unsigned UpperLeft = 0, LowerRight = 1;
};
constexpr int GRADIENT_FILL_RECT_H = 0;
constexpr int GRADIENT_FILL_RECT_V = 1;

/// A two-colour gradient over each rectangle of `mesh`; the right and bottom edges are left out. Row i of n
/// of a vertical one has the colour (c0 (n - i) + c1 i) / n in 16 bits, its low byte dropped; columns of a
/// horizontal one alike. A rectangle given with its x or y the wrong way round is the same area; each vertex
/// keeps its colour, so that the upper one gives the top colour and the left one the left colour. Returns
/// false, drawing nothing, on an index outside `vertices` or another mode.
bool GradientFill(DeviceContext hDC, std::span<const TRIVERTEX> vertices, std::span<const GRADIENT_RECT> mesh,
                  int mode);

/// How a memory buffer holds a picture: 32 bits a pixel, blue, green, red, spare, rows without padding. A
/// negative height puts the top row first, a positive one the bottom row.
struct BITMAPINFO {
    int biWidth = 0, biHeight = 0;
};
/// Copies `lines` rows between the surface and `buffer`, which holds just these rows, from row `start` of the
/// picture on, counted in the buffer's order. Rows beyond either end, a width or height that isn't the
/// surface's, or a buffer too small copy nothing. The spare byte is copied out as it is; into a surface it
/// always becomes 255. Returns the number of rows copied.
int GetDIBits(DeviceContext hDC, int start, int lines, std::span<std::uint8_t> buffer,
              const BITMAPINFO& info);
int SetDIBits(DeviceContext hDC, int start, int lines, std::span<const std::uint8_t> buffer,
              const BITMAPINFO& info);

/// A rectangle as text is laid out in; right and bottom lie outside it.
struct RECT {
    int left = 0, top = 0, right = 0, bottom = 0;

    friend bool operator==(const RECT&, const RECT&) = default;
};
constexpr unsigned DT_CENTER = 1;
constexpr unsigned DT_WORDBREAK = 16;
constexpr unsigned DT_CALCRECT = 1024;

/// Draws a text in `ForeColor` and the selected font (else the surface's own) with crisp edges, clipped to
/// the rectangle, always level. CR LF breaks a line, and with DT_WORDBREAK so do the last blanks before the
/// right edge, which are dropped; a word wider than the rectangle stands in a line of its own, unbroken.
/// DT_CENTER centres each line. With DT_CALCRECT nothing is drawn: the rectangle's right and bottom edges
/// move to where the text ends. Returns the height of all lines; an empty text is one line.
int DrawTextA(DeviceContext hDC, std::string_view text, RECT& rectangle, unsigned flags);

/// Sets the colour of device text, which is the surface's `ForeColor`. Returns the former one.
Colour SetTextColor(DeviceContext hDC, Colour colour);

// What `lfWeight` and `lfQuality` of a logical font say.
constexpr std::int32_t plainWeight = 400, boldWeight = 700;
constexpr std::uint8_t smoothQuality = 4;  ///< Smooth edges.

/// A logical font. Only the fields that this program fills; what a font is called is UTF-8.
struct LOGFONT {
    std::int32_t lfHeight = 0;  ///< Negative: height of the letters in pixels.
    std::int32_t lfWidth = 0;
    std::int32_t lfEscapement = 0;  ///< Tenths of a degree, counter-clockwise.
    std::int32_t lfOrientation = 0;
    std::int32_t lfWeight = plainWeight;  ///< From `boldWeight` on it is bold.
    std::uint8_t lfItalic = 0, lfUnderline = 0, lfStrikeOut = 0, lfCharSet = 0;
    std::uint8_t lfOutPrecision = 0, lfClipPrecision = 0;
    std::uint8_t lfQuality = 0;
    std::uint8_t lfPitchAndFamily = 0;
    std::string lfFaceName;  ///< At most 32 characters.
};
using HFONT = std::shared_ptr<const LOGFONT>;

/// A device font, or null for a name of more than 32 characters or a height that is 0. It lives as long as
/// somebody holds it: releasing the handle deletes it.
HFONT CreateFontIndirectA(const LOGFONT& font);
/// Selects a font for TextOutA and DrawTextA and returns the one that was selected before; null is the
/// surface's own font.
HFONT SelectObject(DeviceContext hDC, HFONT font);
/// Writes a text in `ForeColor` and the selected font on the transparent background. (x, y) is the top left
/// corner of its cell, about which it is turned. With lfQuality 4 the edges are smooth, blended with what
/// lies below.
void TextOutA(DeviceContext hDC, int x, int y, std::string_view text);

/// Device facts: 90 gives the dots per inch of a column, 96. Other indexes give 0.
constexpr int LOGPIXELSY = 90;
int GetDeviceCaps(DeviceContext hDC, int index);
/// number * numerator / denominator in 64 bits, rounded to the nearest, halves away from zero; -1 for a
/// denominator of 0 or a result outside 32 bits.
int MulDiv(int number, int numerator, int denominator);

}  // namespace coinlet
