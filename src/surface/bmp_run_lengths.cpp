#include "surface/bmp_run_lengths.h"

#include <algorithm>

namespace coinlet::bmp {

namespace {

using Codes = std::span<const std::uint8_t>;

/// Where the next pixel goes; rows count as the file does, from its first one.
class Pen {
public:
    Pen(const Header& header, Bitmap& bitmap) : header_(header), bitmap_(bitmap) {}

    bool BelowLastRow() const { return row_ >= header_.height; }
    void NextRow() {
        x_ = 0;
        ++row_;
    }
    void Skip(int right, int rows) {
        x_ = std::min(x_ + right, header_.width);
        row_ += rows;
    }

    /// Draws `count` pixels, of which number i has the palette index `indexOf(i)`.
    template <class IndexOf>
    void Draw(int count, const IndexOf& indexOf) {
        Pixel* row = bitmap_.Row(header_.topDown ? row_ : header_.height - 1 - row_);
        const int end = std::min(x_ + count, header_.width);
        for (int i = 0; x_ < end; ++i, ++x_)
            row[x_] = header_.palette[indexOf(static_cast<unsigned>(i))];
    }

private:
    const Header& header_;
    Bitmap& bitmap_;
    int x_ = 0, row_ = 0;
};

/// The index of pixel i in a run of bytes; two pixels share a byte in RLE4, the left one has the high half.
unsigned IndexAt(const std::uint8_t* bytes, unsigned i, bool halves) {
    if (!halves) return bytes[i];
    return i % 2 == 0 ? bytes[i / 2] >> 4U : bytes[i / 2] & 15U;
}

}  // namespace

void DrawRunLengths(const Header& header, Bitmap& bitmap) {
    constexpr std::uint8_t endOfRow = 0, endOfPicture = 1,
                           skip = 2;  // Higher: so many pixels, listed singly.
    const bool halves = header.compression == Compression::RunLength4;
    Codes codes = header.pixels;
    Pen pen(header, bitmap);
    while (codes.size() >= 2 && !pen.BelowLastRow()) {
        const std::uint8_t count = codes[0], value = codes[1];
        codes = codes.subspan(2);
        if (count > 0) {
            const std::array<std::uint8_t, 1> pair{value};
            pen.Draw(count, [&](unsigned i) { return IndexAt(pair.data(), halves ? i % 2 : 0, halves); });
        } else if (value == endOfRow) {
            pen.NextRow();
        } else if (value == endOfPicture) {
            return;
        } else if (value == skip) {
            if (codes.size() < 2) return;
            pen.Skip(codes[0], codes[1]);
            codes = codes.subspan(2);
        } else {
            const std::size_t size = halves ? (value + 1U) / 2 : value;
            const std::size_t there = std::min(size, codes.size());
            const auto pixels = std::min<std::size_t>(value, halves ? there * 2 : there);
            pen.Draw(static_cast<int>(pixels), [&](unsigned i) { return IndexAt(codes.data(), i, halves); });
            codes = codes.subspan(std::min(size + size % 2, codes.size()));  // padded to 16 bits
        }
    }
}

}  // namespace coinlet::bmp
