#pragma once

#include "controls/control.h"
#include "surface/colour.h"

namespace coinlet {

enum class ShapeForm { Rectangle, Circle, Ellipse };

/// An outline that floats over its container and takes no events: rubber bands and markers.
class Shape : public Control {
public:
    Shape(Container& container, std::string_view name, int index = noIndex);

    ShapeForm Form = ShapeForm::Rectangle;
    Colour BorderColor = black;
    int BorderWidth = 1;  ///< Pixels.
    bool BorderDotted = false;
    bool Filled = false;  ///< With `FillColor`; else what lies behind shows through.
    Colour FillColor = white;

    void VisitProperties(PropertyVisitor& visitor) override;
};

/// A straight line that floats over its container and takes no events, in the container's units.
class LineShape : public Control {
public:
    LineShape(Container& container, std::string_view name, int index = noIndex);

    double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    Colour BorderColor = black;
    int BorderWidth = 1;  ///< Pixels.

    void VisitProperties(PropertyVisitor& visitor) override;
};

}  // namespace coinlet
