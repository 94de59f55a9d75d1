#pragma once

namespace coinlet {

class ClipartForm;

/// A sheet is a row of cliparts; on show it is a third of its size. All in pixels.
constexpr int cliparts = 5;
constexpr int clipartWidth = 330, clipartHeight = 360;
constexpr int thumbnailWidth = clipartWidth / 3, thumbnailHeight = clipartHeight / 3;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutClipartForm(ClipartForm& form);

}  // namespace coinlet
