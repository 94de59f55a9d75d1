#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <string>

namespace coinlet {

enum class Alignment { Left, Right, Center };

/// A text that the user reads. It takes pointer events and, unless keys may press it, no focus.
class Label : public Control, public FontProperties {
public:
    Label(Container& container, std::string_view name, int index = noIndex);

    std::string Caption;
    Colour ForeColor = black;
    Colour BackColor = formColour;
    bool Transparent = true;  ///< What lies behind shows through; else `BackColor` fills the label.
    bool Border = false;      ///< A thin sunken frame.
    coinlet::Alignment Alignment = Alignment::Left;
    bool WordWrap = true;
    /// The label is as large as its caption, which then isn't wrapped.
    bool AutoSize = false;
    /// Room that a caption keeps from the edges of a label of its own size, in pixels.
    int Margin = 0;
    /// The letters are a sample of what surfaces print, with the fonts that were added; else they are those
    /// of the program's own captions.
    bool Sample = false;

    double Width() const override;
    double Height() const override;
    void VisitProperties(PropertyVisitor& visitor) override;

private:
    double UnitsOf(int pixels) const;
    const FontEngine& LetterFonts() const;
};

}  // namespace coinlet
