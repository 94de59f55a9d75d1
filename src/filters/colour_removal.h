#pragma once

#include "surface/colour.h"

#include <span>

namespace coinlet {

class Surface;
struct Context;

// Pixels of any number, changed in place. To wipe one is to make it white, the paper of a design. The spare
// byte of a pixel must be 255, as it is in every surface.

/// Wipes the pixels of exactly this colour.
void WipeColour(std::span<Pixel> pixels, Colour colour);
/// Wipes all but the pixels of exactly this colour.
void WipeOtherColours(std::span<Pixel> pixels, Colour colour);
/// Wipes what has a hue; grays stay, black and white among them.
void WipeHues(std::span<Pixel> pixels);
/// Makes pixels white if their gray, the mean of the channels rounded to the nearest whole number, is at or
/// above the threshold, and else black. Any number will do as a threshold.
void MakeBlackAndWhite(std::span<Pixel> pixels, double threshold);

/// A channel of a colour, in the order of the colour's bytes.
enum class Channel { Red, Green, Blue };
/// Sets one channel to 0.
void ClearChannel(std::span<Pixel> pixels, Channel channel);

// Work on a whole picture before the user's eyes: it is shown, and events are served, once a row. Both throw
// ProgramEnded if the program ended in an event.

/// Asks the user for a threshold and makes the picture black and white by it. An answer that isn't a number,
/// the empty one too, leaves the picture as it is.
void ApplyBlackWhite(Context& context, Surface& picture);
/// Wipes what has a hue. Meant for square pictures: rows are counted by the width and columns by the height.
void OnlyGray(Context& context, Surface& picture);

}  // namespace coinlet
