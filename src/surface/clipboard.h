#pragma once

#include "base/files.h"
#include "surface/image.h"

#include <vector>

namespace coinlet {

/// What another program hands over, by its clipboard or by a drop: the paths of files, which need not exist,
/// and a picture beside them or in their place, as the bytes of a file or as it is.
struct Offer {
    std::vector<fs::path> files;
    Bytes encoded;
    Image image;
};

/// The system's clipboard, as far as pictures go.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    /// Replaces what is there by a picture. If another program holds the clipboard, the picture is lost in
    /// silence.
    virtual void SetImage(const Image& image) = 0;
    /// The picture that is there, or the empty picture.
    virtual Image GetImage() const = 0;
    /// All that is there of use for pictures.
    virtual Offer GetOffer() const { return {.files = {}, .encoded = {}, .image = GetImage()}; }
};

}  // namespace coinlet
