#include "core/progress_bar.h"

#include "core/context.h"
#include "core/main_form.h"

#include <cstdint>

namespace coinlet {

namespace {

void LetImagesBePicked(MainForm& main, ImagesButton button, bool may) {
    if (button == ImagesButton::Hidden) {
        main.ImgKnop.Visible = may;
    } else {
        main.ImgKnop.SetEnabled(may);
    }
}

}  // namespace

void ShowProgress(Context& context, int value, int maximum) {
    constexpr double widthPerPercent = 1.15;  // The bar is 115 pixels wide.
    constexpr int tubeHalf = 7, edgeGreen = 130, middleGreen = 200, greenStep = 10;
    const std::int64_t percent = maximum == 0 ? 0 : std::int64_t{100} * value / maximum;
    // In the single precision of coordinates: 50 percent are 57.5, not a little less.
    const auto width = static_cast<float>(static_cast<double>(percent) * widthPerPercent);
    Surface& bar = context.main.Bar.surface;
    for (int i = 0; i <= tubeHalf; ++i) {
        bar.Line(0, i, width, i + 1, RGB(0, edgeGreen + greenStep * i, 0), Box::Filled);
        bar.Line(0, i + tubeHalf, width, i + tubeHalf + 1, RGB(0, middleGreen - greenStep * i, 0),
                 Box::Filled);
    }
    bar.Refresh();
}

void ClearProgress(Context& context) {
    context.main.Bar.surface.SetPicture({});
}

ProgressShown::ProgressShown(Context& context, ImagesButton button) : context_(context), button_(button) {
    context.services.platform.Screen.MousePointer = hourglassPointer;
    ClearProgress(context);
    context.main.Bar.Visible = true;
    LetImagesBePicked(context.main, button, false);
}

ProgressShown::~ProgressShown() {
    context_.services.platform.Screen.MousePointer = toolPointer;
    context_.main.Bar.Visible = false;
    LetImagesBePicked(context_.main, button_, true);
}

}  // namespace coinlet
