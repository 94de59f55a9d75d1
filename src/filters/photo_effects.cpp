#include "filters/photo_effects.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/progress_bar.h"
#include "surface/surface.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace coinlet {

namespace {

/// Gives each pixel of `area` what `change` makes of its colour; outside the picture there are none.
template <class Change>
void ChangePixels(Surface& picture, const PixelRect& area, Change change) {
    const PixelRect inside = Intersection(area, {0, 0, picture.PixelWidth(), picture.PixelHeight()});
    if (inside.Empty()) return;
    Bitmap& pixels = picture.Write(inside);
    for (int y = inside.top; y < inside.bottom; ++y) {
        Pixel* row = pixels.Row(y);
        for (int x = inside.left; x < inside.right; ++x)
            row[x] = ToPixel(change(ToColour(row[x])));
    }
}

Colour Sepia(Colour gray) {
    constexpr int lessGreen = 40, lessBlue = 80;
    const int red = Red(gray);
    int green = std::abs(Green(gray) - lessGreen);
    if (green > red) green = 0;
    int blue = std::abs(Blue(gray) - lessBlue);
    if (blue > green) blue = 0;
    return RGB(red, green, blue);
}

Colour Doubled(Colour colour) {
    const auto doubled = [](int channel) { return std::min(2 * channel, 255); };
    return RGB(doubled(Red(colour)), doubled(Green(colour)), doubled(Blue(colour)));
}

/// Each channel |2 (255 - 3 v)| / 5 * 3, at most 255.
class Neon {
public:
    Neon() {
        for (int value = 0; value < std::ssize(channels_); ++value) {
            channels_[static_cast<std::size_t>(value)] =
                std::min(RoundHalfEven(std::abs(2 * (255 - 3 * value)) / 5.0 * 3), 255);
        }
    }
    Colour operator()(Colour colour) const {
        return RGB(Channel(Red(colour)), Channel(Green(colour)), Channel(Blue(colour)));
    }

private:
    int Channel(int value) const { return channels_[static_cast<std::size_t>(value)]; }

    std::array<int, 256> channels_{};
};

}  // namespace

void ApplySepiaTone(Context& context, Surface& picture) {
    for (int x = 0; x < canvasSide; ++x) {
        ChangePixels(picture, {x, 0, x + 1, canvasSide}, Sepia);
        picture.Refresh();
        context.services.platform.DoEvents();
        ShowProgress(context, x, Truncate(picture.ScaleWidth() - 1));
    }
}

void ApplyDodge(Context& context, Surface& picture) {
    for (int y = 0; y < picture.ScaleHeight(); ++y) {
        ChangePixels(picture, {0, y, picture.PixelWidth(), y + 1}, Doubled);
        picture.Refresh();
        context.services.platform.DoEvents();
        ShowProgress(context, y, Truncate(picture.ScaleHeight() - 1));
    }
}

void ApplyNeon(Context& context, Surface& picture) {
    const Neon neon;
    for (int y = 0; y < picture.ScaleWidth(); ++y) {
        ChangePixels(picture, {0, y, Truncate(picture.ScaleHeight()), y + 1}, neon);
        ShowProgress(context, y, Truncate(picture.ScaleHeight() - 1));
        picture.Refresh();
        context.services.platform.DoEvents();
    }
}

}  // namespace coinlet
