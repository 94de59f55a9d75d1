#include "surface/flood_fill.h"

#include "surface/device.h"

#include <algorithm>
#include <vector>

namespace coinlet {
namespace {

// Which pixels belong to the region and aren't repainted yet. `All` looks at a block at once, without
// branches, which is what makes wide areas fast.
constexpr int blockSize = 16;

struct OfColour {
    Pixel colour;
    bool Has(Pixel pixel) const { return pixel == colour; }
    bool All(const Pixel* block) const {
        Pixel differences = 0;
        for (int i = 0; i < blockSize; ++i)
            differences |= block[i] ^ colour;
        return differences == 0;
    }
};

struct WithinBorder {
    Pixel border, mark;
    bool Has(Pixel pixel) const { return pixel != border && pixel != mark; }
    bool All(const Pixel* block) const {
        Pixel stops = 0;
        for (int i = 0; i < blockSize; ++i)
            stops |= static_cast<Pixel>(block[i] == border) | static_cast<Pixel>(block[i] == mark);
        return stops == 0;
    }
};

// The first x in [x, end) that isn't in the region, or end.
template <class Region>
int EndOfRun(const Pixel* row, int x, int end, const Region& region) {
    const int nearby = std::min(end, x + blockSize);
    while (x < nearby && region.Has(row[x]))
        ++x;
    if (x < nearby) return x;
    while (x + blockSize <= end && region.All(row + x))
        x += blockSize;
    while (x < end && region.Has(row[x]))
        ++x;
    return x;
}

// Row y is to be searched in [left, right), all of which was repainted in the row y - direction.
struct Segment {
    int left, right, y, direction;
};

template <class Region>
PixelRect FillSpans(Bitmap& pixels, int seedX, int seedY, const Region& region, Pixel mark) {
    const int width = pixels.Width(), height = pixels.Height();
    PixelRect filled = {seedX, seedY, seedX + 1, seedY + 1};
    std::vector<Segment> pending;
    const auto search = [&](int left, int right, int y, int direction) {
        if (y >= 0 && y < height) pending.push_back({left, right, y, direction});
    };

    // The seed is taken first, as if it had been reached from above; so above it remains to be searched.
    search(seedX, seedX + 1, seedY - 1, -1);
    search(seedX, seedX + 1, seedY, 1);
    while (!pending.empty()) {
        const Segment segment = pending.back();
        pending.pop_back();
        Pixel* row = pixels.Row(segment.y);
        int x = segment.left, runStart = x;
        if (region.Has(row[x])) {
            while (runStart > 0 && region.Has(row[runStart - 1]))
                --runStart;
        }
        while (x < segment.right) {
            if (!region.Has(row[x])) {
                runStart = ++x;
                continue;
            }
            const int runEnd = EndOfRun(row, x, width, region);
            std::fill(row + runStart, row + runEnd, mark);
            search(runStart, runEnd, segment.y + segment.direction, segment.direction);
            // Where the run reaches beyond the segment it may lead back past it.
            const int back = segment.y - segment.direction;
            if (runStart < segment.left) search(runStart, segment.left, back, -segment.direction);
            if (runEnd > segment.right) search(segment.right, runEnd, back, -segment.direction);
            filled = Union(filled, {runStart, segment.y, runEnd, segment.y + 1});
            runStart = x = runEnd;
        }
    }
    return filled;
}

}  // namespace

PixelRect FillRegion(Bitmap& pixels, int x, int y, Pixel colour, Pixel mark) {
    return FillSpans(pixels, x, y, OfColour{colour}, mark);
}

PixelRect FillToBorder(Bitmap& pixels, int x, int y, Pixel border, Pixel fill) {
    // Pixels of the fill's own colour are passed through, so what was repainted needs a mark that no picture
    // has: a spare byte of 0.
    const Pixel mark = fill & ~spareByte;
    const PixelRect filled = FillSpans(pixels, x, y, WithinBorder{border, mark}, mark);
    for (int row = filled.top; row < filled.bottom; ++row) {
        Pixel* first = pixels.Row(row) + filled.left;
        std::transform(first, first + filled.Width(), first,
                       [=](Pixel pixel) { return pixel == mark ? fill : pixel; });
    }
    return filled;
}

bool ExtFloodFill(DeviceContext hDC, int x, int y, Colour colour, int mode) {
    Surface& target = hDC.Target();
    const Pixel region = ToPixel(colour), fill = ToPixel(target.FillColor);
    if (mode != FLOODFILLSURFACE || target.FillStyle != solidFill) return false;
    if (!target.Pixels().Contains(x, y) || target.Pixels().Row(y)[x] != region) return false;
    if (fill != region) target.Write(FillRegion(target.Write({x, y, x + 1, y + 1}), x, y, region, fill));
    return true;
}

bool FloodFill(DeviceContext hDC, int x, int y, Colour colour) {
    Surface& target = hDC.Target();
    const Pixel border = ToPixel(colour), fill = ToPixel(target.FillColor);
    if (!target.Pixels().Contains(x, y) || target.Pixels().Row(y)[x] == border) return false;
    if (target.FillStyle == solidFill)
        target.Write(FillToBorder(target.Write({x, y, x + 1, y + 1}), x, y, border, fill));
    return true;
}

}  // namespace coinlet
