#pragma once

#include "surface/image.h"

#include <optional>
#include <string>

namespace coinlet {
class Element;
}

namespace coinlet::player {

/// What a picture, a button or a stock picture shows; nothing for an element that holds no pixels.
std::optional<Image> PictureOf(const Element& element);
/// Gives it a picture, as the program would. False for an element that can't have one.
bool SetPictureOf(Element& element, const Image& image);

/// How two pictures differ, in words: in their size, or at the first pixel of which a channel differs by more
/// than `tolerance`. Nothing if they don't.
std::optional<std::string> Difference(const Image& expected, const Image& found, int tolerance);

}  // namespace coinlet::player
