#include "tools/text_tool.h"

#include "base/numbers.h"
#include "base/text.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/undo.h"
#include "surface/device.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace coinlet {

namespace {

constexpr float sampleSize = 14;   // points
constexpr float textDistance = 5;  // pixels between the text and the pointer
constexpr int fullChannel = 255;

constexpr int shadowDepth = 8, shadowDarkest = 180, shadowStep = 6;

/// Where the letters are printed so that together they make an outline of two pixels.
struct Offset {
    float x, y;
};
constexpr std::array<Offset, 9> outline{
    {{0, -2}, {1, -1}, {2, 0}, {1, 1}, {0, 2}, {-1, 1}, {-2, 0}, {-1, -1}, {0, -2}}};

/// The size on the panel in points; nothing if what the user typed there is no number that a font can have.
std::optional<float> ChosenSize(const MainForm& main) {
    double size = 0;
    const bool usable = ParseNumber(main.Combo3.Text(), &size) &&
                        std::abs(size) <= static_cast<double>(std::numeric_limits<float>::max());
    return usable ? std::optional(static_cast<float>(size)) : std::nullopt;
}

void TakeStyle(const MainForm& main, FontProperties& font) {
    font.FontBold = main.BoldCheck.Value();
    font.FontItalic = main.ItalicCheck.Value();
    font.FontUnderline = main.UnderlineCheck.Value();
}

void PrintAt(Surface& target, float x, float y, std::string_view text) {
    target.CurrentX = x;
    target.CurrentY = y;
    target.Print(text);
}

/// Dropped in turning: paper, and with it all that has a channel at its full.
bool IsCarriedOver(Colour colour) {
    return Red(colour) != fullChannel && Green(colour) != fullChannel && Blue(colour) != fullChannel;
}

}  // namespace

bool DrawStyledText(const MainForm& main, Surface& target, float x, int y, std::string_view text) {
    target.FontName = main.Combo2.Text();
    const auto size = ChosenSize(main);
    if (!size) return false;
    target.FontSize = *size;
    TakeStyle(main, target);
    const auto top = static_cast<float>(y);
    if (main.SchaduwCheck.Value()) {
        for (int i = shadowDepth; i >= 1; --i) {
            const int gray = shadowDarkest + shadowStep * i;
            target.ForeColor = RGB(gray, gray, gray);
            PrintAt(target, x + static_cast<float>(i), top + static_cast<float>(i), text);
        }
    }
    target.ForeColor = black;
    if (main.OpenCheck.Value()) {
        for (const Offset& offset : outline)
            PrintAt(target, x + offset.x, top + offset.y, text);
        target.ForeColor = white;
    }
    PrintAt(target, x, top, text);
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
    MainForm& main = context_.main;
    main.FontLabel.FontName = main.Combo2.Text();
    main.FontLabel.FontSize = sampleSize;
    main.FontLabel.Caption = "Example";
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
    TakeStyle(main, main.TextLabel);
    TakeStyle(main, main.VertPic.surface);
    main.TextLabel.ForeColor = black;
    main.TextLabel.Caption = main.Text1.Text() + " ";
    main.TextLabel.FontName = main.Combo2.Text();
    const auto size = ChosenSize(main);
    if (!size) return;
    main.TextLabel.FontSize = *size;
    main.TextLabel.Visible = true;
    context_.session.TextPlacing = true;
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
        const auto left = static_cast<float>(pointer.x - main.TextLabel.Width() - textDistance);
        const int top = RoundHalfEven(pointer.y - main.TextLabel.Height() - textDistance);
        if (!DrawStyledText(main, main.Pic.surface, left, top, main.Text1.Text())) return;
    }
    main.TextLabel.Visible = false;
    context_.session.TextPlacing = false;
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
