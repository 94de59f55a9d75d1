#pragma once

#include <functional>
#include <vector>

namespace coinlet {

struct Context;

/// Where the pointer is in a gesture, in canvas pixels. It may lie outside the canvas during a drag.
struct GesturePoint {
    float x = 0, y = 0;
};

/// A family of tools: what it does with the left button beside the steps that all tools share. A member left
/// empty does nothing.
struct ToolFamily {
    int firstCode = 0, lastCode = 0;  ///< The values of `ToolCode` that it serves.
    std::function<void(GesturePoint)> press = {}, move = {}, release = {};
    /// A moving pointer changes the design.
    bool movesChangeDesign = false;
};

/// The three pointer events of the canvas. It takes the undo copy, keeps the anchor and the read-outs, shows
/// and sizes the rubber band, and hands each event to the family of the tool in use.
class GestureEngine {
public:
    explicit GestureEngine(Context& context);

    void Add(ToolFamily family) { families_.push_back(std::move(family)); }
    /// What a release does while a text hangs on the pointer; no other step runs then.
    std::function<void(GesturePoint)> placeText;

private:
    void Pic_MouseDown(int button, int shift, float x, float y);
    void Pic_MouseMove(int button, int shift, float x, float y);
    void Pic_MouseUp(int button, int shift, float x, float y);

    void PlaceEraserMarker(float x, float y);
    void StartBand(float x, float y);
    void SizeBand(GesturePoint& pointer);
    const ToolFamily* Family() const;

    Context& context_;
    std::vector<ToolFamily> families_;
};

}  // namespace coinlet
