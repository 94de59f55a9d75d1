#pragma once

#include "base/font.h"

namespace coinlet {

/// What is looked at of a text: pixels from the point that it is drawn at, `right` and `bottom` excluded.
struct TextWindow {
    int left = 0, top = 0, right = 0, bottom = 0;
};

/// A font engine that can leave out what nobody sees: then letters cost no more than what is seen of them,
/// however large they are.
class WindowedFonts : public FontEngine {
public:
    /// What Render gives, but of a text too large to be seen at once the mask may lack what lies outside
    /// `window`.
    virtual TextMask RenderSeen(const FontSpec& font, std::string_view text, Edges edges, double angle,
                                const TextWindow& window) const = 0;
};

}  // namespace coinlet
