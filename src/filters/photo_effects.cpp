#include "filters/photo_effects.h"

#include "base/numbers.h"
#include "core/context.h"
#include "core/main_form.h"
#include "filters/progress_bar.h"
#include "surface/device.h"

#include <cstdlib>

namespace coinlet {

namespace {

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
    return RGB(2 * Red(colour), 2 * Green(colour), 2 * Blue(colour));
}

int NeonChannel(int value) {
    return RoundHalfEven(std::abs(2 * (255 - 3 * value)) / 5.0 * 3);
}

Colour Neon(Colour colour) {
    return RGB(NeonChannel(Red(colour)), NeonChannel(Green(colour)), NeonChannel(Blue(colour)));
}

}  // namespace

void ApplySepiaTone(Context& context, Surface& picture) {
    const DeviceContext hDC = picture.hDC();
    for (int x = 0; x < canvasSide; ++x) {
        for (int y = 0; y < canvasSide; ++y)
            SetPixel(hDC, x, y, Sepia(GetPixel(hDC, x, y)));
        picture.Refresh();
        context.services.platform.DoEvents();
        ShowProgress(context, x, Truncate(picture.ScaleWidth() - 1));
    }
}

void ApplyDodge(Context& context, Surface& picture) {
    for (int y = 0; y < picture.ScaleHeight(); ++y) {
        for (int x = 0; x < picture.ScaleWidth(); ++x)
            SetPixel(picture.hDC(), x, y, Doubled(picture.Point(x, y)));
        picture.Refresh();
        context.services.platform.DoEvents();
        ShowProgress(context, y, Truncate(picture.ScaleHeight() - 1));
    }
}

void ApplyNeon(Context& context, Surface& picture) {
    const DeviceContext hDC = picture.hDC();
    for (int y = 0; y < picture.ScaleWidth(); ++y) {
        for (int x = 0; x < picture.ScaleHeight(); ++x)
            SetPixel(hDC, x, y, Neon(GetPixel(hDC, x, y)));
        ShowProgress(context, y, Truncate(picture.ScaleHeight() - 1));
        picture.Refresh();
        context.services.platform.DoEvents();
    }
}

}  // namespace coinlet
