#include "shell/stock_pictures.h"

#include "shell/stock_bytes.h"

#include <QPixmap>

#include <cstdint>
#include <span>

namespace coinlet {

namespace {

constexpr int pencilTipX = 1, pencilTipY = 30;

QPixmap FromPng(std::span<const std::uint8_t> bytes) {
    QPixmap pixmap;
    pixmap.loadFromData(bytes.data(), static_cast<uint>(bytes.size()), "PNG");
    return pixmap;
}

}  // namespace

QIcon WindowIcon() {
    QIcon icon;
    for (const auto bytes : {stock_bytes::WindowIcon16(), stock_bytes::WindowIcon32(),
                             stock_bytes::WindowIcon48(), stock_bytes::WindowIcon64()})
        icon.addPixmap(FromPng(bytes));
    return icon;
}

QCursor ToolPointer(double pixelRatio) {
    QPixmap pencil = FromPng(pixelRatio > 1 ? stock_bytes::ToolPointer2x() : stock_bytes::ToolPointer());
    if (pixelRatio > 1) pencil.setDevicePixelRatio(2);
    return QCursor(pencil, pencilTipX, pencilTipY);
}

}  // namespace coinlet
