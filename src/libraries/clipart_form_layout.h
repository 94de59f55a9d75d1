#pragma once

#include <string>

namespace coinlet {

class ClipartForm;

/// A clipart of a sheet; on show it is a third of its size. All in pixels.
constexpr int clipartWidth = 330, clipartHeight = 360;
constexpr int thumbnailWidth = clipartWidth / 3, thumbnailHeight = clipartHeight / 3;

/// Tells the size of the clipart that is shown, in pixels.
std::string ClipartSizeText(double width, double height);

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutClipartForm(ClipartForm& form);

}  // namespace coinlet
