#include "controls/label.h"

#include "base/text.h"
#include "controls/form.h"

#include <algorithm>

namespace coinlet {

Label::Label(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::Label) {}

double Label::UnitsOf(int pixels) const {
    return pixels * Parent().ChildUnitsPerPixel();
}

const FontEngine& Label::LetterFonts() const {
    const FontEngine& fonts = OwnerForm().Fonts();
    return Sample ? fonts : fonts.Installed();
}

double Label::Width() const {
    if (!AutoSize) return Control::Width();
    const FontSpec font = CurrentFont();
    int widest = 0;
    for (const auto& line : Lines(Caption))
        widest = std::max(widest, LetterFonts().Measure(font, line).width);
    return UnitsOf(widest);
}

double Label::Height() const {
    if (!AutoSize) return Control::Height();
    const int lines = std::max(1, static_cast<int>(Lines(Caption).size()));
    return UnitsOf(lines * LetterFonts().Measure(CurrentFont(), "").height);
}

void Label::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitField(visitor, "Transparent", Transparent);
    VisitField(visitor, "Border", Border);
    VisitProperty(
        visitor, "Alignment", PropertyKind::Number, [this] { return static_cast<int>(Alignment); },
        [this](int alignment) { Alignment = static_cast<coinlet::Alignment>(std::clamp(alignment, 0, 2)); });
    VisitField(visitor, "WordWrap", WordWrap);
    VisitField(visitor, "AutoSize", AutoSize);
    VisitFont(visitor, *this);
}

}  // namespace coinlet
