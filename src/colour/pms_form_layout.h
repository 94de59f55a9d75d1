#pragma once

namespace coinlet {

class PMSForm;
class Surface;

/// Places the chooser's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutPmsForm(PMSForm& form);
/// Draws the 28 standard colours as two rows of framed boxes, 20 pixels apart.
void DrawPmsPalette(Surface& palette);

}  // namespace coinlet
