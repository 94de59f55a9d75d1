#pragma once

#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "designers/drawing_mode.h"

namespace coinlet {

/// Regular polygons, put down by a click: the left button draws the outline, the right one fills it too. A
/// circle through the corners follows the pointer.
class PolygonDrawing : public DrawingMode {
public:
    PolygonDrawing(Form& form, Surface& picture, Shape& layer);

    Frame Frame6;
    Label Label12;                        ///< What Combo1 is for.
    ComboBox Combo1;                      ///< Sides.
    Label Label13;                        ///< What Combo2 is for.
    ComboBox Combo2;                      ///< Size: from the centre to the corners, in pixels.
    Label Label14;                        ///< What Combo3 is for.
    ComboBox Combo3;                      ///< Rotate: radians, clockwise.
    Label Label17;                        ///< What Label16 is.
    Label Label16;                        ///< The fill colour.
    ControlArray<Label> Label15;          ///< Names of the channels.
    ControlArray<ScrollBar> ColorScroll;  ///< Its red, green and blue.
    ControlArray<Label> ColLabel;         ///< Their values.

    Frame& Panel() override { return Frame6; }
    void Chosen() override;
    void Press(int button, float x, float y) override;
    void Move(int button, float x, float y) override;

private:
    void ColorScroll_Change(int index);
    void DrawAt(float x, float y, Colour colour);

    // What the user has chosen.
    int Sides() const;
    double Size() const;
    double Rotation() const;

    Form* form_;
    Surface* picture_;
    Shape* layer_;
};

}  // namespace coinlet
