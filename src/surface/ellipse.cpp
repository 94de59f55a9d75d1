#include "surface/ellipse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace coinlet {

namespace {

/// A row of a ring: the pixels from `left` to `right` - 1 without those from `holeLeft` to `holeRight` - 1.
struct RingRow {
    int left, holeLeft, holeRight, right;
};

/// The rows of a ring, by their distance from its nearer edge.
class RingRows {
public:
    RingRows(const RoundedBox& outside, int penWidth)
        : outside_(outside), penWidth_(penWidth), inside_{Shrunk(outside, penWidth)} {}

    /// The first one that Next gives.
    void StartAt(int row) {
        row_ = row;
        insetBefore_ = row > 0 ? outside_.Inset(row - 1) : wholeRow;
    }

    RingRow Next() {
        const int inset = outside_.Inset(row_);
        // As far as the end of the row further out, or the two wouldn't meet.
        int holeInset = std::max(insetBefore_, inset + 1);
        if (penWidth_ > 1 && holeInset != wholeRow) {
            const int inner = row_ < penWidth_ ? wholeRow : penWidth_ + inside_.Inset(row_ - penWidth_);
            holeInset = std::max(holeInset, inner);
        }
        insetBefore_ = inset;
        ++row_;

        const PixelRect& box = outside_.edges;
        const bool hasHole = holeInset <= (box.right - box.left - 1) / 2;
        return {box.left + inset, hasHole ? box.left + holeInset : box.right - inset,
                hasHole ? box.right - holeInset : box.right - inset, box.right - inset};
    }

private:
    static constexpr int wholeRow = std::numeric_limits<int>::max();

    static RoundedBox Shrunk(const RoundedBox& box, int by) {
        const PixelRect& edges = box.edges;
        const PixelRect shrunk{edges.left + by, edges.top + by, edges.right - by, edges.bottom - by};
        const double radiusX = box.radiusX - by, radiusY = box.radiusY - by;
        if (radiusX <= 0 || radiusY <= 0) return {shrunk, 0, 0};
        return {shrunk, radiusX, radiusY};
    }

    RoundedBox outside_;
    int penWidth_;
    RoundedBox inside_;
    int row_ = 0, insetBefore_ = wholeRow;
};

/// Calls `draw(y, row)` for every row of a ring that lies in the bitmap. Upper and lower half are mirror
/// images, so that two rows are computed at once.
template <class DrawRow>
void ForRows(const Bitmap& bitmap, const RoundedBox& outside, int penWidth, const DrawRow& draw) {
    const int top = outside.edges.top, last = outside.edges.bottom - 1;
    const int firstVisible = std::max(top, 0), lastVisible = std::min(last, bitmap.Height() - 1);
    if (firstVisible > lastVisible || outside.edges.Empty()) return;

    // Along the visible rows the distance from the nearer edge grows up to the middle and shrinks from there.
    const auto distance = [&](int y) { return std::min(y - top, last - y); };
    const int middle = top + (last - top) / 2;
    const int nearest = std::min(distance(firstVisible), distance(lastVisible));
    const int furthest = distance(std::clamp(middle, firstVisible, lastVisible));

    RingRows rows(outside, penWidth);
    rows.StartAt(nearest);
    for (int i = nearest; i <= furthest; ++i) {
        const RingRow row = rows.Next();
        const int upper = top + i, lower = last - i;
        if (upper >= firstVisible && upper <= lastVisible) draw(upper, row);
        if (lower != upper && lower >= firstVisible && lower <= lastVisible) draw(lower, row);
    }
}

/// Calls `plot(x, y)` for each pixel of the outline of a circle about (0, 0), one pixel wide. One octant is
/// walked in whole numbers and mirrored: a pixel belongs to the disc of radius r + 1/2 if x^2 + y^2 <= r^2 +
/// r, and the outline has for each y of the octant the last such x.
template <class Plot>
void WalkCircle(int radius, const Plot& plot) {
    const auto fourAround = [&](int x, int y) {
        plot(x, y);
        plot(-y, x);
        plot(-x, -y);
        plot(y, -x);
    };
    if (radius == 0) {
        plot(0, 0);
        return;
    }
    fourAround(radius, 0);
    int x = radius, excess = -radius;  // excess = x^2 + y^2 - r^2 - r
    for (int y = 1;; ++y) {
        excess += 2 * y - 1;
        const int step = excess > 0 ? 1 : 0;
        excess -= step * (2 * x - 1);
        x -= step;
        if (y >= x) {
            if (y == x) fourAround(x, y);
            return;
        }
        fourAround(x, y);
        fourAround(x, -y);
    }
}

/// A circle, in contrast to a box with round corners.
bool IsCircle(const RoundedBox& box) {
    return box.radiusX == box.radiusY && box.edges.Width() == 2 * box.radiusX &&
           box.edges.Height() == 2 * box.radiusY;
}

bool IsInside(const Bitmap& bitmap, const PixelRect& area) {
    return area.left >= 0 && area.top >= 0 && area.right <= bitmap.Width() && area.bottom <= bitmap.Height();
}

/// The box that a pen fills which goes along the edge of the box of a thin pen.
PixelRect Widened(const PixelRect& path, int penWidth) {
    const int before = penWidth / 2, after = penWidth - 1 - before;
    return {path.left - before, path.top - before, path.right + after, path.bottom + after};
}

template <class Paint>
void DrawThinCircle(Bitmap& bitmap, const PixelRect& edges, const Paint& paint) {
    const int radius = edges.Width() / 2, centreX = edges.left + radius, centreY = edges.top + radius;
    if (IsInside(bitmap, edges)) {
        Pixel* const centre = bitmap.Row(centreY) + centreX;
        const std::ptrdiff_t stride = bitmap.Width();
        WalkCircle(radius, [&](int x, int y) { paint(centre[x + y * stride]); });
    } else {
        WalkCircle(radius, [&](int x, int y) {
            if (bitmap.Contains(centreX + x, centreY + y)) paint(bitmap.Row(centreY + y)[centreX + x]);
        });
    }
}

template <class Paint>
void DrawOutline(Bitmap& bitmap, const RoundedBox& outside, int penWidth, const Paint& paint) {
    // Thin circles are what is drawn most. Those too large for the bitmap would be walked for pixels that
    // nobody sees.
    const PixelRect& edges = outside.edges;
    if (penWidth == 1 && edges.Width() % 2 == 1 && IsCircle(outside) &&
        edges.Width() <= 2 * (bitmap.Width() + bitmap.Height())) {
        DrawThinCircle(bitmap, edges, paint);
        return;
    }
    ForRows(bitmap, outside, penWidth, [&](int y, const RingRow& row) {
        InkRow(bitmap, y, row.left, row.holeLeft, paint);
        InkRow(bitmap, y, row.holeRight, row.right, paint);
    });
}

}  // namespace

int RoundedBox::Inset(int row) const {
    const double depth = row + 0.5;
    if (depth >= radiusY) return 0;
    // x / radiusX = sqrt(1 - (y / radiusY)^2), with y = radiusY - depth.
    const double chord = radiusX / radiusY * std::sqrt(depth * (2 * radiusY - depth));
    // The first pixel whose centre isn't left of the edge. The difference is above -1, so cutting off its
    // fraction and counting that as a pixel rounds it up.
    const double inset = radiusX - chord - 0.5;
    const int whole = static_cast<int>(inset);
    return whole < inset ? whole + 1 : whole;
}

RoundedBox EllipseOutside(const PixelRect& path, int penWidth) {
    const PixelRect edges = Widened(path, penWidth);
    return {edges, edges.Width() / 2.0, edges.Height() / 2.0};
}

RoundedBox BoxOutside(const PixelRect& path, int cornerWidth, int cornerHeight, int penWidth) {
    return {Widened(path, penWidth), (std::max(cornerWidth, 1) + penWidth - 1) / 2.0,
            (std::max(cornerHeight, 1) + penWidth - 1) / 2.0};
}

void DrawRing(Bitmap& bitmap, const RoundedBox& outside, int penWidth, const Ink& outline,
              const std::optional<Ink>& fill) {
    outline.Visit([&](const auto& paint) { DrawOutline(bitmap, outside, penWidth, paint); });
    if (!fill) return;
    fill->Visit([&](const auto& paint) {
        ForRows(bitmap, outside, penWidth,
                [&](int y, const RingRow& row) { InkRow(bitmap, y, row.holeLeft, row.holeRight, paint); });
    });
}

void DrawRingPart(Bitmap& bitmap, const RoundedBox& outside, int penWidth, const Ink& outline, int x, int y,
                  const Arc& arc) {
    outline.Visit([&](const auto& paint) {
        ForRows(bitmap, outside, penWidth, [&](int row, const RingRow& pixels) {
            const auto part = [&](int left, int right) {
                Pixel* const line = bitmap.Row(row);
                const int end = std::min(right, bitmap.Width());
                for (int column = std::max(left, 0); column < end; ++column) {
                    if (arc.Contains(column - x, y - row)) paint(line[column]);
                }
            };
            part(pixels.left, pixels.holeLeft);
            part(pixels.holeRight, pixels.right);
        });
    });
}

void FillRoundedBox(Bitmap& bitmap, const RoundedBox& box, const Ink& ink) {
    ink.Visit([&](const auto& paint) {
        ForRows(bitmap, box, 1,
                [&](int y, const RingRow& row) { InkRow(bitmap, y, row.left, row.right, paint); });
    });
}

}  // namespace coinlet
