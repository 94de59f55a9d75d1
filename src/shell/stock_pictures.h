#pragma once

#include <QCursor>
#include <QIcon>

namespace coinlet {

/// The picture of the program in title bars, task bars and switchers: 16, 32, 48 and 64 pixels.
QIcon WindowIcon();

/// The pencil over the canvas, which draws where its tip is. `pixelRatio` is the display's: above 1 it is
/// drawn at twice the resolution, in the same place and size.
QCursor ToolPointer(double pixelRatio);

}  // namespace coinlet
