#pragma once

#include "surface/colour.h"
#include "surface/font_properties.h"
#include "surface/geometry.h"
#include "surface/image.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace coinlet {

class Surface;
struct LOGFONT;

/// Raster operations, by their 32-bit codes.
enum class RasterOp : std::uint32_t {
    SRCCOPY = 0xCC0020,           ///< source
    SRCAND = 0x8800C6,            ///< destination AND source: white leaves the destination, black blacks out
    MERGE_NOT_SOURCE = 0xBB0226,  ///< destination OR NOT source
};
using enum RasterOp;

/// The box option of `Line`.
enum class Box {
    None,     ///< a straight line
    Outline,  ///< B: the outline of the rectangle with the two points as corners, both corners included
    Filled    ///< BF: that rectangle filled solid, both corners included
};

/// Where an arc starts and ends: radians, counter-clockwise from the positive x axis.
struct ArcAngles {
    double start = 0, end = 0;
};

/// Values of `DrawMode`; any other value counts as the copy pen.
constexpr int invertPen = 6;
constexpr int copyPen = 13;

/// Values of `DrawStyle`.
constexpr int solidLine = 0;
constexpr int dottedLine = 2;

/// Values of `FillStyle`.
constexpr int solidFill = 0;
constexpr int transparentFill = 1;

/// Values of `ScaleMode`.
constexpr int twipScale = 1;
constexpr int pixelScale = 3;

/// One pixel is this many twips, everywhere.
constexpr double twipsPerPixel = 15;

/// What stands behind `hDC`: the handle under which the device operations (device.h) reach a surface.
class DeviceContext {
public:
    explicit DeviceContext(Surface& surface) : surface_(&surface) {}
    Surface& Target() const { return *surface_; }

private:
    Surface* surface_;
};

/// Whoever shows a surface on a screen. `Refresh` tells it that now is a good moment.
class SurfaceScreen {
public:
    virtual ~SurfaceScreen() = default;
    virtual void SurfaceRefreshed(const Surface& surface) = 0;
};

/// A raster picture with the drawing operations of the whole program. It lives in memory; nothing here knows
/// of windows.
///
/// Coordinates are in the units of `ScaleMode`: pixels (3, the normal state) or twips (1), or those of a user
/// scale. The origin is the top left corner, y grows downward. They may be fractions: each is rounded, a half
/// to the even neighbour, at the moment of drawing. Coordinates outside the surface are clipped; a NaN among
/// the arguments draws nothing, an infinity or a huge number counts as far away.
///
/// Plain data members are drawing state: setting them does nothing by itself.
class Surface : public FontProperties {
public:
    /// A surface of that many pixels, filled with `BackColor` white. A refused size (see IsPictureSize) gives
    /// an empty surface. `fonts` must outlive the surface.
    Surface(const FontEngine& fonts, int width, int height);

    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    // --- Drawing state ---------------------------------------------------------------------------------

    Colour ForeColor = black;
    Colour FillColor = black;
    int DrawMode = copyPen;           ///< Only `Line`, `Circle` and `PSet` heed it.
    int DrawStyle = solidLine;        ///< Dots are 3 on, 3 off, on lines of one pixel's width.
    int DrawWidth = 1;                ///< Pen width in pixels; below 1 counts as 1.
    int FillStyle = transparentFill;  ///< solidFill: closed figures are filled with `FillColor`.
    float CurrentX = 0, CurrentY = 0;
    /// True: assigning a picture resizes the surface to it. False: a picture keeps its size, stands at the
    /// top left corner, and is cropped or surrounded by `BackColor`.
    bool AutoSize = false;
    /// The font that SelectObject (device.h) put here for device text; null is the surface's own font.
    std::shared_ptr<const LOGFONT> DeviceFont;

    // --- Size and scale --------------------------------------------------------------------------------

    int PixelWidth() const { return bitmap_->Width(); }
    int PixelHeight() const { return bitmap_->Height(); }
    /// Resizes the bitmap; what stays inside keeps its pixels, new area takes the `BackColor`. 0 is legal; a
    /// refused size (see IsPictureSize) changes nothing and gives false.
    bool Resize(int width, int height);

    int ScaleMode() const { return scaleMode_; }
    /// 1 or 3; other values are ignored. Ends a user scale.
    void SetScaleMode(int mode);
    /// Inner size in scale units. With a user scale: the differences of its edges, so they may be negative.
    double ScaleWidth() const;
    double ScaleHeight() const;
    /// A user scale: a linear map that gives the top left corner of the surface the coordinates (left, top)
    /// and its bottom right corner (right, bottom). It holds until the next change of scale. Edges that
    /// coincide or aren't finite are ignored.
    void Scale(double left, double top, double right, double bottom);

    // --- Background, pictures --------------------------------------------------------------------------

    Colour BackColor() const { return backColor_; }
    /// Setting the background colour, the same one too, wipes what was drawn, as `Cls` does, but leaves the
    /// graphics cursor.
    void SetBackColor(Colour colour);

    /// The stored picture, to which `Cls` returns; empty if there is none.
    const coinlet::Image& Picture() const { return picture_; }
    /// Takes a picture as the stored picture and as what is drawn. The empty picture leaves the bare
    /// `BackColor` (and, with `AutoSize`, the size as it is).
    void SetPicture(const coinlet::Image& picture);
    /// A snapshot of what is drawn at this moment.
    coinlet::Image Image() const { return coinlet::Image(bitmap_); }

    /// Returns to the stored picture, or to the bare `BackColor`, and sets the cursor to (0, 0).
    void Cls();

    // --- Drawing ---------------------------------------------------------------------------------------

    /// Sets one point: a pixel, or with a wider pen a round dot. Every call of `PSet`, `Line`, `LineTo` and
    /// `Circle` moves the cursor to its (last) point, whether anything is drawn or not; a NaN leaves it where
    /// it is.
    void PSet(double x, double y, std::optional<Colour> colour = {});
    /// The colour of the pixel, or -1 outside the surface.
    Colour Point(double x, double y) const;
    /// With Box::None a straight line whose last point is not plotted; a colour left out means `ForeColor`.
    /// Wide lines have round ends. One call touches each pixel once. An outlined box is filled with
    /// `FillColor` if `FillStyle` is solidFill.
    void Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {},
              Box box = Box::None);
    /// The same from the graphics cursor on.
    void LineTo(double x2, double y2, std::optional<Colour> colour = {}, Box box = Box::None);
    /// A circle, or with `aspect` (height divided by width) an ellipse whose longer semi-axis is `radius`:
    /// the vertical one above 1, the horizontal one below. With `arc` only that part, counter-clockwise from
    /// start to end; equal angles are the whole ellipse, an end of 0 is a full turn. Whole figures are filled
    /// with `FillColor` if `FillStyle` is solidFill. The edges of the ellipse are rounded to pixels. A
    /// negative radius or an aspect not above 0 draws nothing.
    void Circle(double x, double y, double radius, std::optional<Colour> colour = {},
                std::optional<ArcAngles> arc = {}, double aspect = 1);

    /// Copies a whole picture to (x, y) in its own size.
    void PaintPicture(const coinlet::Image& source, double x, double y, RasterOp op = SRCCOPY);
    /// Copies a whole picture to a rectangle, stretched.
    void PaintPicture(const coinlet::Image& source, const Rectangle& to, RasterOp op = SRCCOPY);
    /// Copies the part `from` of a picture to the rectangle `to`, both in the scale units of this surface.
    /// Where the sizes differ it is stretched: target column i of m takes source column floor((i + 1/2) n /
    /// m). A negative width or height runs from x leftward or from y upward, x and y included, and so
    /// mirrors. What `from` has outside the picture leaves the target as it was. The source may be this
    /// surface's own image.
    void PaintPicture(const coinlet::Image& source, const Rectangle& to, const Rectangle& from,
                      RasterOp op = SRCCOPY);

    /// Prints in `ForeColor` and the current font on the transparent background from the cursor on, which is
    /// the top left corner of the text; then `CurrentX` becomes 0 and `CurrentY` moves down by a line. CR LF
    /// in the text breaks the line.
    void Print(std::string_view text);
    /// The same, but leaves the cursor behind the text.
    void PrintOn(std::string_view text);
    /// The size that a text would take in the current font, in scale units.
    double TextWidth(std::string_view text) const;
    double TextHeight(std::string_view text) const;

    /// Shows what is drawn on the screen, if there is one.
    void Refresh();

    // --- For the device operations, the filters and the screen -----------------------------------------

    DeviceContext hDC() { return DeviceContext(*this); }
    const FontEngine& Fonts() const { return *fonts_; }

    const Bitmap& Pixels() const { return *bitmap_; }
    /// The pixels for writing into `area` of them, which counts as changed from now on; what shared them
    /// keeps its own. The reference is good until the next call of anything else here.
    Bitmap& Write(const PixelRect& area) {
        if (bitmap_.use_count() > 1) Detach();
        changed_ = Union(changed_, area);
        ++revision_;
        return *bitmap_;
    }
    Bitmap& WriteAll() { return Write({0, 0, PixelWidth(), PixelHeight()}); }

    /// Grows with every change of a pixel or of the size.
    std::uint64_t Revision() const { return revision_; }
    /// What was changed since ForgetChanges, as one rectangle; the screen repaints just that.
    const PixelRect& Changed() const { return changed_; }
    void ForgetChanges() const { changed_ = {}; }

    /// At most one screen shows a surface; nullptr takes it off.
    void SetScreen(SurfaceScreen* screen) { screen_ = screen; }

private:
    struct UserScale {
        double left, top, right, bottom;
    };

    void Detach();
    void ShowBackground();
    // From scale units to pixels, not yet rounded.
    double PixelX(double x) const;
    double PixelY(double y) const;
    double PixelLengthX(double width) const;
    double PixelLengthY(double height) const;
    double UnitsPerPixelX() const;
    double UnitsPerPixelY() const;
    void PrintLine(std::string_view line);

    const FontEngine* fonts_;
    std::shared_ptr<Bitmap> bitmap_;
    coinlet::Image picture_;
    Colour backColor_ = white;
    int scaleMode_ = pixelScale;
    std::optional<UserScale> userScale_;
    std::uint64_t revision_ = 0;
    mutable PixelRect changed_;
    SurfaceScreen* screen_ = nullptr;
};

}  // namespace coinlet
