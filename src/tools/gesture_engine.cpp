#include "tools/gesture_engine.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/undo.h"
#include "tools/hanging_text.h"

#include <algorithm>

namespace coinlet {

namespace {

// The read-out of the band stands above its anchor, a little to the left.
constexpr float readOutAbove = 15, readOutLeft = 3;

bool IsSized(Band band) {
    return band == Band::Drag || band == Band::Area;
}

}  // namespace

ToolFamily EmptyBandTools(int firstCode, int lastCode) {
    return {.firstCode = firstCode, .lastCode = lastCode, .band = Band::Empty};
}

GestureEngine::GestureEngine(Context& context) : context_(context) {
    PictureBox& canvas = context.main.Pic;
    canvas.MouseDown = [this](int button, int shift, float x, float y) {
        Pic_MouseDown(button, shift, x, y);
    };
    canvas.MouseMove = [this](int button, int shift, float x, float y) {
        Pic_MouseMove(button, shift, x, y);
    };
    canvas.MouseUp = [this](int button, int shift, float x, float y) {
        Pic_MouseUp(button, shift, x, y);
        if (strokeFinished) strokeFinished();
    };
}

void GestureEngine::Pic_MouseDown(int button, int /*shift*/, float x, float y) {
    pointer_ = {x, y};
    leftHeld_ = leftHeld_ || button == leftButton;
    MainForm& main = context_.main;
    Session& session = context_.session;
    Surface& canvas = main.Pic.surface;
    KeepForUndo(main);
    session.StartX = x;
    session.StartY = y;
    PlaceEraserMarker(x, y);
    canvas.DrawWidth = session.LineWidth;

    if (button == leftButton) {
        if (const ToolFamily* family = Family()) {
            if (family->band != Band::None) StartBand(x, y);
            if (family->press) family->press({x, y});
        }
    }
    // The right button is a dropper for the colour field's display alone.
    if (button == rightButton) main.ColorLabel.BackColor = canvas.Point(x, y);
}

void GestureEngine::Pic_MouseMove(int button, int shift, float x, float y) {
    MainForm& main = context_.main;
    pointer_ = {x, y};
    leftHeld_ = button == leftButton;
    Session& session = context_.session;
    main.CoorLabel.Caption = "X : " + FormatNumber(x) + " / Y : " + FormatNumber(y);
    for (LineShape* mark : {&main.Line1, &main.Line3})
        mark->Y1 = mark->Y2 = y;
    for (LineShape* mark : {&main.Line2, &main.Line4})
        mark->X1 = mark->X2 = x;
    const ToolFamily* family = Family();
    if (family != nullptr && family->follow) family->follow({x, y});
    // The text rides on the pointer also while nobody sees it, so that it appears in its place.
    const TextCorner corner = CornerOfHangingText(main.TextLabel, {x, y});
    main.TextLabel.Move(corner.left, corner.top);
    PlaceEraserMarker(x, y);
    if (button != leftButton) return;

    GesturePoint pointer = PlaceForTool(shift);
    if (family != nullptr) {
        if (IsSized(family->band)) SizeBand(family->band, pointer);
        if (family->move) family->move(pointer);
        if (family->movesChangeDesign) session.DesignChanged = true;
    }
    session.LastX = pointer.x;
    session.LastY = pointer.y;
}

void GestureEngine::Pic_MouseUp(int button, int shift, float x, float y) {
    pointer_ = {x, y};
    if (button == leftButton) leftHeld_ = false;
    MainForm& main = context_.main;
    Session& session = context_.session;
    if (session.TextPlacing) {
        if (placeText) placeText({x, y});
        return;
    }
    main.Pic.surface.DrawMode = copyPen;
    if (button == leftButton) {
        if (session.ToolCode != nothingArmed) session.DesignChanged = true;
        if (const ToolFamily* family = Family(); family != nullptr && family->release)
            family->release(PlaceForTool(shift));
    }
    main.Pic.surface.Refresh();
    main.Layer.Visible = false;
    main.Gom.Visible = false;
    main.XYcor.Visible = false;
}

void GestureEngine::ShiftTurned(bool held) {
    const ToolFamily* family = Family();
    if (!leftHeld_ || family == nullptr || !family->withShift) return;
    Pic_MouseMove(leftButton, held ? shiftHeld : 0, pointer_.x, pointer_.y);
}

GesturePoint GestureEngine::PlaceForTool(int shift) const {
    const ToolFamily* family = Family();
    const bool keeps = (shift & shiftHeld) != 0 && family != nullptr && family->withShift;
    const Session& session = context_.session;
    return keeps ? family->withShift({session.StartX, session.StartY}, pointer_) : pointer_;
}

void GestureEngine::PlaceEraserMarker(float x, float y) {
    const int size = context_.session.EraserSize;
    context_.main.Gom.Move(x - static_cast<float>(size), y - static_cast<float>(size));
}

void GestureEngine::StartBand(float x, float y) {
    MainForm& main = context_.main;
    main.XYcor.Move(x - readOutLeft, y - readOutAbove);
    main.XYcor.Caption = " 0,0 ";
    main.XYcor.Visible = true;
    main.Layer.Move(x, y, 0, 0);
    main.Layer.Visible = true;
}

void GestureEngine::SizeBand(Band band, GesturePoint& pointer) {
    MainForm& main = context_.main;
    Session& session = context_.session;
    // The band never goes up or to the left of its anchor.
    pointer.x = std::max(pointer.x, session.StartX);
    pointer.y = std::max(pointer.y, session.StartY);
    const float width = pointer.x - session.StartX, height = pointer.y - session.StartY;
    main.Layer.Move(session.StartX, session.StartY, width + 1, height + 1);
    const float extra = band == Band::Area ? 1 : 0;
    main.XYcor.Caption = " " + FormatNumber(width + extra) + "," + FormatNumber(height + extra) + " ";
}

const ToolFamily* GestureEngine::Family() const {
    const int code = context_.session.ToolCode;
    const auto serves = [code](const ToolFamily& family) {
        return code >= family.firstCode && code <= family.lastCode;
    };
    const auto found = std::ranges::find_if(families_, serves);
    return found == families_.end() ? nullptr : &*found;
}

}  // namespace coinlet
