#pragma once

namespace coinlet {

class Surface;
struct Context;

// Effects that change a picture before the user's eyes: events are served and the picture is shown once a row
// or column. The picture is measured in pixels. They throw ProgramEnded if the program ended in an event.

/// Tints a gray picture brown, column by column; only the part that a canvas has, 500 by 500 pixels, is
/// changed. The darkest grays become dark reds.
void ApplySepiaTone(Context& context, Surface& picture);
/// Doubles each channel.
void ApplyDodge(Context& context, Surface& picture);
/// Bright colours with black where a channel was near 85. Meant for square pictures: rows are counted by the
/// width and columns by the height.
void ApplyNeon(Context& context, Surface& picture);

}  // namespace coinlet
