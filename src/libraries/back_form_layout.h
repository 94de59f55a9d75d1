#pragma once

#include "core/side_panel.h"

namespace coinlet {

class BackForm;

/// Backs are shown row by row, each as large as on the side panel. All in pixels.
constexpr int backsARow = 4;
constexpr int backSide = sidePanelBackSide, backRowWidth = backsARow * backSide;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutBackForm(BackForm& form);

}  // namespace coinlet
