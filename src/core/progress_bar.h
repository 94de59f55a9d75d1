#pragma once

namespace coinlet {

struct Context;

/// Draws the tube of `Main.Bar` as far as `value` is on its way to `maximum`, over what stands there: the bar
/// grows and never shrinks by itself. A maximum of 0 counts as no progress.
void ShowProgress(Context& context, int value, int maximum);

/// Empties the bar.
void ClearProgress(Context& context);

/// What becomes of the button `ImgKnop` while the bar stands in its place.
enum class ImagesButton { Hidden, Disabled };

/// A long piece of work on the canvas: from its start to its end the hourglass shows, and an empty bar in the
/// place of the button `ImgKnop`, however the work ends. Then the button is there again.
class ProgressShown {
public:
    explicit ProgressShown(Context& context, ImagesButton button = ImagesButton::Hidden);
    ~ProgressShown();
    ProgressShown(const ProgressShown&) = delete;
    ProgressShown& operator=(const ProgressShown&) = delete;

private:
    Context& context_;
    ImagesButton button_;
};

}  // namespace coinlet
