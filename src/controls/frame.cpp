#include "controls/frame.h"

namespace coinlet {

Frame::Frame(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::Frame) {}

void Frame::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitField(visitor, "Border", Border);
    VisitFont(visitor, *this);
}

}  // namespace coinlet
