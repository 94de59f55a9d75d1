#include "filters/colour_removal.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/progress_bar.h"
#include "filters/surface_walk.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace coinlet {

namespace {

constexpr Pixel wiped = ToPixel(white), ink = ToPixel(black);

constexpr const char* thresholdQuestion =
    "Enter a value for black and white (0-255, high value will make a darker image)";
constexpr const char* usualThreshold = "40";

}  // namespace

void WipeColour(std::span<Pixel> pixels, Colour colour) {
    const Pixel unwanted = ToPixel(colour);
    for (Pixel& pixel : pixels)
        pixel = pixel == unwanted ? wiped : pixel;
}

void WipeOtherColours(std::span<Pixel> pixels, Colour colour) {
    const Pixel kept = ToPixel(colour);
    for (Pixel& pixel : pixels)
        pixel = pixel == kept ? pixel : wiped;
}

void WipeHues(std::span<Pixel> pixels) {
    // Each channel equals the next one up exactly if the pixel, moved by a channel, is itself.
    constexpr Pixel lowerChannels = 0xFFFFu;
    for (Pixel& pixel : pixels)
        pixel = ((pixel ^ pixel >> 8) & lowerChannels) == 0 ? pixel : wiped;
}

void MakeBlackAndWhite(std::span<Pixel> pixels, double threshold) {
    // The least gray that becomes white; 256 is beyond all. A third of a sum is rounded up from two thirds
    // on, so a gray is reached one below three times its value.
    constexpr double darkest = 0, beyondAll = 256;
    const int whiteGray = static_cast<int>(std::ceil(std::clamp(threshold, darkest, beyondAll)));
    const int whiteSum = 3 * whiteGray - 1;
    for (Pixel& pixel : pixels) {
        const int sum = static_cast<int>((pixel & 0xFFu) + (pixel >> 8 & 0xFFu) + (pixel >> 16 & 0xFFu));
        pixel = sum >= whiteSum ? wiped : ink;
    }
}

void ClearChannel(std::span<Pixel> pixels, Channel channel) {
    constexpr Pixel masks[] = {~0xFF0000u, ~0xFF00u, ~0xFFu};
    const Pixel mask = masks[static_cast<int>(channel)];
    for (Pixel& pixel : pixels)
        pixel &= mask;
}

void ApplyBlackWhite(Context& context, Surface& picture) {
    Platform& platform = context.services.platform;
    const std::string answer = platform.InputBox(thresholdQuestion, "", usualThreshold);
    double threshold = 0;
    if (!ParseNumber(answer, &threshold)) return;
    const int rows = Truncate(picture.ScaleHeight());
    for (int y = 0; y < rows; ++y) {
        MakeBlackAndWhite(RowToChange(picture, y, Truncate(picture.ScaleWidth())), threshold);
        picture.Refresh();
        platform.DoEvents();
        ShowProgress(context, y, Truncate(picture.ScaleHeight()) - 1);
    }
    picture.Refresh();
}

void OnlyGray(Context& context, Surface& picture) {
    const int rows = Truncate(picture.ScaleWidth());
    for (int y = 0; y < rows; ++y) {
        WipeHues(RowToChange(picture, y, Truncate(picture.ScaleHeight())));
        picture.Refresh();
        context.services.platform.DoEvents();
    }
}

}  // namespace coinlet
