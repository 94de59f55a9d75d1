#include "controls/shapes.h"

#include <algorithm>

namespace coinlet {

Shape::Shape(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::Shape) {}

void Shape::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitProperty(
        visitor, "Form", PropertyKind::Number, [this] { return static_cast<int>(Form); },
        [this](int form) { Form = static_cast<ShapeForm>(std::clamp(form, 0, 2)); });
    VisitColour(visitor, "BorderColor", BorderColor);
    VisitField(visitor, "BorderWidth", BorderWidth);
    VisitField(visitor, "BorderDotted", BorderDotted);
    VisitField(visitor, "Filled", Filled);
    VisitColour(visitor, "FillColor", FillColor);
}

LineShape::LineShape(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::Line) {}

void LineShape::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "X1", X1);
    VisitField(visitor, "Y1", Y1);
    VisitField(visitor, "X2", X2);
    VisitField(visitor, "Y2", Y2);
    VisitColour(visitor, "BorderColor", BorderColor);
    VisitField(visitor, "BorderWidth", BorderWidth);
}

}  // namespace coinlet
