// Pictures that are damaged or hostile: none crashes a decoder, and what is decoded is a legal picture.
#include "fuzz/harness.h"
#include "media/media_codecs.h"
#include "support/bmp_bytes.h"
#include "support/gif_bytes.h"

#include <algorithm>

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

std::vector<Bytes> Gifs() {
    std::vector<std::uint8_t> indices;
    for (unsigned i = 0; i < 99; ++i)
        indices.push_back(i * i / 3 % 4);
    return {GifBytes{.width = 11, .height = 9, .frames = {{0, 0, 11, 9, indices}}}.File(),
            GifBytes{.width = 20, .height = 20, .frames = {{3, 5, 9, 11, indices, 2, true}}}.File(),
            GifBytes{.width = 9, .height = 9, .frames = {{4, 4, 9, 11, indices}, {0, 0, 11, 9, indices, 1}}}
                .File()};
}

std::vector<Bytes> Jpegs() {
    Bitmap bitmap(19, 13);
    Pixel colour = 0;
    for (Pixel& pixel : bitmap.Pixels())
        pixel = spareByte | (colour += 40503);
    const Image image(std::move(bitmap));
    std::vector<Bytes> files;
    for (const int quality : {5, 60, 100})
        if (auto bytes = MediaCodecs().EncodeJpeg(image, quality)) files.push_back(*std::move(bytes));
    return files;
}

/// Looks at every pixel, too: one outside its memory is one that the sanitizers see.
Outcome Judged(const std::optional<Image>& image) {
    if (!image) return {};
    if (image->Empty()) return {true, "a picture of no pixels"};
    if (!IsPictureSize(image->Width(), image->Height())) return {true, "a picture larger than may be"};
    const auto pixels = image->Shared()->Pixels();
    const bool opaque = std::all_of(pixels.begin(), pixels.end(),
                                    [](Pixel pixel) { return (pixel & spareByte) == spareByte; });
    return {true, opaque ? "" : "a spare byte that isn't 255"};
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    using namespace coinlet;
    using test::Judged;
    const MediaCodecs codecs;
    std::vector<Bytes> all;
    for (const auto& files : {test::Bitmaps(), test::Gifs(), test::Jpegs()})
        all.insert(all.end(), files.begin(), files.end());
    using File = std::span<const std::uint8_t>;
    const std::vector<test::Reader> readers{
        {"bitmap", test::Bitmaps(), [](File file) { return Judged(DecodeBmp(file)); }},
        {"GIF", test::Gifs(), [&](File file) { return Judged(codecs.DecodeGif(file)); }},
        {"JPEG", test::Jpegs(), [&](File file) { return Judged(codecs.DecodeJpeg(file)); }},
        {"picture", all, [&](File file) { return Judged(DecodePicture(file, codecs)); }}};
    constexpr std::size_t usualRounds = 15000;
    return test::Fuzz(readers, usualRounds, argc, argv);
}
