#pragma once

namespace coinlet {

/// What a slider ranges over, and where it stands when the program starts.
struct SliderRange {
    int minimum, maximum, standard;
};

// The measures of the tools, in pixels. The session starts with the standards.
constexpr SliderRange lineWidths{1, 9, 2};
constexpr SliderRange cornerSizes{10, 100, 30};
constexpr SliderRange eraserSizes{10, 50, 20};
constexpr SliderRange rasterSteps{5, 100, 10};

}  // namespace coinlet
