#pragma once

#include <functional>
#include <vector>

namespace coinlet {

struct Context;

/// Where the pointer is in a gesture, in canvas pixels. It may lie outside the canvas during a drag.
struct GesturePoint {
    float x = 0, y = 0;
};

/// What a tool does with the rubber band, which a press with the left button lays at the pointer, with a
/// read-out above it.
enum class Band {
    None,
    Empty,  ///< The band stays as the press left it.
    Drag,   ///< A drag sizes the band; the read-out tells how far it went.
    Area,   ///< The same, but the read-out tells the pixels that the band covers, which are one more.
};

/// A family of tools: what it does beside the steps that all tools share. A member left empty does nothing.
struct ToolFamily {
    int firstCode = 0, lastCode = 0;  ///< The values of `ToolCode` that it serves.
    Band band = Band::None;
    /// The pointer moves over the canvas, with or without a button.
    std::function<void(GesturePoint)> follow = {};
    /// The left button goes down, is held down in a move, and comes up.
    std::function<void(GesturePoint)> press = {}, move = {}, release = {};
    /// Where a drag with Shift counts to have come to, in moves and at the release. Empty: Shift means
    /// nothing.
    std::function<GesturePoint(GesturePoint anchor, GesturePoint pointer)> withShift = {};
    /// A moving pointer changes the design.
    bool movesChangeDesign = false;
};

/// The tools of these codes do nothing with the canvas but leave an empty band at a press: buttons that open
/// a menu, About, and codes that no tool has.
ToolFamily EmptyBandTools(int firstCode, int lastCode);

/// The three pointer events of the canvas. It takes the undo copy, keeps the anchor and the read-outs, shows
/// and sizes the rubber band of the tools that have one, and hands each event to the family of the tool in
/// use. Which tools there are it doesn't know.
class GestureEngine {
public:
    explicit GestureEngine(Context& context);

    void Add(ToolFamily family) { families_.push_back(std::move(family)); }
    /// What a release does while a text hangs on the pointer; no other step runs then.
    std::function<void(GesturePoint)> placeText;
    /// The Shift key went down or came up: the preview of what is being drawn follows at once.
    void ShiftTurned(bool held);
    /// Runs at the end of each release, whatever it did.
    std::function<void()> strokeFinished;

private:
    void Pic_MouseDown(int button, int shift, float x, float y);
    void Pic_MouseMove(int button, int shift, float x, float y);
    void Pic_MouseUp(int button, int shift, float x, float y);

    void PlaceEraserMarker(float x, float y);
    void StartBand(float x, float y);
    void SizeBand(Band band, GesturePoint& pointer);
    const ToolFamily* Family() const;
    /// The place of the pointer as the tool in use takes it.
    GesturePoint PlaceForTool(int shift) const;

    Context& context_;
    std::vector<ToolFamily> families_;
    GesturePoint pointer_;
    bool leftHeld_ = false;
};

}  // namespace coinlet
