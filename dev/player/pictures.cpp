#include "player/pictures.h"

#include "controls/picture_box.h"
#include "controls/vista_button.h"
#include "player/values.h"

#include <algorithm>
#include <cstdlib>

namespace coinlet::player {

namespace {

int LargestChannelDifference(Colour a, Colour b) {
    return std::max({std::abs(Red(a) - Red(b)), std::abs(Green(a) - Green(b)), std::abs(Blue(a) - Blue(b))});
}

std::string ShowSize(const Image& image) {
    return std::to_string(image.Width()) + " by " + std::to_string(image.Height()) + " pixels";
}

}  // namespace

std::optional<Image> PictureOf(const Element& element) {
    if (const auto* const box = dynamic_cast<const PictureBox*>(&element)) return box->Image();
    if (const auto* const button = dynamic_cast<const VistaButton*>(&element)) return button->Face().Image();
    if (const auto* const stock = dynamic_cast<const StockPicture*>(&element)) return stock->Picture;
    return std::nullopt;
}

bool SetPictureOf(Element& element, const Image& image) {
    if (auto* const box = dynamic_cast<PictureBox*>(&element)) {
        box->SetPicture(image);
    } else if (auto* const button = dynamic_cast<VistaButton*>(&element)) {
        button->SetPicture(image);
    } else if (auto* const stock = dynamic_cast<StockPicture*>(&element)) {
        stock->Picture = image;
    } else {
        return false;
    }
    return true;
}

std::optional<std::string> Difference(const Image& expected, const Image& found, int tolerance) {
    if (expected.Width() != found.Width() || expected.Height() != found.Height())
        return "expected " + ShowSize(expected) + ", found " + ShowSize(found);
    for (int y = 0; y < expected.Height(); ++y) {
        for (int x = 0; x < expected.Width(); ++x) {
            const Colour wanted = expected.At(x, y), present = found.At(x, y);
            if (LargestChannelDifference(wanted, present) > tolerance) {
                return "expected " + ShowColour(wanted) + " at " + std::to_string(x) + " " +
                       std::to_string(y) + ", found " + ShowColour(present);
            }
        }
    }
    return std::nullopt;
}

}  // namespace coinlet::player
