#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <string>

namespace coinlet {

/// A panel with a thin border and a caption, which holds other controls.
class Frame : public Control, public Container, public FontProperties {
public:
    Frame(Container& container, std::string_view name, int index = noIndex);

    std::string Caption;
    Colour ForeColor = black;
    Colour BackColor = formColour;
    bool Border = true;

    void VisitProperties(PropertyVisitor& visitor) override;

    Form& HostForm() override { return OwnerForm(); }
    bool ContainerShown() const override { return Shown(); }
    bool ContainerEnabled() const override { return Reachable(); }
    double ChildUnitsPerPixel() const override { return 15; }
};

}  // namespace coinlet
