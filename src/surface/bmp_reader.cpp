#include "surface/bmp_header.h"
#include "surface/bmp_run_lengths.h"
#include "surface/codecs.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace coinlet {

namespace {

using bmp::Compression;
using bmp::Header;

static_assert(std::endian::native == std::endian::little, "pixels are moved as whole words");

template <class Word>
Word Load(const std::uint8_t* bytes) {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// Pixels of less than a byte; the first one has the highest bits.
template <unsigned bits>
void UnpackIndices(const Header& header, const std::uint8_t* row, std::size_t count, Pixel* out) {
    constexpr std::size_t perByte = 8 / bits;
    constexpr unsigned mask = (1U << bits) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const auto shift = static_cast<unsigned>((perByte - 1 - i % perByte) * bits);
        out[i] = header.palette[static_cast<unsigned>(row[i / perByte]) >> shift & mask];
    }
}

/// Four pixels are three words; the rest goes byte by byte.
void Unpack24(const std::uint8_t* row, std::size_t count, Pixel* out) {
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4, row += 12) {
        const auto a = Load<std::uint32_t>(row), b = Load<std::uint32_t>(row + 4),
                   c = Load<std::uint32_t>(row + 8);
        out[i] = spareByte | a;
        out[i + 1] = spareByte | a >> 24 | b << 8;
        out[i + 2] = spareByte | b >> 16 | c << 16;
        out[i + 3] = spareByte | c >> 8;
    }
    for (; i < count; ++i, row += 3)
        out[i] = spareByte | static_cast<Pixel>(row[2]) << 16 | static_cast<Pixel>(row[1]) << 8 | row[0];
}

void Unpack32(const std::uint8_t* row, std::size_t count, Pixel* out) {
    for (std::size_t i = 0; i < count; ++i)
        out[i] = spareByte | Load<std::uint32_t>(row + 4 * i);
}

/// One channel of a pixel whose bits are laid out by masks, stretched to 0..255: the nearest value to
/// v * 255 / max. A mask without bits gives 0.
class Channel {
public:
    explicit Channel(std::uint32_t mask)
        : mask_(mask),
          shift_(mask == 0 ? 0 : static_cast<unsigned>(std::countr_zero(mask))),
          max_(mask >> shift_) {
        if (max_ == 0 || max_ >= table_.size()) return;
        for (std::uint32_t v = 0; v <= max_; ++v)
            table_[v] = static_cast<std::uint8_t>(Stretch(v));
    }

    std::uint32_t Of(std::uint32_t pixel) const {
        const std::uint32_t value = (pixel & mask_) >> shift_;
        return max_ < table_.size() ? table_[value] : Stretch(value);
    }

private:
    std::uint32_t Stretch(std::uint64_t value) const {
        return static_cast<std::uint32_t>((value * 255 + max_ / 2) / max_);
    }

    std::uint32_t mask_;
    unsigned shift_;
    std::uint32_t max_;
    std::array<std::uint8_t, 256> table_{};
};

/// Calls `unpack(bytes, count, row)` for every row, with the pixels of it that the file has; the others are
/// black.
template <class UnpackRow>
void DrawRows(const Header& header, Bitmap& bitmap, const UnpackRow& unpack) {
    const auto width = static_cast<std::size_t>(header.width);
    const std::size_t rowSize = bmp::RowSize(header.width, header.bits);
    auto bytes = header.pixels;
    for (int i = 0; i < header.height; ++i) {
        Pixel* row = bitmap.Row(header.topDown ? i : header.height - 1 - i);
        const std::size_t there = std::min(width, bytes.size() * 8 / header.bits);
        unpack(bytes.data(), there, row);
        std::fill(row + there, row + width, ToPixel(black));
        bytes = bytes.subspan(std::min(rowSize, bytes.size()));
    }
}

template <unsigned bits>
void DrawIndices(const Header& header, Bitmap& bitmap) {
    DrawRows(header, bitmap, [&](const std::uint8_t* bytes, std::size_t count, Pixel* row) {
        UnpackIndices<bits>(header, bytes, count, row);
    });
}

template <class Word>
void DrawFields(const Header& header, Bitmap& bitmap) {
    const Channel red(header.redMask), green(header.greenMask), blue(header.blueMask);
    DrawRows(header, bitmap, [&](const std::uint8_t* bytes, std::size_t count, Pixel* row) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint32_t pixel = Load<Word>(bytes + sizeof(Word) * i);
            row[i] = spareByte | red.Of(pixel) << 16 | green.Of(pixel) << 8 | blue.Of(pixel);
        }
    });
}

void DrawPixels(const Header& header, Bitmap& bitmap) {
    switch (header.bits) {
        case 1:
            return DrawIndices<1>(header, bitmap);
        case 4:
            return DrawIndices<4>(header, bitmap);
        case 8:
            return DrawIndices<8>(header, bitmap);
        case 16:
            return DrawFields<std::uint16_t>(header, bitmap);
        case 24:
            return DrawRows(header, bitmap, Unpack24);
        default:
            if (header.compression == Compression::None) return DrawRows(header, bitmap, Unpack32);
            return DrawFields<std::uint32_t>(header, bitmap);
    }
}

}  // namespace

std::optional<Image> DecodeBmp(std::span<const std::uint8_t> bytes) {
    const auto header = bmp::ReadHeader(bytes);
    if (!header || !IsWorthDecoding(header->width, header->height, bytes.size())) return std::nullopt;
    if (header->compression == Compression::RunLength4 || header->compression == Compression::RunLength8) {
        Bitmap bitmap(header->width, header->height, ToPixel(black));
        bmp::DrawRunLengths(*header, bitmap);
        return Image(std::move(bitmap));
    }
    Bitmap bitmap(header->width, header->height);
    DrawPixels(*header, bitmap);
    return Image(std::move(bitmap));
}

}  // namespace coinlet
