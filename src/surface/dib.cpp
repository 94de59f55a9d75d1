// Whole rows between a surface and a memory buffer.

#include "surface/device.h"

#include <cstddef>
#include <cstring>

namespace coinlet {
namespace {

// True if the buffer describes this surface and holds the rows asked for.
bool Fits(const Surface& surface, int start, int lines, std::size_t bufferSize, const BITMAPINFO& info) {
    const long long height = surface.PixelHeight();
    if (info.biWidth != surface.PixelWidth() || (info.biHeight != height && info.biHeight != -height))
        return false;
    if (start < 0 || lines <= 0 || static_cast<long long>(start) + lines > height) return false;
    return bufferSize / sizeof(Pixel) >=
           static_cast<std::size_t>(lines) * static_cast<std::size_t>(info.biWidth);
}

int SurfaceRow(const BITMAPINFO& info, int row) {
    const bool topRowFirst = info.biHeight < 0;
    return topRowFirst ? row : info.biHeight - 1 - row;
}

std::size_t RowBytes(const BITMAPINFO& info) {
    return static_cast<std::size_t>(info.biWidth) * sizeof(Pixel);
}

}  // namespace

int GetDIBits(DeviceContext hDC, int start, int lines, std::span<std::uint8_t> buffer,
              const BITMAPINFO& info) {
    const Surface& source = hDC.Target();
    if (!Fits(source, start, lines, buffer.size(), info) || info.biWidth == 0) return 0;
    std::uint8_t* row = buffer.data();
    for (int line = 0; line < lines; ++line, row += RowBytes(info))
        std::memcpy(row, source.Pixels().Row(SurfaceRow(info, start + line)), RowBytes(info));
    return lines;
}

int SetDIBits(DeviceContext hDC, int start, int lines, std::span<const std::uint8_t> buffer,
              const BITMAPINFO& info) {
    Surface& target = hDC.Target();
    if (!Fits(target, start, lines, buffer.size(), info) || info.biWidth == 0) return 0;
    const int first = SurfaceRow(info, start), last = SurfaceRow(info, start + lines - 1);
    Bitmap& pixels = target.Write({0, std::min(first, last), target.PixelWidth(), std::max(first, last) + 1});
    const std::uint8_t* from = buffer.data();
    for (int line = 0; line < lines; ++line, from += RowBytes(info)) {
        Pixel* row = pixels.Row(SurfaceRow(info, start + line));
        std::memcpy(row, from, RowBytes(info));
        for (int x = 0; x < info.biWidth; ++x)
            row[x] |= spareByte;
    }
    return lines;
}

}  // namespace coinlet
