#pragma once

#include "surface/clipboard.h"

class QMimeData;

namespace coinlet {

/// What lies on the clipboard or is dropped, as far as it may hold a picture: files of this machine by their
/// addresses, or a text that is the path of one; and the bytes of a picture in one of the formats that the
/// program reads. No reader of the toolkit looks at anything of it.
Offer OfferOf(const QMimeData& data);
/// True if there may be something of use in it, which isn't looked at yet.
bool MayHoldPicture(const QMimeData& data);

}  // namespace coinlet
