#include "shell/qt_clipboard.h"

#include "shell/offered.h"
#include "shell/qt_image.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace coinlet {

void QtClipboard::SetImage(const Image& image) {
    QGuiApplication::clipboard()->setImage(ToQImage(image));
}

Image QtClipboard::GetImage() const {
    return FromQImage(QGuiApplication::clipboard()->image());
}

Offer QtClipboard::GetOffer() const {
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const QMimeData* data = clipboard->mimeData();
    if (!data) return {};
    Offer offer = OfferOf(*data);
    // What the program itself has put there is a picture already.
    if (clipboard->ownsClipboard() && data->hasImage()) offer.image = GetImage();
    return offer;
}

}  // namespace coinlet
