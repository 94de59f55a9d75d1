#include "tools/flip_menu.h"

#include "base/numbers.h"
#include "core/canvas_work.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/progress_bar.h"
#include "core/tool_codes.h"
#include "core/undo.h"
#include "surface/mirror.h"
#include "surface/rotation.h"

#include <array>
#include <cstddef>

namespace coinlet {

namespace {

/// Shows the canvas as it has become, and how far the work is.
void ShowStep(Context& context, int step) {
    Surface& canvas = context.main.Pic.surface;
    canvas.Refresh();
    context.services.platform.DoEvents();
    ShowProgress(context, step, Truncate(canvas.ScaleWidth() - 1));
}

void MirrorLeftToRight(Context& context) {
    for (int x = 0; x < canvasSide / 2; ++x) {
        MirrorColumnToRight(context.main.Pic.surface, x);
        ShowStep(context, x);
    }
}

void MirrorTopToBottom(Context& context) {
    for (int y = 0; y < canvasSide / 2; ++y) {
        MirrorRowToBottom(context.main.Pic.surface, y);
        ShowStep(context, y);
    }
}

void Mirror(Context& context) {
    FlipHorizontal(context.main.Pic.surface);
}

void TurnUpsideDown(Context& context) {
    FlipVertical(context.main.Pic.surface);
}

void RotateLeft90(Context& context) {
    for (int x = 0; x < canvasSide; ++x) {
        TurnColumnIntoRow(context.main.Pic.surface, canvasSide - 1 - x, context.main.UndoPic.surface, x);
        ShowStep(context, x);
    }
}

void RotateRight45(Context& context) {
    constexpr float eighthTurn = 45;
    Surface& canvas = context.main.Pic.surface;
    RotatePicture(context, context.main.UndoPic.surface, canvas, eighthTurn, true);
    canvas.Refresh();
}

/// In the order of the menu.
constexpr std::array<void (*)(Context&), 6> flips{MirrorLeftToRight, MirrorTopToBottom, Mirror,
                                                  TurnUpsideDown,    RotateLeft90,      RotateRight45};

}  // namespace

void RotatePicture(Context& context, const Surface& source, Surface& target, float angle, bool clockwise) {
    Rotation rotation(target, source, angle, clockwise);
    for (int x = 0; x <= rotation.LastStep(); ++x) {
        rotation.Step(x);
        target.Refresh();
        context.services.platform.DoEvents();
        ShowProgress(context, x, RoundHalfEven((source.ScaleHeight() - 1) / 2));
    }
}

FlipMenu::FlipMenu(Context& context, CanvasWork& work) : context_(context), work_(work) {
    context.main.FlipPic.Bind(&MenuItem::Click, [this](int index) { FlipPic_Click(index); });
}

void FlipMenu::FlipPic_Click(int index) {
    const CanvasWork::Piece piece(work_);
    MainForm& main = context_.main;
    KeepForUndo(main);
    const ProgressShown shown(context_, ImagesButton::Disabled);
    context_.session.ToolCode = usedUpTool;
    flips.at(static_cast<std::size_t>(index - main.FlipPic.First()))(context_);
}

}  // namespace coinlet
