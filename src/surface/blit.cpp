// The copies between device contexts.

#include "surface/device.h"
#include "surface/transfer.h"

namespace coinlet {

void BitBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
            RasterOp op) {
    StretchBlt(target, x, y, w, h, source, sx, sy, w, h, op);
}

// A snapshot of the source stays as it is while the target, which may be the same surface, is written.

void StretchBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
                int sw, int sh, RasterOp op) {
    Transfer(target.Target(), {{x, w}, {y, h}}, source.Target().Image(), {{sx, sw}, {sy, sh}}, op);
}

void TransparentBlt(DeviceContext target, int x, int y, int w, int h, DeviceContext source, int sx, int sy,
                    int sw, int sh, Colour colour) {
    TransferWithout(target.Target(), {{x, w}, {y, h}}, source.Target().Image(), {{sx, sw}, {sy, sh}},
                    ToPixel(colour));
}

}  // namespace coinlet
