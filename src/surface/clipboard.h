#pragma once

#include "surface/image.h"

namespace coinlet {

/// The system's clipboard, as far as pictures go.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    /// Replaces what is there by a picture. If another program holds the clipboard, the picture is lost in
    /// silence.
    virtual void SetImage(const Image& image) = 0;
    /// The picture that is there, or the empty picture.
    virtual Image GetImage() const = 0;
};

}  // namespace coinlet
