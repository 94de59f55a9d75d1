#include "controls/vista_button_drawing.h"

#include "base/numbers.h"
#include "controls/fine_button.h"
#include "surface/device.h"
#include "surface/fine_picture.h"
#include "surface/finer_edition.h"
#include "surface/text_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace coinlet {

namespace {

constexpr std::size_t stateCount = 5;

/// A colour of the button in each state: normal, hover, pressed, focused, disabled.
using StateColours = std::array<Colour, stateCount>;

// clang-format off

/// The ends of the body's gradients, each top then bottom: upper half, lower half, the columns beside the
/// upper half, the columns beside the lower half.
constexpr std::array<StateColours, 8> bodyColours = {{
    {{RGB(242, 242, 242), RGB(234, 246, 253), RGB(228, 243, 251), RGB(236, 245, 250), RGB(244, 244, 244)}},
    {{RGB(235, 235, 235), RGB(217, 240, 252), RGB(196, 229, 246), RGB(230, 242, 248), RGB(244, 244, 244)}},
    {{RGB(221, 221, 221), RGB(190, 230, 253), RGB(152, 209, 239), RGB(206, 231, 244), RGB(244, 244, 244)}},
    {{RGB(207, 207, 207), RGB(167, 217, 245), RGB(104, 179, 219), RGB(187, 219, 237), RGB(244, 244, 244)}},
    {{RGB(251, 251, 251), RGB(249, 253, 254), RGB(176, 195, 206), RGB(52, 213, 254), RGB(252, 252, 252)}},
    {{RGB(250, 250, 250), RGB(245, 251, 254), RGB(154, 186, 203), RGB(51, 212, 253), RGB(252, 252, 252)}},
    {{RGB(246, 246, 246), RGB(239, 249, 254), RGB(120, 170, 197), RGB(56, 210, 252), RGB(252, 252, 252)}},
    {{RGB(243, 243, 243), RGB(233, 246, 253), RGB(85, 146, 181), RGB(42, 207, 250), RGB(252, 252, 252)}},
}};

/// The frame, the line below its top edge, the pixels of the corners, the line above its bottom edge.
constexpr std::array<StateColours, 21> frameColours = {{
    {{RGB(112, 112, 112), RGB(232, 245, 252), RGB(44, 98, 139), RGB(60, 127, 177), RGB(173, 178, 181)}},
    {{RGB(252, 252, 252), RGB(60, 127, 177), RGB(158, 176, 186), RGB(52, 213, 254), RGB(252, 252, 252)}},
    {{RGB(144, 144, 144), RGB(250, 253, 254), RGB(57, 89, 113), RGB(160, 190, 212), RGB(183, 187, 190)}},
    {{RGB(119, 119, 119), RGB(102, 147, 181), RGB(46, 96, 134), RGB(86, 143, 186), RGB(175, 180, 183)}},
    {{RGB(135, 136, 136), RGB(66, 131, 179), RGB(51, 86, 113), RGB(158, 188, 211), RGB(177, 181, 184)}},
    {{RGB(145, 145, 145), RGB(88, 138, 175), RGB(58, 104, 138), RGB(50, 146, 195), RGB(192, 195, 198)}},
    {{RGB(232, 232, 232), RGB(105, 157, 195), RGB(134, 157, 171), RGB(44, 199, 243), RGB(241, 242, 242)}},
    {{RGB(117, 117, 117), RGB(223, 235, 243), RGB(44, 95, 134), RGB(83, 142, 185), RGB(174, 179, 182)}},
    {{RGB(234, 234, 234), RGB(62, 128, 178), RGB(134, 157, 171), RGB(45, 200, 244), RGB(242, 242, 243)}},
    {{RGB(250, 250, 250), RGB(225, 237, 244), RGB(186, 203, 213), RGB(107, 223, 253), RGB(251, 251, 251)}},
    {{RGB(112, 112, 112), RGB(247, 251, 254), RGB(44, 98, 139), RGB(60, 127, 177), RGB(173, 178, 181)}},
    {{RGB(252, 252, 252), RGB(62, 128, 178), RGB(170, 188, 199), RGB(52, 213, 254), RGB(252, 252, 252)}},
    {{RGB(134, 134, 134), RGB(249, 253, 254), RGB(75, 117, 147), RGB(155, 187, 210), RGB(176, 181, 184)}},
    {{RGB(117, 117, 117), RGB(87, 138, 175), RGB(46, 100, 140), RGB(81, 140, 184), RGB(174, 179, 182)}},
    {{RGB(136, 136, 136), RGB(62, 128, 178), RGB(71, 110, 140), RGB(158, 188, 211), RGB(177, 182, 185)}},
    {{RGB(143, 143, 143), RGB(90, 139, 176), RGB(47, 100, 138), RGB(50, 145, 194), RGB(192, 195, 198)}},
    {{RGB(228, 228, 228), RGB(100, 155, 195), RGB(99, 172, 211), RGB(37, 197, 242), RGB(243, 243, 244)}},
    {{RGB(117, 117, 117), RGB(212, 231, 243), RGB(45, 97, 136), RGB(83, 142, 185), RGB(174, 179, 182)}},
    {{RGB(226, 226, 226), RGB(62, 129, 178), RGB(85, 146, 181), RGB(37, 196, 241), RGB(242, 242, 243)}},
    {{RGB(236, 236, 236), RGB(211, 230, 242), RGB(109, 181, 220), RGB(84, 210, 247), RGB(251, 251, 251)}},
    {{RGB(243, 243, 243), RGB(220, 240, 251), RGB(104, 179, 219), RGB(41, 206, 250), RGB(252, 252, 252)}},
}};

// clang-format on

constexpr std::size_t outline = 0, topLine = 1, bottomLine = 20;

/// A pixel of a left corner, `row` rows from the top or bottom edge; at the right edge its mirror image has
/// the same colour.
struct CornerPixel {
    int x = 0, row = 0;
    bool atBottom = false;
};

/// The corners' pixels, in the order of their colours, which are those between topLine and bottomLine.
constexpr std::array<CornerPixel, 18> cornerPixels = {{
    {1, 0, false},
    {2, 0, false},
    {0, 1, false},
    {1, 1, false},
    {2, 1, false},
    {0, 2, false},
    {1, 2, false},
    {2, 2, false},
    {0, 3, false},
    {1, 3, false},
    {1, 0, true},
    {2, 0, true},
    {0, 1, true},
    {1, 1, true},
    {2, 1, true},
    {0, 2, true},
    {1, 2, true},
    {2, 2, true},
}};

/// A horizontal line of the pressed look, from column `first` to `last`, `row` rows from its edge.
struct PressMark {
    int first = 0, last = 0, row = 0;
    Colour colour = black;
};

/// Below the top edge, at the left; their mirror images at the right.
constexpr std::array<PressMark, 3> upperPressMarks = {{
    {3, 6, 1, RGB(151, 170, 180)},
    {3, 6, 2, RGB(220, 237, 246)},
    {7, 10, 1, RGB(157, 175, 185)},
}};
/// Above the bottom edge, at the left alone.
constexpr std::array<PressMark, 3> lowerPressMarks = {{
    {3, 6, 1, RGB(99, 172, 211)},
    {3, 6, 2, RGB(109, 181, 220)},
    {7, 10, 1, RGB(104, 178, 218)},
}};
constexpr Colour pressDots = RGB(220, 237, 245);

constexpr Colour upperGlowLine = RGB(166, 233, 251), lowerGlowLine = RGB(132, 213, 239);
constexpr Colour upperGlowStart = RGB(165, 232, 251), upperGlowEnd = RGB(161, 230, 249);
constexpr Colour lowerGlowStart = RGB(146, 222, 245), lowerGlowEnd = RGB(133, 213, 240);

constexpr Colour disabledText = RGB(131, 131, 131);

/// Pictures and texts keep this far from the edges.
constexpr int margin = 3;

/// One vertex colour of a gradient: 16 bits a channel, of which the upper 8 are the colour's.
TRIVERTEX ToGradientColor(int r, int g, int b) {
    const auto widened = [](int channel) { return static_cast<std::uint16_t>(channel * 256); };
    return {.Red = widened(r), .Green = widened(g), .Blue = widened(b)};
}

void FillGradient(int x1, int y1, int x2, int y2, Colour colorTop, Colour colorBottom, DeviceContext hDC) {
    const auto vertex = [](int x, int y, Colour colour) {
        TRIVERTEX corner = ToGradientColor(Red(colour), Green(colour), Blue(colour));
        corner.x = x;
        corner.y = y;
        return corner;
    };
    const std::array vertices = {vertex(x1, y1, colorTop), vertex(x2, y2, colorBottom)};
    constexpr std::array mesh = {GRADIENT_RECT{0, 1}};
    GradientFill(hDC, vertices, mesh, GRADIENT_FILL_RECT_V);
}

/// One side of a button on the pixels that a screen has for it.
struct Side {
    int length = 0;  ///< In pixels of the button.
    int pixels = 0;  ///< On the screen.

    double Scale() const { return length > 0 ? static_cast<double>(pixels) / length : 1; }
    int Scaled(int lengths) const { return static_cast<int>(std::floor(lengths * Scale() + 0.5)); }
    /// Where the button's pixel `edge` begins. Both halves are rounded alike, so that the button is as
    /// symmetrical as it is told.
    int At(int edge) const { return 2 * edge <= length ? Scaled(edge) : pixels - Scaled(length - edge); }
};

/// A button's pixels, drawn as the blocks that they are on the screen's.
class Face {
public:
    Face(Surface& surface, int width, int height)
        : surface_(surface), x_{width, surface.PixelWidth()}, y_{height, surface.PixelHeight()} {}

    int Width() const { return x_.length; }
    int Height() const { return y_.length; }
    bool IsPlain() const { return x_.length == x_.pixels && y_.length == y_.pixels; }
    Surface& Pixels() const { return surface_; }
    const Side& X() const { return x_; }
    const Side& Y() const { return y_; }

    /// The rectangle with these corners, both included, whichever way round.
    void Fill(int x1, int y1, int x2, int y2, Colour colour) const {
        const int left = x_.At(std::min(x1, x2)), right = x_.At(std::max(x1, x2) + 1);
        const int top = y_.At(std::min(y1, y2)), bottom = y_.At(std::max(y1, y2) + 1);
        if (left < right && top < bottom)
            surface_.Line(left, top, right - 1, bottom - 1, colour, Box::Filled);
    }
    /// The right and bottom edges are left out.
    void Gradient(int x1, int y1, int x2, int y2, Colour top, Colour bottom) const {
        FillGradient(x_.At(x1), y_.At(y1), x_.At(x2), y_.At(y2), top, bottom, surface_.hDC());
    }
    void Dot(int x, int y, Colour colour) const { Fill(x, y, x, y, colour); }

private:
    Surface& surface_;
    Side x_, y_;
};

/// The width of one frame of the picture's strip, or 0 if there is nothing to show: no picture, or a strip of
/// no frames, whose width nobody can tell.
int FrameWidth(const ButtonLook& look) {
    if (!look.strip || look.pictures <= 0) return 0;
    return RoundHalfEven(static_cast<double>(look.strip->PixelWidth()) / look.pictures);
}

/// The frame of the strip that shows: normal, disabled, pressed.
int FrameNumber(const ButtonLook& look) {
    if (look.pictures >= 2 && !look.enabled) return 1;
    return look.pictures == 3 && look.enabled && look.mouseDown ? 2 : 0;
}

/// The part of the picture's frame that shows, and where.
struct PicturePlace {
    PixelRect to;           ///< Empty: none of it shows.
    int left = 0, top = 0;  ///< Of that part in the strip.
    /// How many of the frame's columns are lost at the left: above 0 the pair of picture and text is wider
    /// than the button.
    int clipX = 0;
};

/// Where the picture stands on a button of that size, before a text of that width.
PicturePlace PlacePicture(int W, int H, const ButtonLook& look, int textWidth) {
    const int frame = FrameWidth(look);
    if (frame == 0) return {};
    const int pictureHeight = look.strip->PixelHeight();
    constexpr int gap = 5;

    const double beside = look.caption.empty() ? 0.0 : static_cast<double>(textWidth) + gap;
    int x = RoundHalfEven((W - beside - frame) / 2);
    int y = Truncate((H - pictureHeight) / 2.0);
    if (look.mouseDown) {
        x += look.pictureOffset;
        y += look.pictureOffset;
    }
    int width = frame;
    if (x + frame > W - margin) width = W - margin - x;
    int clipX = 0;
    if (x < margin) {
        clipX = margin - x;
        x = margin;
    }
    int height = pictureHeight;
    if (y + pictureHeight > H - margin) height = H - margin - y;
    int clipY = 0;
    if (y < margin) {
        clipY = margin - y;
        y = margin;
    }
    // A negative size would copy a mirror image.
    if (width <= clipX || height <= clipY) return {.to = {}, .clipX = clipX};
    return {.to = {x, y, x + width - clipX, y + height - clipY},
            .left = FrameNumber(look) * frame + clipX,
            .top = clipY,
            .clipX = clipX};
}

void DrawPicture(const Face& face, const ButtonLook& look, const PicturePlace& place,
                 const Image& finerStrip) {
    if (place.to.Empty()) return;
    const int width = place.to.Width(), height = place.to.Height();
    if (face.IsPlain()) {
        const DeviceContext target = face.Pixels().hDC(), source = look.strip->hDC();
        if (look.useMaskColor) {
            TransparentBlt(target, place.to.left, place.to.top, width, height, source, place.left, place.top,
                           width, height, look.maskColor);
        } else {
            BitBlt(target, place.to.left, place.to.top, width, height, source, place.left, place.top,
                   SRCCOPY);
        }
        return;
    }
    const Image source = finerStrip.Empty() ? look.strip->Image() : finerStrip;
    const int times = source.Height() / look.strip->PixelHeight();
    const int x = face.X().At(place.to.left), y = face.Y().At(place.to.top);
    PaintFinely(
        face.Pixels(), {x, y, x + face.X().Scaled(width), y + face.Y().Scaled(height)}, source,
        {times * place.left, times * place.top, times * (place.left + width), times * (place.top + height)},
        look.useMaskColor ? std::optional(look.maskColor) : std::nullopt);
}

/// Where picture and caption stand on a button of that size.
struct Inside {
    PicturePlace picture;
    RECT text;
    unsigned textFlags = 0;
};

Inside LayOut(const FontEngine& fonts, int W, int H, const ButtonLook& look) {
    const FontSpec font = look.font.CurrentFont();
    const TextLayout measured = LayOutText(fonts, font, look.caption, W);
    const auto textHeight = static_cast<double>(measured.Height());
    const PicturePlace picture = PlacePicture(W, H, look, WidestLine(fonts, font, measured));

    constexpr int behindPicture = 8;
    const int frame = FrameWidth(look);
    return {.picture = picture,
            .text = {.left = frame > 0 ? frame + behindPicture - picture.clipX : margin,
                     .top = RoundHalfEven((H - textHeight) / 2),
                     .right = W - margin,
                     .bottom = RoundHalfEven((H + textHeight) / 2)},
            .textFlags = picture.clipX > 0 ? DT_WORDBREAK : DT_WORDBREAK | DT_CENTER};
}

Colour CaptionColour(const ButtonLook& look) {
    return look.enabled ? look.foreColor : disabledText;
}

void DrawCaption(Surface& face, const ButtonLook& look, Inside inside) {
    SetTextColor(face.hDC(), CaptionColour(look));
    DrawTextA(face.hDC(), look.caption, inside.text, inside.textFlags);
}

/// Where the upper part of the body ends.
int UpperPartHeight(int height) {
    return Truncate(height / 2.2);
}

/// The glossy body: an upper and a lower part, each with a column at either side.
void DrawBody(const Face& face, std::size_t state) {
    const int W = face.Width(), H = face.Height(), M = UpperPartHeight(H);
    const auto fill = [&](int x1, int y1, int x2, int y2, std::size_t colours) {
        face.Gradient(x1, y1, x2, y2, bodyColours[colours][state], bodyColours[colours + 1][state]);
    };
    fill(2, 2, W - 2, M, 0);
    fill(2, M, W - 2, H - 2, 2);
    fill(1, 3, 2, M, 4);
    fill(W - 2, 3, W - 1, M, 4);
    fill(1, M, 2, H - 3, 6);
    fill(W - 2, M, W - 1, H - 3, 6);
}

void DrawPressMarks(const Face& face) {
    const int W = face.Width(), H = face.Height();
    for (const auto& mark : upperPressMarks)
        face.Fill(mark.first, mark.row, mark.last, mark.row, mark.colour);
    for (const auto& mark : upperPressMarks)
        face.Fill(W - 1 - mark.first, mark.row, W - 1 - mark.last, mark.row, mark.colour);
    for (const auto& mark : lowerPressMarks)
        face.Fill(mark.first, H - 1 - mark.row, mark.last, H - 1 - mark.row, mark.colour);
    face.Dot(2, 3, pressDots);
    face.Dot(W - 3, 3, pressDots);
}

void DrawFocusGlow(const Face& face) {
    const int W = face.Width(), H = face.Height(), M = UpperPartHeight(H);
    face.Fill(3, 2, W - 4, 2, upperGlowLine);
    face.Fill(3, H - 3, W - 4, H - 3, lowerGlowLine);
    face.Gradient(2, 3, 3, M, upperGlowStart, upperGlowEnd);
    face.Gradient(W - 2, 3, W - 3, M, upperGlowStart, upperGlowEnd);
    face.Gradient(2, M, 3, H - 3, lowerGlowStart, lowerGlowEnd);
    face.Gradient(W - 2, M, W - 3, H - 3, lowerGlowStart, lowerGlowEnd);
}

void DrawFrame(const Face& face, std::size_t state) {
    const int W = face.Width(), H = face.Height();
    const Colour frame = frameColours[outline][state];
    face.Fill(0, 0, W - 1, 0, frame);
    face.Fill(0, H - 1, W - 1, H - 1, frame);
    face.Fill(0, 0, 0, H - 1, frame);
    face.Fill(W - 1, 0, W - 1, H - 1, frame);
    face.Fill(3, 1, W - 4, 1, frameColours[topLine][state]);
    face.Fill(3, H - 2, W - 4, H - 2, frameColours[bottomLine][state]);
    // One corner after the other: on buttons so small that corners overlap, the later one shows.
    for (const bool atBottom : {false, true}) {
        for (const bool atRight : {false, true}) {
            for (std::size_t i = 0; i < cornerPixels.size(); ++i) {
                const CornerPixel& pixel = cornerPixels[i];
                if (pixel.atBottom != atBottom) continue;
                face.Dot(atRight ? W - 1 - pixel.x : pixel.x, atBottom ? H - 1 - pixel.row : pixel.row,
                         frameColours[topLine + 1 + i][state]);
            }
        }
    }
}

bool HasBody(const ButtonLook& look, ButtonState state) {
    return !look.noBackground || state == ButtonState::Hover || state == ButtonState::Pressed;
}

enum class Letters { Drawn, LeftOut };

/// `fonts` tell how much room the caption takes, drawn or not.
void Draw(const Face& face, const FontEngine& fonts, ButtonState state, const ButtonLook& look,
          Letters letters, const Image& finerStrip = {}) {
    Surface& pixels = face.Pixels();
    static_cast<FontProperties&>(pixels) = look.font;
    pixels.SetBackColor(look.backColor);
    pixels.Cls();
    const bool hasBody = HasBody(look, state);
    const auto column = static_cast<std::size_t>(state);
    if (hasBody) {
        DrawBody(face, column);
        if (state == ButtonState::Pressed) DrawPressMarks(face);
        if (state == ButtonState::Focused) DrawFocusGlow(face);
    }
    // Picture and caption lie on the body and under the frame.
    const Inside inside = LayOut(fonts, face.Width(), face.Height(), look);
    DrawPicture(face, look, inside.picture, finerStrip);
    if (letters == Letters::Drawn) DrawCaption(pixels, look, inside);
    if (hasBody) DrawFrame(face, column);
}

}  // namespace

void DrawButton(Surface& face, ButtonState state, const ButtonLook& look) {
    Draw(Face(face, face.PixelWidth(), face.PixelHeight()), face.Fonts(), state, look, Letters::Drawn);
}

void DrawFineButton(Surface& face, const VistaButton& button) {
    const Face blocks(face, button.PixelWidth(), button.PixelHeight());
    const Image finer = blocks.IsPlain() ? Image() : FinerEditionOf(button.Picture());
    Draw(blocks, button.LetterFonts(), button.State(), button.Look(), Letters::LeftOut, finer);
}

ButtonCaption CaptionOf(const VistaButton& button) {
    const ButtonLook& look = button.Look();
    const FontEngine& fonts = button.LetterFonts();
    const Inside inside = LayOut(fonts, button.PixelWidth(), button.PixelHeight(), look);
    const TextLayout layout =
        LayOutText(fonts, look.font.CurrentFont(), look.caption, inside.text.right - inside.text.left);
    return {.lines = {layout.lines.begin(), layout.lines.end()},
            .left = inside.text.left,
            .right = inside.text.right,
            .top = inside.text.top,
            .lineHeight = layout.lineHeight,
            .centred = (inside.textFlags & DT_CENTER) != 0,
            .colour = CaptionColour(look)};
}

PixelRect UncutPart(const Surface& face, const VistaButton& button) {
    const Side x{button.PixelWidth(), face.PixelWidth()}, y{button.PixelHeight(), face.PixelHeight()};
    return {x.At(1), y.At(1), x.At(button.PixelWidth() - 1), y.At(button.PixelHeight() - 1)};
}

}  // namespace coinlet
