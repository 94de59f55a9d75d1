#include "tools/floating_clip.h"

#include "base/numbers.h"
#include "controls/arrow_keys.h"
#include "controls/hourglass.h"
#include "core/canvas_work.h"
#include "core/context.h"
#include "core/floating_image.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "core/tool_codes.h"
#include "core/undo.h"
#include "surface/device.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace coinlet {

namespace {

/// Entries of the menu of ways of pasting.
constexpr int pasteNormal = 1, pasteTransparent = 2, pasteWithoutBackground = 3, cancel = 5;

/// A paste lands this far right of and below the place of the floating image, inside its frame.
constexpr double pasteOffset = 1;

/// Heights are kept in 16 bits; none that doesn't fit.
std::optional<std::int16_t> ToShort(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const int whole = RoundHalfEven(value);
    if (whole < Limits::min() || whole > Limits::max()) return {};
    return static_cast<std::int16_t>(whole);
}

void PasteWhole(MainForm& main, RasterOp op) {
    const PictureBox& clip = main.ClipPic;
    const double width = clip.surface.ScaleWidth(), height = clip.surface.ScaleHeight();
    main.Pic.surface.PaintPicture(clip.surface.Image(),
                                  {clip.Left() + pasteOffset, clip.Top() + pasteOffset, width, height},
                                  {0, 0, width, height}, op);
}

}  // namespace

FloatingClip::FloatingClip(Context& context, CanvasWork& work) : context_(context), work_(work) {
    MainForm& main = context.main;
    main.ClipPic.MouseDown = [this](int, int, float x, float y) { ClipPic_MouseDown(x, y); };
    main.ClipPic.MouseMove = [this](int button, int, float x, float y) { ClipPic_MouseMove(button, x, y); };
    main.HoekKnop.Click = [this] { HoekKnop_Click(); };
    main.Paste.Bind(&MenuItem::Click, [this](int index) { Paste_Click(index); });
}

void FloatingClip::ClipPic_MouseDown(float x, float y) {
    // Who has dragged it near its place moves it on by the arrow keys.
    context_.main.Pic.SetFocus();
    clipGrabX_ = x;
    if (const auto grabY = ToShort(y)) clipGrabY_ = *grabY;
}

void FloatingClip::ClipPic_MouseMove(int button, float x, float y) {
    if (button != leftButton) return;
    PictureBox& clip = context_.main.ClipPic;
    MoveTo(static_cast<float>(clip.Left() + x - clipGrabX_), clip.Top() + y - clipGrabY_);
}

void FloatingClip::MoveTo(float left, double top) {
    // Farther away than the numbers reach it stays where it is.
    if (const auto newTop = ToShort(top)) context_.main.ClipPic.Move(left, *newTop);
}

bool FloatingClip::TakesKey(int code, int shift) {
    MainForm& main = context_.main;
    if (!ImageFloats(context_) || !IsPlainKey(shift)) return false;
    if (const auto steps = ArrowSteps(code, shift)) {
        MoveTo(static_cast<float>(main.ClipPic.Left() + steps->columns), main.ClipPic.Top() + steps->rows);
        return true;
    }
    switch (code) {
        case keyReturn:
            Paste_Click(pasteNormal);
            return true;
        case keyEscape:
            Paste_Click(cancel);
            return true;
        default:
            return false;
    }
}

void FloatingClip::HoekKnop_Click() {
    context_.services.platform.PopupMenu(context_.main.PasteImage);
}

void FloatingClip::Paste_Click(int index) {
    const CanvasWork::Piece piece(work_);
    MainForm& main = context_.main;
    KeepForUndo(main);
    if (index == pasteNormal) PasteWhole(main, SRCCOPY);
    if (index == pasteTransparent) PasteWhole(main, SRCAND);
    if (index == pasteWithoutBackground) PasteWithoutBackground();
    HideFloatingImage(context_);
    ShowHint(context_, key::ready);
    context_.session.ToolCode = usedUpTool;
    context_.session.DesignChanged = true;
}

void FloatingClip::PasteWithoutBackground() {
    // One pixel tells what the background is, a little way inside the picture.
    constexpr int tellingPlace = 2;
    // The picture's last two rows and columns stay behind.
    constexpr int leftBehind = 2;
    MainForm& main = context_.main;
    Platform& platform = context_.services.platform;
    Surface& clip = main.ClipPic.surface;
    const Colour background = GetPixel(clip.hDC(), tellingPlace, tellingPlace);
    const Hourglass hourglass(platform, defaultPointer);
    main.ClipPic.Visible = false;
    const int rows = clip.PixelHeight() - leftBehind;
    for (int y = 0; y < rows; ++y) {
        // Events are served between the rows: the image may be another one by now, or somewhere else.
        const int columns = std::max(0, clip.PixelWidth() - leftBehind);
        const int left = RoundHalfEven(main.ClipPic.Left() + pasteOffset);
        const int top = RoundHalfEven(main.ClipPic.Top() + pasteOffset + y);
        TransparentBlt(main.Pic.surface.hDC(), left, top, columns, 1, clip.hDC(), 0, y, columns, 1,
                       background);
        platform.DoEvents();
        main.Pic.surface.Refresh();
    }
}

}  // namespace coinlet
