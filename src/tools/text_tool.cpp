#include "tools/text_tool.h"

#include "base/numbers.h"
#include "base/text.h"
#include "core/context.h"
#include "core/font_sample.h"
#include "core/letter_outline.h"
#include "core/main_form.h"
#include "core/undo.h"
#include "surface/device.h"
#include "surface/print_at.h"
#include "tools/hanging_text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace coinlet {

namespace {

constexpr int fullChannel = 255;

constexpr int shadowDepth = 8, shadowDarkest = 180, shadowStep = 6;

/// The size on the panel in points; nothing if what the user typed there is no number that a font can have.
std::optional<float> ChosenSize(const MainForm& main) {
    double size = 0;
    const bool usable = ParseNumber(main.Combo3.Text(), &size) &&
                        std::abs(size) <= static_cast<double>(std::numeric_limits<float>::max());
    return usable ? std::optional(static_cast<float>(size)) : std::nullopt;
}

void TakeTicks(const TextStyle& style, FontProperties& font) {
    font.FontBold = style.bold;
    font.FontItalic = style.italic;
    font.FontUnderline = style.underline;
}

/// Dropped in turning: paper, and with it all that has a channel at its full.
bool IsCarriedOver(Colour colour) {
    return Red(colour) != fullChannel && Green(colour) != fullChannel && Blue(colour) != fullChannel;
}

}  // namespace

TextStyle StyleOnPanel(const MainForm& main) {
    return {.fontName = main.Combo2.Text(),
            .size = ChosenSize(main),
            .bold = main.BoldCheck.Value(),
            .italic = main.ItalicCheck.Value(),
            .underline = main.UnderlineCheck.Value(),
            .open = main.OpenCheck.Value(),
            .shadow = main.SchaduwCheck.Value()};
}

bool DrawStyledText(Surface& target, float x, int y, std::string_view text, const TextStyle& style) {
    target.FontName = style.fontName;
    if (!style.size) return false;
    target.FontSize = *style.size;
    TakeTicks(style, target);
    const double left = x, top = y;
    if (style.shadow) {
        for (int i = shadowDepth; i >= 1; --i) {
            const int gray = shadowDarkest + shadowStep * i;
            target.ForeColor = RGB(gray, gray, gray);
            PrintAt(target, left + i, top + i, text);
        }
    }
    target.ForeColor = black;
    if (style.open) {
        for (const LetterOffset& offset : letterOutline)
            PrintAt(target, left + offset.x, top + offset.y, text);
        target.ForeColor = white;
    }
    PrintAt(target, left, top, text);
    return true;
}

TextTool::TextTool(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.Combo2.Change = [this] { Combo2_Change(); };
    main.Combo2.Click = [this] { Combo2_Change(); };
    main.PlaatsKnop.Click = [this] { PlaatsKnop_Click(); };
    PassPointerOn();
}

/// A pointer that moves quickly gets ahead of the text and onto it. What it does there is meant for the
/// canvas.
void TextTool::PassPointerOn() {
    MainForm& main = context_.main;
    const auto passOn = [&main](auto event) {
        return [&main, event](int button, int shift, float x, float y) {
            (main.Pic.*event)(button, shift, x + static_cast<float>(main.TextLabel.Left()),
                              y + static_cast<float>(main.TextLabel.Top()));
        };
    };
    main.TextLabel.MouseDown = passOn(&Control::PointerPressed);
    main.TextLabel.MouseMove = passOn(&Control::PointerMoved);
    main.TextLabel.MouseUp = passOn(&Control::PointerReleased);
}

void TextTool::Combo2_Change() {
    ShowFontSample(context_.main.FontLabel, context_.main.Combo2.Text());
}

void TextTool::PlaatsKnop_Click() {
    MainForm& main = context_.main;
    if (TrimBlanks(main.Text1.Text()).empty()) {
        context_.services.platform.ShowMessage(
            {.prompt = "There is no text...", .title = "Error", .icon = MessageIcon::Stop});
        return;
    }
    KeepForUndo(main);
    main.VertPic.surface.SetPicture({});
    const TextStyle style = StyleOnPanel(main);
    TakeTicks(style, main.TextLabel);
    TakeTicks(style, main.VertPic.surface);
    main.TextLabel.ForeColor = black;
    main.TextLabel.Caption = main.Text1.Text() + " ";
    main.TextLabel.FontName = style.fontName;
    if (!style.size) return;
    main.TextLabel.FontSize = *style.size;
    main.TextLabel.Visible = true;
    context_.session.TextPlacing = true;
    // Keys now move the text, and place it.
    main.Pic.SetFocus();
    PrintForTurning();
}

void TextTool::PrintForTurning() {
    MainForm& main = context_.main;
    Surface& paper = main.VertPic.surface;
    paper.FontName = main.TextLabel.FontName;
    paper.FontSize = main.TextLabel.FontSize;
    // A text that no picture can hold is turned as far as a picture goes.
    const double width = std::min<double>(main.TextLabel.Width(), maximumSide);
    main.VertPic.SetHeight(0);
    main.VertPic.SetWidth(width * twipsPerPixel);
    main.VertPic.SetHeight(main.TextLabel.Height() * twipsPerPixel);
    PrintAt(paper, 0, 0, main.Text1.Text());
}

void TextTool::Place(GesturePoint pointer) {
    MainForm& main = context_.main;
    KeepForUndo(main);
    context_.session.DesignChanged = true;
    if (main.VertCheck.Value()) {
        PlaceTurned(pointer);
    } else {
        const TextCorner corner = CornerOfHangingText(main.TextLabel, pointer);
        if (!DrawStyledText(main.Pic.surface, static_cast<float>(corner.left), RoundHalfEven(corner.top),
                            main.Text1.Text(), StyleOnPanel(main)))
            return;
    }
    main.TextLabel.Visible = false;
    context_.session.TextPlacing = false;
    // The next text replaces this one.
    if (!main.Text1.Shown()) return;
    main.Text1.SetFocus();
    main.Text1.SelectText();
}

/// The text runs upward from the pointer, to its left.
void TextTool::PlaceTurned(GesturePoint pointer) {
    Surface& canvas = context_.main.Pic.surface;
    Surface& paper = context_.main.VertPic.surface;
    const int height = paper.PixelHeight(), width = paper.PixelWidth();
    for (int j = 0; j < height; ++j) {
        const int x = RoundHalfEven(pointer.x + static_cast<float>(j - height));
        for (int i = 0; i < width; ++i) {
            const Colour colour = GetPixel(paper.hDC(), i, j);
            if (IsCarriedOver(colour))
                SetPixel(canvas.hDC(), x, RoundHalfEven(pointer.y - static_cast<float>(i)), colour);
        }
    }
}

}  // namespace coinlet
