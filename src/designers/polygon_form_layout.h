#pragma once

namespace coinlet {

class PolygonForm;

/// The size of the drawing: pixels a step of the slider, and the steps that the slider goes through.
constexpr int pixelsAStep = 20, smallestStep = 10, largestStep = 20;

/// Places the controls of the form, gives them their captions, their ranges and the values they start from.
void LayOutPolygonForm(PolygonForm& form);

}  // namespace coinlet
