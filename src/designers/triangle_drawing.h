#pragma once

#include "controls/check_box.h"
#include "designers/drawing_mode.h"
#include "designers/regular_polygon.h"

#include <array>

namespace coinlet {

/// A triangle that follows the pointer, by the points that it hangs on.
struct DraggedTriangle {
    using Points = std::array<PlanePoint, 3>;
    struct Line {
        PlanePoint from, to;
    };
    using Outline = std::array<Line, 3>;

    Outline (*outline)(const Points&);  ///< What stays.
    Outline (*preview)(const Points&);  ///< What is drawn while the pointer moves.
    Points points{};
    bool shown = false;  ///< The preview is on the picture.
};

/// Triangles that grow from the place of the press while the pointer is dragged: with a right angle there and
/// legs along the axes, or isosceles with the base at that height and the apex over its middle. The two check
/// boxes choose, and exclude each other; with both off nothing is drawn.
///
/// A press draws the triangle of the one before once more. The first one finds its points in the corner of
/// the picture, where a wide pen leaves a dot.
class TriangleDrawing : public DrawingMode {
public:
    TriangleDrawing(Form& form, Surface& picture);

    Frame Frame2;
    ControlArray<CheckBox> Check1;  ///< 0: right-angled, 1: isosceles.

    Frame& Panel() override { return Frame2; }
    void Press(int button, float x, float y) override;
    void Move(int button, float x, float y) override;
    void Release() override;
    void PictureWiped() override;

private:
    void Check1_Click(int index);
    /// nullptr if none is chosen.
    DraggedTriangle* Current();
    void Draw(const DraggedTriangle::Outline& outline, int drawMode);

    Surface* picture_;
    DraggedTriangle RightTriangle, IsoTriangle;
};

}  // namespace coinlet
