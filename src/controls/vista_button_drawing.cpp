#include "controls/vista_button_drawing.h"

#include "base/numbers.h"
#include "surface/device.h"

#include <array>
#include <cstddef>
#include <cstdint>

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

/// Draws the picture before a text of that width. Returns how many of the frame's columns are lost at the
/// left: above 0 the pair of picture and text is wider than the button.
int DrawPicture(Surface& face, const ButtonLook& look, int textWidth) {
    const int frame = FrameWidth(look);
    if (frame == 0) return 0;
    const int W = face.PixelWidth(), H = face.PixelHeight();
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
    if (width <= clipX || height <= clipY) return clipX;

    const int left = FrameNumber(look) * frame + clipX;
    width -= clipX;
    height -= clipY;
    if (look.useMaskColor) {
        TransparentBlt(face.hDC(), x, y, width, height, look.strip->hDC(), left, clipY, width, height,
                       look.maskColor);
    } else {
        BitBlt(face.hDC(), x, y, width, height, look.strip->hDC(), left, clipY, SRCCOPY);
    }
    return clipX;
}

void DrawCaption(Surface& face, const ButtonLook& look) {
    const int W = face.PixelWidth(), H = face.PixelHeight();
    SetTextColor(face.hDC(), look.enabled ? look.foreColor : disabledText);
    RECT text{0, 0, W, H};
    const int textHeight = DrawTextA(face.hDC(), look.caption, text, DT_CENTER | DT_WORDBREAK | DT_CALCRECT);
    const int clipX = DrawPicture(face, look, text.right - text.left);

    constexpr int behindPicture = 8;
    const int frame = FrameWidth(look);
    text = {.left = frame > 0 ? frame + behindPicture - clipX : margin,
            .top = RoundHalfEven((H - textHeight) / 2.0),
            .right = W - margin,
            .bottom = RoundHalfEven((H + textHeight) / 2.0)};
    DrawTextA(face.hDC(), look.caption, text, clipX > 0 ? DT_WORDBREAK : DT_WORDBREAK | DT_CENTER);
}

/// Where the upper part of the body ends.
int UpperPartHeight(int height) {
    return Truncate(height / 2.2);
}

/// The glossy body: an upper and a lower part, each with a column at either side.
void DrawBody(Surface& face, std::size_t state) {
    const int W = face.PixelWidth(), H = face.PixelHeight(), M = UpperPartHeight(H);
    const auto fill = [&](int x1, int y1, int x2, int y2, std::size_t colours) {
        FillGradient(x1, y1, x2, y2, bodyColours[colours][state], bodyColours[colours + 1][state],
                     face.hDC());
    };
    fill(2, 2, W - 2, M, 0);
    fill(2, M, W - 2, H - 2, 2);
    fill(1, 3, 2, M, 4);
    fill(W - 2, 3, W - 1, M, 4);
    fill(1, M, 2, H - 3, 6);
    fill(W - 2, M, W - 1, H - 3, 6);
}

void DrawPressMarks(Surface& face) {
    const int W = face.PixelWidth(), H = face.PixelHeight();
    for (const auto& mark : upperPressMarks)
        face.Line(mark.first, mark.row, mark.last, mark.row, mark.colour, Box::Outline);
    for (const auto& mark : upperPressMarks)
        face.Line(W - 1 - mark.first, mark.row, W - 1 - mark.last, mark.row, mark.colour, Box::Outline);
    for (const auto& mark : lowerPressMarks)
        face.Line(mark.first, H - 1 - mark.row, mark.last, H - 1 - mark.row, mark.colour, Box::Outline);
    face.PSet(2, 3, pressDots);
    face.PSet(W - 3, 3, pressDots);
}

void DrawFocusGlow(Surface& face) {
    const int W = face.PixelWidth(), H = face.PixelHeight(), M = UpperPartHeight(H);
    face.Line(3, 2, W - 4, 2, upperGlowLine, Box::Outline);
    face.Line(3, H - 3, W - 4, H - 3, lowerGlowLine, Box::Outline);
    FillGradient(2, 3, 3, M, upperGlowStart, upperGlowEnd, face.hDC());
    FillGradient(W - 2, 3, W - 3, M, upperGlowStart, upperGlowEnd, face.hDC());
    FillGradient(2, M, 3, H - 3, lowerGlowStart, lowerGlowEnd, face.hDC());
    FillGradient(W - 2, M, W - 3, H - 3, lowerGlowStart, lowerGlowEnd, face.hDC());
}

void DrawFrame(Surface& face, std::size_t state) {
    const int W = face.PixelWidth(), H = face.PixelHeight();
    face.Line(0, 0, W - 1, H - 1, frameColours[outline][state], Box::Outline);
    face.Line(3, 1, W - 4, 1, frameColours[topLine][state], Box::Outline);
    face.Line(3, H - 2, W - 4, H - 2, frameColours[bottomLine][state], Box::Outline);
    // One corner after the other: on buttons so small that corners overlap, the later one shows.
    for (const bool atBottom : {false, true}) {
        for (const bool atRight : {false, true}) {
            for (std::size_t i = 0; i < cornerPixels.size(); ++i) {
                const CornerPixel& pixel = cornerPixels[i];
                if (pixel.atBottom != atBottom) continue;
                face.PSet(atRight ? W - 1 - pixel.x : pixel.x, atBottom ? H - 1 - pixel.row : pixel.row,
                          frameColours[topLine + 1 + i][state]);
            }
        }
    }
}

bool HasBody(const ButtonLook& look, ButtonState state) {
    return !look.noBackground || state == ButtonState::Hover || state == ButtonState::Pressed;
}

}  // namespace

void DrawButton(Surface& face, ButtonState state, const ButtonLook& look) {
    static_cast<FontProperties&>(face) = look.font;
    face.SetBackColor(look.backColor);
    face.Cls();
    if (!HasBody(look, state)) return DrawCaption(face, look);

    const auto column = static_cast<std::size_t>(state);
    DrawBody(face, column);
    if (state == ButtonState::Pressed) DrawPressMarks(face);
    if (state == ButtonState::Focused) DrawFocusGlow(face);
    // The caption lies on the body and under the frame.
    DrawCaption(face, look);
    DrawFrame(face, column);
}

}  // namespace coinlet
