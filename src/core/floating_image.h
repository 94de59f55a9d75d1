#pragma once

namespace coinlet {

class Image;
struct Context;

/// Lays an image over the canvas at its top left corner, where the user drags it to its place and then picks
/// the way of pasting. It replaces one that floats there already; no tool stays armed. An image of no pixels
/// floats unseen.
void FloatImage(Context& context, const Image& image);

/// Takes the floating image away, with the button that pastes it.
void HideFloatingImage(Context& context);

}  // namespace coinlet
