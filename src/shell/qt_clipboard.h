#pragma once

#include "surface/clipboard.h"

namespace coinlet {

/// The desktop's clipboard; a picture lies there in the toolkit's usual formats.
class QtClipboard : public Clipboard {
public:
    void SetImage(const Image& image) override;
    Image GetImage() const override;
    Offer GetOffer() const override;
};

}  // namespace coinlet
