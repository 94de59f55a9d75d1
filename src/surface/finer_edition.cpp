#include "surface/finer_edition.h"

#include <map>
#include <memory>
#include <utility>

namespace coinlet {

namespace {

struct Edition {
    /// Held, so that its pixels stay what they are: a surface draws only into those that nobody else holds.
    std::shared_ptr<const Bitmap> of;
    std::function<Image()> make;
};

/// By the pixels that copies of a picture share.
std::map<const Bitmap*, Edition>& Editions() {
    static std::map<const Bitmap*, Edition> editions;
    return editions;
}

}  // namespace

void HasFinerEdition(const Image& picture, std::function<Image()> make) {
    if (picture.Empty()) return;
    auto& editions = Editions();
    std::erase_if(editions, [](const auto& entry) { return entry.second.of.use_count() == 1; });
    editions[picture.Shared().get()] = {picture.Shared(), std::move(make)};
}

Image FinerEditionOf(const Image& picture) {
    const auto found = Editions().find(picture.Shared().get());
    if (picture.Empty() || found == Editions().end()) return {};
    Image finer = found->second.make();
    const int times = finer.Height() / picture.Height();
    const bool fits =
        times > 0 && finer.Width() == times * picture.Width() && finer.Height() == times * picture.Height();
    return fits ? finer : Image();
}

}  // namespace coinlet
