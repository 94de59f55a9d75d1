#include "tools/incoming_pictures.h"

#include "base/numbers.h"
#include "controls/hourglass.h"
#include "core/canvas_work.h"
#include "core/context.h"
#include "core/floating_image.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "surface/clipboard.h"
#include "surface/codecs.h"

#include <algorithm>
#include <optional>

namespace coinlet {

namespace {

constexpr int letterV = 'V';

std::optional<Image> PictureOf(const Offer& offer, const PictureCodecs& codecs) {
    for (const fs::path& file : offer.files) {
        if (auto picture = LoadOfferedPicture(file, codecs); picture && !picture->Empty()) return picture;
    }
    if (auto picture = DecodeOfferedPicture(offer.encoded, codecs); picture && !picture->Empty())
        return picture;
    return offer.image.Empty() ? std::nullopt : std::optional(offer.image);
}

/// The picture, or one of the same proportions that fits the canvas.
Image FittedToCanvas(const Image& picture, const FontEngine& fonts) {
    const int longer = std::max(picture.Width(), picture.Height());
    if (longer <= canvasSide) return picture;
    const auto fitted = [&](int side) {
        return std::max(1, RoundHalfEven(static_cast<double>(side) * canvasSide / longer));
    };
    Surface small(fonts, fitted(picture.Width()), fitted(picture.Height()));
    small.PaintPicture(picture, {0, 0, small.ScaleWidth(), small.ScaleHeight()});
    return small.Image();
}

}  // namespace

IncomingPictures::IncomingPictures(Context& context, const CanvasWork& work)
    : context_(context), work_(work) {
    context.main.Dropped = [this](const Offer& offer) { Take(offer); };
}

bool IncomingPictures::TakesKey(int code, int shift) {
    if (code != letterV || shift != controlHeld) return false;
    // Looking at the clipboard may mean waiting for the other program: not for nothing.
    if (IsFree()) Take(context_.services.clipboard.GetOffer());
    return true;
}

bool IncomingPictures::IsFree() const {
    const MainForm& main = context_.main;
    return context_.services.platform.FrontForm() == &main && !work_.UnderWay() && !main.PointerHeld() &&
           !context_.session.TextPlacing;
}

void IncomingPictures::Take(const Offer& offer) {
    if (!IsFree()) return;
    std::optional<Image> picture;
    {
        const Hourglass hourglass(context_.services.platform);
        picture = PictureOf(offer, context_.services.codecs);
        if (picture) picture = FittedToCanvas(*picture, context_.services.fonts);
    }
    if (picture) {
        FloatImage(context_, *picture);
    } else {
        ShowHint(context_, key::noPictureOffered);
    }
}

}  // namespace coinlet
