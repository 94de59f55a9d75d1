#include "surface/bmp_format.h"
#include "surface/codecs.h"

#include <bit>
#include <cstring>

namespace coinlet {

namespace {

constexpr std::uint16_t bitsAPixel = 24;
constexpr std::size_t pixelStart = bmp::fileHeaderSize + bmp::infoHeaderSize;
constexpr std::uint32_t pixelsAMetre = 3780;  // 96 dots an inch

static_assert(std::endian::native == std::endian::little, "pixels are moved as whole words");

template <class Number>
void Append(Bytes& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof number; ++i)
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> 8 * i));
}

void AppendHeaders(Bytes& bytes, const Image& image, std::uint32_t pixelSize) {
    Append(bytes, std::uint8_t{'B'});
    Append(bytes, std::uint8_t{'M'});
    Append(bytes, static_cast<std::uint32_t>(pixelStart + pixelSize));
    Append(bytes, std::uint32_t{0});
    Append(bytes, static_cast<std::uint32_t>(pixelStart));

    Append(bytes, static_cast<std::uint32_t>(bmp::infoHeaderSize));
    Append(bytes, static_cast<std::int32_t>(image.Width()));
    Append(bytes, static_cast<std::int32_t>(image.Height()));  // above 0: the bottom row comes first
    Append(bytes, std::uint16_t{1});                           // planes
    Append(bytes, bitsAPixel);
    Append(bytes, static_cast<std::uint32_t>(bmp::Compression::None));
    Append(bytes, pixelSize);
    Append(bytes, pixelsAMetre);
    Append(bytes, pixelsAMetre);
    Append(bytes, std::uint32_t{0});  // colours of the palette that are used
    Append(bytes, std::uint32_t{0});  // and that matter
}

void Store(std::uint8_t* bytes, std::uint32_t word) {
    std::memcpy(bytes, &word, sizeof word);
}

/// Four pixels are three words; the rest goes byte by byte.
void Pack24(const Pixel* row, std::size_t count, std::uint8_t* out) {
    constexpr Pixel colourBits = ~spareByte;
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4, out += 12) {
        const Pixel a = row[i] & colourBits, b = row[i + 1] & colourBits, c = row[i + 2] & colourBits;
        Store(out, a | b << 24);
        Store(out + 4, b >> 8 | c << 16);
        Store(out + 8, c >> 16 | row[i + 3] << 8);
    }
    for (; i < count; ++i, out += 3) {
        out[0] = static_cast<std::uint8_t>(row[i]);
        out[1] = static_cast<std::uint8_t>(row[i] >> 8);
        out[2] = static_cast<std::uint8_t>(row[i] >> 16);
    }
}

}  // namespace

std::optional<Bytes> EncodeBmp(const Image& image) {
    if (image.Empty()) return std::nullopt;
    const std::size_t rowSize = bmp::RowSize(image.Width(), bitsAPixel);
    const std::size_t pixelSize = rowSize * static_cast<std::size_t>(image.Height());

    // Row by row through a small buffer that stays in the cache: the file's own bytes are touched once.
    Bytes bytes, row(rowSize);
    bytes.reserve(pixelStart + pixelSize);
    AppendHeaders(bytes, image, static_cast<std::uint32_t>(pixelSize));
    for (int y = image.Height() - 1; y >= 0; --y) {
        Pack24(image.Row(y), static_cast<std::size_t>(image.Width()), row.data());
        bytes.insert(bytes.end(), row.begin(), row.end());
    }
    return bytes;
}

}  // namespace coinlet
