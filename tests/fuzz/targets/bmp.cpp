// Windows bitmaps: what is decoded is a legal picture of the size that the header tells, and stays itself
// when it is written and read again.
#include "fuzz/judged_picture.h"
#include "fuzz/targets/targets.h"
#include "support/bmp_bytes.h"
#include "surface/codecs.h"

#include <cstdlib>

namespace coinlet::test {
namespace {

std::vector<Bytes> Bitmaps() {
    const std::vector<std::uint32_t> palette{0xFF0000, 0x00FF00, 0x0000FF, 0x808080};
    const std::vector<std::uint32_t> masks{0xF800, 0x07E0, 0x001F};
    const Bytes pixels(256, 0x12);
    std::vector<Bytes> files;
    for (const std::uint16_t bits : std::initializer_list<std::uint16_t>{1, 4, 8, 16, 24, 32}) {
        for (const std::uint32_t headerSize : {12U, 40U, 124U}) {
            files.push_back(BmpBytes{.headerSize = headerSize,
                                     .width = 7,
                                     .height = 5,
                                     .bits = bits,
                                     .palette = bits <= 8 ? palette : std::vector<std::uint32_t>(),
                                     .pixels = pixels}
                                .File());
        }
    }
    const Bytes runs{3, 0, 0, 5, 1, 2, 3, 0x21, 2, 0, 0, 0, 0, 2, 1, 1, 4, 0x12, 0, 0, 9, 9, 0, 1};
    files.push_back(
        BmpBytes{.width = 8, .height = 5, .bits = 8, .compression = 1, .palette = palette, .pixels = runs}
            .File());
    files.push_back(
        BmpBytes{.width = 8, .height = -5, .bits = 4, .compression = 2, .palette = palette, .pixels = runs}
            .File());
    for (const std::uint16_t bits : {std::uint16_t{16}, std::uint16_t{32}}) {
        for (const std::uint32_t headerSize : {40U, 56U}) {
            files.push_back(BmpBytes{.headerSize = headerSize,
                                     .width = 7,
                                     .height = 5,
                                     .bits = bits,
                                     .compression = 3,
                                     .masks = masks,
                                     .pixels = pixels}
                                .File());
        }
    }
    return files;
}

/// Sides as the header tells them; what it doesn't tell, no picture comes of.
std::string FaultOfSize(std::span<const std::uint8_t> file, const Image& image) {
    constexpr std::size_t headerSizeAt = 14, widthAt = 18;
    constexpr int oldestHeader = 12;
    const bool oldest = HeaderNumber(file, headerSizeAt) == oldestHeader;
    const auto side = [&](std::size_t place) {
        if (oldest) return static_cast<long long>(HeaderNumber(file, place));
        const long long low = HeaderNumber(file, place), high = HeaderNumber(file, place + 2);
        return static_cast<long long>(static_cast<std::int32_t>(high << 16 | low));
    };
    const long long width = side(widthAt), height = side(widthAt + (oldest ? 2 : 4));
    return width == image.Width() && std::abs(height) == image.Height() ? "" : "another size than it says";
}

std::string FaultOfCopy(const Image& image) {
    const auto written = EncodeBmp(image);
    if (!written) return "it can't be written";
    const auto again = DecodeBmp(*written);
    return again && *again == image ? "" : "another picture when it is written and read again";
}

Outcome Read(std::span<const std::uint8_t> file) {
    const auto image = DecodeBmp(file);
    Outcome outcome = Judged(image, file.size());
    if (image && outcome.wrong.empty()) outcome.wrong = FaultOfSize(file, *image);
    if (image && outcome.wrong.empty() && IsSmall(*image)) outcome.wrong = FaultOfCopy(*image);
    return outcome;
}

}  // namespace

Reader BmpReader() {
    return {"bitmap", Bitmaps(), Read};
}

}  // namespace coinlet::test
