#include "shell/qt_clipboard.h"

#include "shell/qt_image.h"

#include <QClipboard>
#include <QGuiApplication>

namespace coinlet {

void QtClipboard::SetImage(const Image& image) {
    QGuiApplication::clipboard()->setImage(ToQImage(image));
}

Image QtClipboard::GetImage() const {
    return FromQImage(QGuiApplication::clipboard()->image());
}

}  // namespace coinlet
