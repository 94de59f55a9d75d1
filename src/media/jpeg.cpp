#include "media/jpeg.h"

#include "surface/codecs.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace coinlet {

namespace {

struct DestroyCodec {
    void operator()(void* codec) const { tjDestroy(codec); }
};
using Codec = std::unique_ptr<std::remove_pointer_t<tjhandle>, DestroyCodec>;

struct FreeBuffer {
    void operator()(unsigned char* buffer) const { tjFree(buffer); }
};

/// How many scans a JPEG has, as its markers tell. Each goes over the whole picture, however few bytes it
/// has.
std::size_t CountScans(std::span<const std::uint8_t> bytes) {
    constexpr std::uint8_t start = 0xFF, scan = 0xDA, end = 0xD9, standsAloneFirst = 0xD0,
                           standsAloneLast = 0xD8, stuffing = 0x00, temporary = 0x01;
    std::size_t scans = 0;
    for (std::size_t at = 0; at + 1 < bytes.size();) {
        if (bytes[at] != start || bytes[at + 1] == start) {
            const auto next =
                std::find(bytes.begin() + static_cast<std::ptrdiff_t>(at) + 1, bytes.end(), start);
            at = static_cast<std::size_t>(next - bytes.begin());
            continue;
        }
        const std::uint8_t marker = bytes[at + 1];
        if (marker == end) break;
        if (marker == scan) ++scans;
        at += 2;
        if (marker == stuffing || marker == temporary ||
            (marker >= standsAloneFirst && marker <= standsAloneLast))
            continue;
        if (at + 1 < bytes.size()) at += static_cast<std::size_t>(bytes[at] << 8 | bytes[at + 1]);
    }
    return scans;
}

/// A camera's picture has one scan, one that builds up while it loads about ten. Hostile ones have hundreds.
bool IsWorthItsScans(int width, int height, std::span<const std::uint8_t> bytes) {
    constexpr std::size_t megabyte = 1'000'000, mostForAMegabyte = 250'000'000;
    const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return pixels * CountScans(bytes) <= mostForAMegabyte * (bytes.size() / megabyte + 1);
}

/// Decodes into rows of `width` pixels. Damage that the library warns of leaves a picture all the same.
bool Decompress(tjhandle codec, std::span<const std::uint8_t> bytes, Bitmap& bitmap, TJPF format) {
    auto* pixels = reinterpret_cast<unsigned char*>(bitmap.Pixels().data());
    // Some hostile files have scans without end, each over the whole picture.
    constexpr int flags = TJFLAG_ACCURATEDCT | TJFLAG_LIMITSCANS;
    return tjDecompress2(codec, bytes.data(), bytes.size(), pixels, bitmap.Width(), 0, bitmap.Height(),
                         format, flags) == 0 ||
           tjGetErrorCode(codec) == TJERR_WARNING;
}

/// Pixels of cyan, magenta, yellow and black, as print shops store them: inverted, so that 255 is no ink.
void InksToColours(Bitmap& bitmap) {
    const auto channel = [](std::uint32_t ink, std::uint32_t key) { return (ink * key + 127) / 255; };
    for (Pixel& pixel : bitmap.Pixels()) {
        const std::uint32_t key = pixel >> 24;
        pixel = spareByte | channel(pixel & 0xFFU, key) << 16 | channel(pixel >> 8 & 0xFFU, key) << 8 |
                channel(pixel >> 16 & 0xFFU, key);
    }
}

}  // namespace

std::optional<Image> DecodeJpegBytes(std::span<const std::uint8_t> bytes) {
    const Codec codec(tjInitDecompress());
    if (!codec || bytes.empty()) return std::nullopt;
    int width = 0, height = 0, sampling = 0, colours = 0;
    if (tjDecompressHeader3(codec.get(), bytes.data(), bytes.size(), &width, &height, &sampling, &colours) !=
            0 &&
        tjGetErrorCode(codec.get()) != TJERR_WARNING)
        return std::nullopt;
    if (width <= 0 || height <= 0 || !IsWorthDecoding(width, height, bytes.size()) ||
        !IsWorthItsScans(width, height, bytes))
        return std::nullopt;

    const bool inks = colours == TJCS_CMYK || colours == TJCS_YCCK;
    // Black, for the library also stops at damage that it has warned of before and leaves the rows below.
    Bitmap bitmap(width, height, ToPixel(black));
    if (!Decompress(codec.get(), bytes, bitmap, inks ? TJPF_CMYK : TJPF_BGRA)) return std::nullopt;
    if (inks) InksToColours(bitmap);
    return Image(std::move(bitmap));
}

std::optional<Bytes> EncodeJpegBytes(const Image& image, int quality) {
    const Codec codec(tjInitCompress());
    if (!codec || image.Empty()) return std::nullopt;
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    const auto* pixels = reinterpret_cast<const unsigned char*>(image.Row(0));
    const int result = tjCompress2(codec.get(), pixels, image.Width(), 0, image.Height(), TJPF_BGRX, &buffer,
                                   &size, TJSAMP_444, std::clamp(quality, 1, 100), TJFLAG_ACCURATEDCT);
    const std::unique_ptr<unsigned char, FreeBuffer> owner(buffer);
    if (result != 0 && tjGetErrorCode(codec.get()) != TJERR_WARNING) return std::nullopt;
    return Bytes(buffer, buffer + size);
}

}  // namespace coinlet
