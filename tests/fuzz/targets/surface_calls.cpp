// Drawing: the input is a stream of calls on two surfaces. Whatever is drawn wherever, pixels stay opaque,
// nothing changes outside of what counts as changed, and snapshots keep what they showed.
#include "fuzz/byte_stream.h"
#include "fuzz/targets/targets.h"
#include "support/block_fonts.h"
#include "surface/codecs.h"
#include "surface/device.h"
#include "surface/fine_picture.h"
#include "surface/mirror.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace coinlet::test {
namespace {

constexpr int usualWidth = 60, usualHeight = 40, largestSide = 200;

struct Canvas {
    Surface& surface;
    Surface& other;
    Image kept;  ///< Some snapshot.
};

Colour AnyColour(ByteStream& in) {
    constexpr std::array<Colour, 7> usual{black,        white, RGB(255, 0, 0), RGB(0, 255, 0),
                                          RGB(1, 2, 3), -1,    0x7F123456};
    return in.Flag() ? in.Pick(usual) : in.Raw<Colour>();
}

std::optional<Colour> MaybeColour(ByteStream& in) {
    if (in.Flag()) return {};
    return AnyColour(in);
}

RasterOp AnyOp(ByteStream& in) {
    constexpr std::array ops{SRCCOPY, SRCAND, MERGE_NOT_SOURCE, static_cast<RasterOp>(0),
                             static_cast<RasterOp>(~0U)};
    return in.Pick(ops);
}

Rectangle AnyRectangle(ByteStream& in) {
    const double x = in.Real(), y = in.Real(), width = in.Real();
    return {x, y, width, in.Real()};
}

PixelRect AnyPixels(ByteStream& in) {
    const int left = in.Whole(), top = in.Whole(), right = in.Whole();
    return {left, top, right, in.Whole()};
}

/// Some picture to be drawn: what is kept, what the other surface shows, what this one shows, none.
Image AnyPicture(Canvas& canvas, ByteStream& in) {
    const std::array<Image, 4> pictures{canvas.kept, canvas.other.Image(), canvas.surface.Image(), Image()};
    return in.Pick(pictures);
}

DeviceContext AnySource(Canvas& canvas, ByteStream& in) {
    return in.Flag() ? canvas.surface.hDC() : canvas.other.hDC();
}

// --- Calls -------------------------------------------------------------------------------------------------

void SetPens(Canvas& canvas, ByteStream& in) {
    Surface& surface = canvas.surface;
    surface.ForeColor = AnyColour(in);
    surface.FillColor = AnyColour(in);
    surface.DrawMode = in.Flag() ? invertPen : in.Whole();
    surface.DrawStyle = in.Flag() ? dottedLine : in.Whole();
    surface.DrawWidth = in.Flag() ? 1 : in.Whole();
    surface.FillStyle = in.Flag() ? solidFill : in.Whole();
    surface.CurrentX = static_cast<float>(in.Whole());
    surface.CurrentY = in.Flag() ? static_cast<float>(in.Whole()) : in.Raw<float>();
    surface.AutoSize = in.Flag();
}

void SetFont(Canvas& canvas, ByteStream& in) {
    // The letters of this font engine are blocks as large as they are told.
    constexpr std::size_t largest = 60;
    canvas.surface.FontSize = static_cast<float>(in.Below(largest));
    canvas.surface.FontBold = in.Flag();
    canvas.surface.FontUnderline = in.Flag();
    LOGFONT font;
    font.lfHeight = static_cast<int>(in.Below(2 * largest)) - static_cast<int>(largest);
    font.lfEscapement = in.Flag() ? 900 : in.Whole();
    font.lfWeight = in.Whole();
    font.lfItalic = in.Byte();
    font.lfQuality = in.Flag() ? 4 : in.Byte();
    font.lfFaceName = in.Text(40);
    SelectObject(canvas.surface.hDC(), in.Flag() ? CreateFontIndirectA(font) : nullptr);
}

void SetScale(Canvas& canvas, ByteStream& in) {
    if (in.Flag()) {
        canvas.surface.SetScaleMode(in.Flag() ? twipScale : in.Whole());
    } else {
        const double left = in.Real(), top = in.Real(), right = in.Real();
        canvas.surface.Scale(left, top, right, in.Real());
    }
}

void Resize(Canvas& canvas, ByteStream& in) {
    const int width = in.Whole(), height = in.Whole();
    // Larger ones are legal and take their time; those that are refused change nothing.
    const auto isAny = [](int side) { return side <= largestSide || side > maximumSide; };
    if (isAny(width) && isAny(height)) canvas.surface.Resize(width, height);
}

void Wipe(Canvas& canvas, ByteStream& in) {
    if (in.Flag()) {
        canvas.surface.Cls();
    } else {
        canvas.surface.SetBackColor(AnyColour(in));
    }
}

void Store(Canvas& canvas, ByteStream& in) {
    canvas.surface.SetPicture(AnyPicture(canvas, in));
}

void DrawPoint(Canvas& canvas, ByteStream& in) {
    const double x = in.Real(), y = in.Real();
    canvas.surface.PSet(x, y, MaybeColour(in));
    static_cast<void>(canvas.surface.Point(y, x));
}

void DrawLine(Canvas& canvas, ByteStream& in) {
    constexpr std::array boxes{Box::None, Box::Outline, Box::Filled};
    const double x1 = in.Real(), y1 = in.Real(), x2 = in.Real(), y2 = in.Real();
    const auto colour = MaybeColour(in);
    const Box box = in.Pick(boxes);
    if (in.Flag()) {
        canvas.surface.LineTo(x2, y2, colour, box);
    } else {
        canvas.surface.Line(x1, y1, x2, y2, colour, box);
    }
}

void DrawCircle(Canvas& canvas, ByteStream& in) {
    const double x = in.Real(), y = in.Real(), radius = in.Real();
    const auto colour = MaybeColour(in);
    std::optional<ArcAngles> arc;
    if (in.Flag()) arc = ArcAngles{in.Real() / 10, in.Real() / 10};
    canvas.surface.Circle(x, y, radius, colour, arc, in.Flag() ? 1 : in.Real() / 8);
}

void Paint(Canvas& canvas, ByteStream& in) {
    const Image picture = AnyPicture(canvas, in);
    const RasterOp op = AnyOp(in);
    const Rectangle to = AnyRectangle(in);
    switch (in.Below(4)) {
        case 0:
            return canvas.surface.PaintPicture(picture, to.x, to.y, op);
        case 1:
            return canvas.surface.PaintPicture(picture, to, op);
        case 2:
            return canvas.surface.PaintPicture(picture, to, AnyRectangle(in), op);
        default: {
            const PixelRect place = AnyPixels(in), from = AnyPixels(in);
            return PaintFinely(canvas.surface, place, picture, from, MaybeColour(in));
        }
    }
}

void PrintText(Canvas& canvas, ByteStream& in) {
    constexpr std::size_t longest = 12;
    const std::string text = in.Text(longest);
    if (in.Flag()) {
        canvas.surface.Print(text);
    } else {
        canvas.surface.PrintOn(text);
    }
    static_cast<void>(canvas.surface.TextWidth(text) + canvas.surface.TextHeight(text));
}

void PrintDeviceText(Canvas& canvas, ByteStream& in) {
    constexpr std::size_t longest = 12;
    const DeviceContext hDC = canvas.surface.hDC();
    SetTextColor(hDC, AnyColour(in));
    if (in.Flag()) {
        const int x = in.Whole(), y = in.Whole();
        return TextOutA(hDC, x, y, in.Text(longest));
    }
    const PixelRect place = AnyPixels(in);
    RECT rectangle{place.left, place.top, place.right, place.bottom};
    const unsigned flags = in.Flag() ? DT_CENTER | DT_WORDBREAK : in.Raw<unsigned>();
    DrawTextA(hDC, in.Text(longest), rectangle, flags);
}

void Fill(Canvas& canvas, ByteStream& in) {
    const DeviceContext hDC = canvas.surface.hDC();
    const int x = in.Whole(), y = in.Whole();
    const Colour colour = in.Flag() ? GetPixel(hDC, x, y) : AnyColour(in);
    if (in.Flag()) {
        FloodFill(hDC, x, y, colour);
    } else {
        ExtFloodFill(hDC, x, y, colour, in.Flag() ? FLOODFILLSURFACE : in.Whole());
    }
    SetPixelV(hDC, y, x, colour);
}

void DrawRoundRect(Canvas& canvas, ByteStream& in) {
    const PixelRect box = AnyPixels(in);
    const int width = in.Whole();
    RoundRect(canvas.surface.hDC(), box.left, box.top, box.right, box.bottom, width, in.Whole());
}

void Copy(Canvas& canvas, ByteStream& in) {
    const DeviceContext target = canvas.surface.hDC(), source = AnySource(canvas, in);
    const PixelRect to = AnyPixels(in);
    const int x = in.Whole(), y = in.Whole();
    switch (in.Below(3)) {
        case 0:
            return BitBlt(target, to.left, to.top, to.right, to.bottom, source, x, y, AnyOp(in));
        case 1: {
            const int width = in.Whole(), height = in.Whole();
            return StretchBlt(target, to.left, to.top, to.right, to.bottom, source, x, y, width, height,
                              AnyOp(in));
        }
        default: {
            const int width = in.Whole(), height = in.Whole();
            return TransparentBlt(target, to.left, to.top, to.right, to.bottom, source, x, y, width, height,
                                  AnyColour(in));
        }
    }
}

void DrawGradient(Canvas& canvas, ByteStream& in) {
    std::array<TRIVERTEX, 3> vertices;
    for (TRIVERTEX& vertex : vertices) {
        vertex = {
            in.Whole(), in.Whole(), in.Raw<std::uint16_t>(), in.Raw<std::uint16_t>(), in.Raw<std::uint16_t>(),
            0};
    }
    const std::array<GRADIENT_RECT, 2> mesh{GRADIENT_RECT{in.Byte() % 4U, in.Byte() % 4U},
                                            GRADIENT_RECT{in.Byte() % 4U, in.Byte() % 4U}};
    GradientFill(canvas.surface.hDC(), vertices, mesh, in.Flag() ? GRADIENT_FILL_RECT_V : in.Whole());
}

/// Rows out and in again, some of them changed.
void MoveRows(Canvas& canvas, ByteStream& in) {
    const Surface& surface = canvas.surface;
    BITMAPINFO info{surface.PixelWidth(), surface.PixelHeight()};
    if (in.Flag()) info.biHeight = -info.biHeight;
    if (in.Below(8) == 0) info.biWidth = in.Whole();
    std::vector<std::uint8_t> rows(surface.Pixels().Pixels().size_bytes());
    const int start = in.Flag() ? 0 : in.Whole(), lines = in.Flag() ? surface.PixelHeight() : in.Whole();
    GetDIBits(canvas.surface.hDC(), start, lines, rows, info);
    for (std::size_t i = in.Byte(); i < rows.size(); i += 97)
        rows[i] = in.Byte();
    SetDIBits(canvas.surface.hDC(), start, lines, rows, info);
}

void Mirror(Canvas& canvas, ByteStream& in) {
    switch (in.Below(4)) {
        case 0:
            return FlipHorizontal(canvas.surface);
        case 1:
            return FlipVertical(canvas.surface);
        case 2:
            return MirrorColumnToRight(canvas.surface, in.Whole());
        default:
            return MirrorRowToBottom(canvas.surface, in.Whole());
    }
}

void Keep(Canvas& canvas, ByteStream& in) {
    canvas.kept = in.Flag() ? canvas.surface.Image() : canvas.other.Image();
}

using Call = void (*)(Canvas&, ByteStream&);
constexpr std::array<Call, 19> calls{SetPens,      SetFont,         SetScale, Resize,        Wipe,
                                     Store,        DrawPoint,       DrawLine, DrawCircle,    Paint,
                                     PrintText,    PrintDeviceText, Fill,     DrawRoundRect, Copy,
                                     DrawGradient, MoveRows,        Mirror,   Keep};

// --- What must hold ----------------------------------------------------------------------------------------

/// How a surface was before a call.
struct Before {
    explicit Before(const Surface& surface)
        : pixels(surface.Pixels().Clone()), snapshot(surface.Image()), revision(surface.Revision()) {
        surface.ForgetChanges();
    }

    Bitmap pixels;
    Image snapshot;
    std::uint64_t revision;
};

bool IsOpaque(const Surface& surface) {
    return std::ranges::all_of(surface.Pixels().Pixels(),
                               [](Pixel pixel) { return (pixel & spareByte) == spareByte; });
}

bool AreEqual(const Bitmap& a, const Bitmap& b) {
    return a.Width() == b.Width() && std::ranges::equal(a.Pixels(), b.Pixels());
}

std::string FaultOfChange(const Surface& surface, const Before& before) {
    const Bitmap& now = surface.Pixels();
    if (!AreEqual(*before.snapshot.Shared(), before.pixels)) return "a snapshot changes";
    if (AreEqual(now, before.pixels)) return "";
    if (surface.Revision() <= before.revision) return "pixels change and nobody is told";
    if (now.Width() != before.pixels.Width() || now.Height() != before.pixels.Height()) return "";
    const PixelRect& changed = surface.Changed();
    for (int y = 0; y < now.Height(); ++y) {
        for (int x = 0; x < now.Width(); ++x) {
            const bool isInside =
                x >= changed.left && x < changed.right && y >= changed.top && y < changed.bottom;
            if (!isInside && now.Row(y)[x] != before.pixels.Row(y)[x])
                return "a pixel outside the change changes";
        }
    }
    return "";
}

/// What drawing surfaces show can be stored.
std::string FaultOfFile(const Surface& surface) {
    const auto file = EncodeBmp(surface.Image());
    if (file.has_value() == surface.Image().Empty())
        return "the empty picture is written, or another one isn't";
    if (!file) return "";
    const auto image = DecodeBmp(*file);
    return image && *image == surface.Image() ? "" : "stored, it is another picture";
}

Outcome Draw(std::span<const std::uint8_t> bytes) {
    static const BlockFonts fonts;
    ByteStream in(bytes);
    Surface first(fonts, usualWidth, usualHeight), second(fonts, usualHeight, usualHeight);
    std::array surfaces{&first, &second};
    Image kept;
    // Fillings and wide pens go over the whole surface.
    constexpr int mostCalls = 60;
    for (int i = 0; i < mostCalls && !in.AtEnd(); ++i) {
        const std::size_t which = in.Below(2);
        Canvas canvas{*surfaces[which], *surfaces[1 - which], kept};
        const Before before(canvas.surface), aside(canvas.other);
        in.Pick(calls)(canvas, in);
        kept = canvas.kept;
        if (std::string wrong = FaultOfChange(canvas.surface, before); !wrong.empty()) return {true, wrong};
        if (!AreEqual(canvas.other.Pixels(), aside.pixels)) return {true, "the other surface changes"};
        if (!IsOpaque(canvas.surface)) return {true, "a spare byte that isn't 255"};
        if (!IsPictureSize(canvas.surface.PixelWidth(), canvas.surface.PixelHeight()))
            return {true, "no legal size"};
    }
    return {true, FaultOfFile(first)};
}

}  // namespace

Reader SurfaceCallsReader() {
    // Each call with its pens set before, on either surface: a byte chooses the surface, the next the call.
    std::vector<Bytes> files;
    constexpr auto count = static_cast<std::uint8_t>(calls.size());
    for (std::uint8_t call = 0; call < count; ++call) {
        Bytes file{0, 0, 1, 2, 1, 4};
        for (std::uint8_t round = 0; round < 4; ++round) {
            file.insert(file.end(), {round, call});
            for (std::uint8_t i = 0; i < 24; ++i)
                file.push_back(static_cast<std::uint8_t>(i * 7 + round * 31 + call * 13));
        }
        files.push_back(std::move(file));
    }
    return {"drawing calls", files, Draw};
}

}  // namespace coinlet::test
